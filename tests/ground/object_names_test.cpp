// The object name list and Edit Name: renaming in place, names the host
// already uses, and host requests made from inside the dialogs.
#include "ground/object_names.h"
#include "tests/ground/group_fixture.h"

class object_names_test : public ground_test {
protected:
    std::vector<unit_entry *> entries;
    dlist_node *list = nullptr;

    void TearDown() override {
        if (list) host.free_list(list);
        for (unit_entry *e : entries) host.memory.free(e, sizeof *e);
        editor_test::TearDown();
    }
    unit_entry *add(int32_t id, const std::string &name, const std::string &type) {
        entries.push_back(static_cast<unit_entry *>(host.memory.alloc(sizeof(unit_entry))));
        *entries.back() = test_host::unit(id, name, type);
        return entries.back();
    }
    // Opens the list of the entries so far, and a null node, while `d` drives.
    int request(ui_driver &d) {
        std::vector<uintptr_t> values{0};
        for (unit_entry *e : entries) values.push_back(arg(e));
        list = host.build_list(values);
        const int result = editor_window(REQUEST_OBJECT_NAMES, arg(list), 0);
        EXPECT_DRIVER_OK(d);
        return result;
    }
    // Edit Name on the first line, typing `name` (unless "=") and pressing `button`.
    static void rename(ui_driver &d, const std::string &name, int button = IDOK) {
        d.then("Dialog", [](HWND dlg) { ui_list_select_index(dlg, IDC_ON_LIST, 0); ui_command(dlg, IDC_ON_EDIT_NAME); });
        d.then("", [=](HWND dlg) {
            if (name != "=") ui_set_text(dlg, IDC_EN_NAME, name);
            ui_command(dlg, button);
        });
    }
};

TEST_F(object_names_test, lines_sort_as_text_and_a_rename_is_cut_and_stays_after_cancel) {
    add(2, "alpha", "tank");
    add(10, "bravo", "jeep");
    add(7, std::string(31, 'n'), std::string(31, 't'));
    const std::string long_line = "7 : " + std::string(31, 'n') + "  (" + std::string(31, 't') + ")";
    lines before, after;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        before = ui_list_items(dlg, IDC_ON_LIST);
        EXPECT_TRUE(ui_list_selected(dlg, IDC_ON_LIST).empty());
        ui_command(dlg, IDC_ON_EDIT_NAME);  // without a selection: nothing
    });
    rename(d, std::string(40, 'q'));
    d.then("Dialog", [&](HWND dlg) { after = ui_list_items(dlg, IDC_ON_LIST); press_cancel(dlg); });
    EXPECT_EQ(request(d), 0);
    EXPECT_EQ(before, (lines{"10 : bravo  (jeep)", "2 : alpha  (tank)", long_line}));
    EXPECT_EQ(after, (lines{"10 : " + std::string(31, 'q') + "  (jeep)", "2 : alpha  (tank)", long_line}));
    EXPECT_EQ(std::string(entries[1]->name), std::string(31, 'q'));
}

// An unchanged name is taken without asking the host; a used one is refused
// with a message and the old one kept; Cancel keeps it too; an empty one is
// taken.
TEST_F(object_names_test, edit_name_rules) {
    unit_entry *e = add(4, "alpha", "tank");
    host.existing_names = {"alpha", "bravo"};
    std::string box_text;
    lines shown_after_refusal;
    ui_driver d;
    rename(d, "=");
    rename(d, "bravo");
    d.answer_box("Name Error", IDOK, &box_text);
    d.then("Dialog", [&](HWND dlg) { shown_after_refusal = ui_list_items(dlg, IDC_ON_LIST); });
    rename(d, "zulu", IDCANCEL);
    d.then("Dialog", [](HWND dlg) { ui_list_select_index(dlg, IDC_ON_LIST, 0); ui_command(dlg, IDC_ON_EDIT_NAME); });
    d.then("", [&](HWND dlg) {
        ui_set_text(dlg, IDC_EN_NAME, "");
        press_ok(dlg);
    });
    d.then("Dialog", press_ok);
    EXPECT_EQ(request(d), 1);
    EXPECT_EQ(box_text, "Name Already Exists");
    EXPECT_EQ(shown_after_refusal, (lines{"4 : alpha  (tank)"}));
    EXPECT_STREQ(e->name, "");
}
