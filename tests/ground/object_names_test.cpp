#include <cstring>
#include <string>
#include <vector>

#include "tests/support/test_host.h"

#include "ground/object_names.h"
#include "util/dialogs.h"

namespace {
constexpr const char *list_title = "Dialog";
constexpr const char *name_title = "";  // Edit Name has no title
enum { LIST = 1063, EDIT_NAME = 1067, NAME = 1066 };
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
    // The list of the entries so far, plus extra raw values (null nodes).
    int request(const std::vector<uintptr_t> &extra = {}) {
        std::vector<uintptr_t> values;
        for (unit_entry *e : entries) values.push_back(reinterpret_cast<uintptr_t>(e));
        values.insert(values.end(), extra.begin(), extra.end());
        list = host.build_list(values);
        return editor_window(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(list), 0);
    }
};

TEST_F(object_names_test, lines_are_sorted_as_text_and_rename_keeps_after_cancel) {
    unit_entry *two = add(2, "alpha", "tank");
    add(10, "bravo", "jeep");
    ui_driver d;
    d.then(list_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, LIST), (lines{"10 : bravo  (jeep)", "2 : alpha  (tank)"}));
        EXPECT_TRUE(ui_list_selected(dlg, LIST).empty());
        ui_list_select(dlg, LIST, "2 : alpha  (tank)");
        ui_command(dlg, EDIT_NAME);
    });
    d.then(name_title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, NAME), "alpha");
        ui_set_text(dlg, NAME, "zulu");
        ui_command(dlg, IDOK);
    });
    d.then(list_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, LIST), (lines{"10 : bravo  (jeep)", "2 : zulu  (tank)"}));
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(request(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(two->name, "zulu");
}

TEST_F(object_names_test, used_name_is_refused_and_the_old_one_restored) {
    unit_entry *e = add(4, "alpha", "tank");
    host.existing_names = {"bravo"};
    std::string box_text;
    ui_driver d;
    d.then(list_title, [&](HWND dlg) {
        ui_list_select_index(dlg, LIST, 0);
        ui_command(dlg, EDIT_NAME);
    });
    d.then(name_title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, "bravo");
        ui_command(dlg, IDOK);
    });
    d.answer_box("Name Error", IDOK, &box_text);
    d.then(list_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, LIST), (lines{"4 : alpha  (tank)"}));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(request(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(box_text, "Name Already Exists");
    EXPECT_STREQ(e->name, "alpha");
}

TEST_F(object_names_test, edit_name_rules) {
    char field[32];
    // An unchanged name is accepted without asking the host (no box appears).
    copy_text(field, "alpha");
    host.existing_names = {"alpha"};
    ui_driver d;
    d.then(name_title, [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit_name(host.main_window, field), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(field, "alpha");

    // Forty characters typed: the first 31 are stored.
    ui_driver d2;
    d2.then(name_title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, std::string(40, 'q'));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_name(host.main_window, field), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_EQ(std::string(field), std::string(31, 'q'));

    // An empty name is accepted; Cancel leaves the field untouched.
    ui_driver d3;
    d3.then(name_title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, "");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_name(host.main_window, field), 1);
    EXPECT_DRIVER_OK(d3);
    EXPECT_STREQ(field, "");
    copy_text(field, "kept");
    ui_driver d4;
    d4.then(name_title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, "other");
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(edit_name(host.main_window, field), 0);
    EXPECT_DRIVER_OK(d4);
    EXPECT_STREQ(field, "kept");
}

TEST_F(object_names_test, null_nodes_and_long_texts_are_safe) {
    add(7, std::string(31, 'n'), std::string(31, 't'));
    ui_driver d;
    d.then(list_title, [&](HWND dlg) {
        lines items = ui_list_items(dlg, LIST);
        ASSERT_EQ(items.size(), 1u);
        EXPECT_EQ(items[0], "7 : " + std::string(31, 'n') + "  (" + std::string(31, 't') + ")");
        // Edit Name without a selection does nothing.
        ui_command(dlg, EDIT_NAME);
    });
    d.then(list_title, [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(request({0}), 1);
    EXPECT_DRIVER_OK(d);
}

TEST_F(object_names_test, not_started_shows_nothing) {
    editor_tidyup();
    add(1, "a", "b");
    EXPECT_EQ(list_object_names(nullptr), 0);
    EXPECT_EQ(request(), 0);
}
