// The Group List: automatic names, adding through Group Composition, removal
// by status, and no second Group Composition over the one working copy.
#include "ground/group_composition.h"
#include "ground/group_list.h"
#include "tests/ground/group_fixture.h"

namespace {
enum { GROUPS = 1076, EDIT = 3, REMOVE = 4, ADD = 5 };
}

class group_list_test : public group_test {
protected:
    int list() { return editor_window(REQUEST_GROUP_LIST, groups_arg(), 0); }
};

TEST_F(group_list_test, new_groups_take_the_first_name_never_used) {
    add_group("sarge0", {});
    add_group("sarge2", {}, GROUP_STATUS_REMOVED);
    std::vector<std::string> lines, composition_names;
    ui_driver d;
    for (int i = 0; i < 2; ++i) {
        d.then("Group List", [&](HWND dlg) { ui_command(dlg, ADD); });
        d.then("Dialog", [&](HWND dlg) {
            composition_names.push_back(ui_text(dlg, GC_NAME));
            ui_command(dlg, IDOK);
        });
    }
    d.then("Group List", [&](HWND dlg) {
        lines = ui_list_items(dlg, GROUPS);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(list(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(composition_names, (std::vector<std::string>{"sarge1", "sarge3"}));
    EXPECT_EQ(lines, (std::vector<std::string>{"sarge0", "sarge1", "sarge3"}));
    EXPECT_EQ(group_names(groups), (std::vector<std::string>{"sarge0", "sarge2", "sarge1", "sarge3"}));
    auto *added = reinterpret_cast<group_record *>(groups->prev->value);
    EXPECT_EQ(added->status, GROUP_STATUS_ADDED);
    EXPECT_EQ(added->host_word, 0u);
    EXPECT_EQ(added->group_type, 0);
    EXPECT_EQ(added->appearance, 0u);
    ASSERT_NE(added->members, nullptr);
}

TEST_F(group_list_test, automatic_names_count_on_past_the_usual_range) {
    char name[32];
    std::vector<group_record *> all;
    for (int n = 0; n < 999; ++n) all.push_back(loose_group("sarge" + std::to_string(n), {}));
    dlist_node *list = host.make_group_list(all);
    automatic_group_name(list, name);
    EXPECT_STREQ(name, "sarge999");
    host.free_list(list);
    dlist_node *empty = host.make_group_list({});
    automatic_group_name(empty, name);
    EXPECT_STREQ(name, "sarge0");
    host.free_list(empty);
}

TEST_F(group_list_test, a_cancelled_new_group_is_released_and_cancel_keeps_added_ones) {
    add_group("sarge0", {});
    size_t blocks = host.memory.live_blocks();
    ui_driver d;
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, ADD); });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select(dlg, GC_AVAILABLE, "Tank1 (tank_t80)");
        ui_command(dlg, GC_ADD);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, ADD); });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(list(), 0);
    EXPECT_DRIVER_OK(d);
    // The cancelled group (7844 bytes and its member list) went back; the second stays.
    EXPECT_EQ(group_names(groups), (std::vector<std::string>{"sarge0", "sarge1"}));
    EXPECT_EQ(host.memory.live_blocks(), blocks + 3);  // record, member list head, list node
}

TEST_F(group_list_test, remove_marks_the_group_and_frees_its_units_for_others) {
    group_record *tanks = add_group("sarge0", {1, 2});
    group_record *other = add_group("sarge1", {});
    std::vector<std::string> before, after, available;
    ui_driver d;
    d.then("Group List", [&](HWND dlg) {
        before = ui_list_items(dlg, GROUPS);
        ui_list_select(dlg, GROUPS, "sarge0");
        ui_command(dlg, REMOVE);
    });
    d.then("Group List", [&](HWND dlg) {
        after = ui_list_items(dlg, GROUPS);
        ui_command(dlg, REMOVE);  // no selection after the refill: nothing happens
    });
    d.then("Group List", [&](HWND dlg) {
        ui_list_select(dlg, GROUPS, "sarge1");
        ui_list_double_click(dlg, GROUPS);
    });
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, GC_AVAILABLE);
        ui_command(dlg, IDCANCEL);
    });
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(list(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(before, (std::vector<std::string>{"sarge0", "sarge1"}));
    EXPECT_EQ(after, (std::vector<std::string>{"sarge1"}));
    EXPECT_EQ(tanks->status, GROUP_STATUS_REMOVED);
    EXPECT_EQ(other->status, 0);
    EXPECT_EQ(available.size(), 5u);
    EXPECT_EQ(member_ids(tanks), (std::vector<int32_t>{1, 2}));  // nothing released
}

TEST_F(group_list_test, commands_wait_while_group_composition_is_open) {
    add_group("sarge0", {});
    int open_compositions = 0;
    ui_driver d;
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, EDIT); });
    d.then("Dialog", [&](HWND) {
        // The list stays enabled under Group Composition; its commands are refused.
        HWND list_dialog = FindWindowA(nullptr, "Group List");
        ui_command(list_dialog, ADD);
        ui_command(list_dialog, EDIT);
        ui_list_double_click(list_dialog, GROUPS);
        ui_command(list_dialog, IDCANCEL);
    });
    d.then("Dialog", [&](HWND dlg) {
        for (HWND w : ui_thread_windows())
            if (ui_window_text(w) == "Dialog") ++open_compositions;
        ui_command(dlg, IDOK);
    });
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(list(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(open_compositions, 1);
    EXPECT_EQ(group_names(groups), (std::vector<std::string>{"sarge0"}));
}

TEST_F(group_list_test, not_started_shows_nothing) {
    add_group("sarge0", {});
    editor_tidyup();
    EXPECT_EQ(list_groups(groups), 0);
}
