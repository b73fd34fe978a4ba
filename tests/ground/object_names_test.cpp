#include "ground/object_names.h"
#include "tests/ground/group_fixture.h"
#include "util/dialogs.h"
#include "util/text.h"

namespace {
using lines = std::vector<std::string>;
}  // namespace

class object_names_test : public editor_test {
protected:
    std::vector<unit_entry *> entries;
    dlist_node *list = nullptr;

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
    }
    void TearDown() override {
        if (list) host.free_list(list);
        for (unit_entry *e : entries) host.memory.free(e, 68);
        editor_test::TearDown();
    }
    unit_entry *add(int32_t id, const std::string &name, const std::string &type) {
        auto *e = static_cast<unit_entry *>(host.memory.alloc(68));
        std::memset(e, 0, sizeof *e);
        copy_text(e->name, name.c_str());
        copy_text(e->type_name, type.c_str());
        e->id = id;
        entries.push_back(e);
        return e;
    }
    // Opens the list of the entries so far plus extra raw values (null nodes).
    int request(ui_driver &d, const std::vector<uintptr_t> &extra = {}) {
        std::vector<uintptr_t> values;
        for (unit_entry *e : entries) values.push_back(reinterpret_cast<uintptr_t>(e));
        values.insert(values.end(), extra.begin(), extra.end());
        list = host.build_list(values);
        const int result = editor_window(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(list), 0);
        EXPECT_DRIVER_OK(d);
        return result;
    }
    static void rename_first(HWND dlg) {
        ui_list_select_index(dlg, IDC_ON_LIST, 0);
        ui_command(dlg, IDC_ON_EDIT_NAME);
    }
};

TEST_F(object_names_test, lines_are_sorted_as_text_and_rename_keeps_after_cancel) {
    unit_entry *two = add(2, "alpha", "tank");
    add(10, "bravo", "jeep");
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
         EXPECT_EQ(ui_list_items(dlg, IDC_ON_LIST), (lines{"10 : bravo  (jeep)", "2 : alpha  (tank)"}));
         EXPECT_TRUE(ui_list_selected(dlg, IDC_ON_LIST).empty());
         ui_list_select(dlg, IDC_ON_LIST, "2 : alpha  (tank)");
         ui_command(dlg, IDC_ON_EDIT_NAME);
     })
        .then("", [&](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_EN_NAME), "alpha");
            ui_set_text(dlg, IDC_EN_NAME, "zulu");
            ui_command(dlg, IDOK);
        })
        .then("Dialog", [&](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_ON_LIST), (lines{"10 : bravo  (jeep)", "2 : zulu  (tank)"}));
            ui_command(dlg, IDCANCEL);
        });
    EXPECT_EQ(request(d), 0);
    EXPECT_STREQ(two->name, "zulu");
}

TEST_F(object_names_test, used_name_is_refused_and_the_old_one_restored) {
    unit_entry *e = add(4, "alpha", "tank");
    host.existing_names = {"bravo"};
    std::string box_text;
    ui_driver d;
    d.then("Dialog", rename_first).then("", [&](HWND dlg) {
        ui_set_text(dlg, IDC_EN_NAME, "bravo");
        ui_command(dlg, IDOK);
    });
    d.answer_box("Name Error", IDOK, &box_text).then("Dialog", [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_ON_LIST), (lines{"4 : alpha  (tank)"}));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(request(d), 1);
    EXPECT_EQ(box_text, "Name Already Exists");
    EXPECT_STREQ(e->name, "alpha");
}

TEST_F(object_names_test, edit_name_rules) {
    host.existing_names = {"alpha"};
    struct name_case {
        const char *before;
        std::string typed;  // "=" leaves the shown name
        int button, result;
        std::string after;
    };
    const name_case cases[] = {
        {"alpha", "=", IDOK, 1, "alpha"},  // unchanged: accepted without asking the host
        {"alpha", std::string(40, 'q'), IDOK, 1, std::string(31, 'q')},
        {"alpha", "", IDOK, 1, ""},
        {"kept", "other", IDCANCEL, 0, "kept"},
    };
    for (const name_case &c : cases) {
        char field[32];
        copy_text(field, c.before);
        EXPECT_EQ(drive("", {[&](HWND dlg) {
                            if (c.typed != "=") ui_set_text(dlg, IDC_EN_NAME, c.typed);
                            ui_command(dlg, c.button);
                        }},
                        [&] { return edit_name(host.main_window, field); }),
                  c.result);
        EXPECT_EQ(std::string(field), c.after);
    }
}

TEST_F(object_names_test, null_nodes_and_long_texts_are_safe) {
    add(7, std::string(31, 'n'), std::string(31, 't'));
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
         const std::string line = "7 : " + std::string(31, 'n') + "  (" + std::string(31, 't') + ")";
         EXPECT_EQ(ui_list_items(dlg, IDC_ON_LIST), lines{line});
         ui_command(dlg, IDC_ON_EDIT_NAME);  // without a selection: nothing
     })
        .then("Dialog", press_ok);
    EXPECT_EQ(request(d, {0}), 1);
}

// Host requests from inside the dialogs: a second list or Edit Name is
// refused, and the open Edit Name still writes its own field.
TEST_F(object_names_test, nested_list_and_edit_name_are_refused) {
    add(7, "alpha", "tank");
    char other[32] = "beta";
    int nested_edit = -1, nested_list = -1;
    ui_driver d;
    d.then("Dialog", rename_first)
        .then("", [&](HWND dlg) {
            nested_edit = nested_call([&] { return edit_name(host.main_window, other); });
            nested_list = nested_call(
                [&] { return editor_window(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(list), 0); });
            ui_set_text(dlg, IDC_EN_NAME, "gamma");
            ui_command(dlg, IDOK);
        })
        .then("Dialog", press_ok);
    EXPECT_EQ(request(d), 1);
    EXPECT_EQ(nested_edit, 0);
    EXPECT_EQ(nested_list, 0);
    EXPECT_STREQ(entries[0]->name, "gamma");
    EXPECT_STREQ(other, "beta");
}
