// The Group List: automatic names, adding through Group Composition, removal
// by status, and no second Group Composition over the one working copy.
#include "ground/group_composition.h"
#include "ground/group_list.h"
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "ground/object_names.h"
#include "ground/orders_list.h"
#include "ground/sarge_order.h"
#include "tests/ground/group_fixture.h"

class group_list_test : public group_test {
protected:
    int list(ui_driver &d) {
        const int result = editor_window(REQUEST_GROUP_LIST, groups_arg(), 0);
        EXPECT_DRIVER_OK(d);
        return result;
    }
};

TEST_F(group_list_test, new_groups_take_the_first_name_never_used_and_cancel_keeps_them) {
    add_group("sarge0", {});
    add_group("sarge2", {}, GROUP_STATUS_REMOVED);
    size_t blocks = host.memory.live_blocks();
    lines shown, names;
    ui_driver d;
    for (int close : {IDCANCEL, IDOK, IDOK})  // a cancelled new group goes back to the host
        d.then("Group List", press(IDC_GL_ADD)).then("Dialog", [&names, close](HWND dlg) {
            names.push_back(ui_text(dlg, IDC_GC_NAME));
            ui_list_select(dlg, IDC_GC_AVAILABLE, "Tank1 (tank_t80)");
            ui_command(dlg, IDC_GC_ADD);
            ui_command(dlg, close);
        });
    d.then("Group List", [&](HWND dlg) { shown = ui_list_items(dlg, IDC_GL_GROUPS); press_cancel(dlg); });
    EXPECT_EQ(list(d), 0);
    EXPECT_EQ(names, (lines{"sarge1", "sarge1", "sarge3"}));
    EXPECT_EQ(shown, (lines{"sarge0", "sarge1", "sarge3"}));
    EXPECT_EQ(group_names(groups), (lines{"sarge0", "sarge2", "sarge1", "sarge3"}));
    EXPECT_EQ(host.memory.live_blocks(), blocks + 8);  // record, member list head, list node each; Tank1
    auto *added = reinterpret_cast<group_record *>(groups->prev->value);
    EXPECT_EQ(added->status, GROUP_STATUS_ADDED);
    EXPECT_EQ(added->host_word | added->appearance | uint32_t(added->group_type), 0u);
    EXPECT_EQ(member_ids(added), std::vector<int32_t>{});  // Tank1 went to sarge1

    // Past the usual range the count simply goes on.
    char name[32];
    std::vector<group_record *> all;
    for (int n = 0; n < 999; ++n) all.push_back(loose_group("sarge" + std::to_string(n)));
    dlist_node *many = host.make_group_list(all);
    automatic_group_name(many, name);
    EXPECT_STREQ(name, "sarge999");
    host.free_list(many);
}

// Remove marks the group; while Group Composition is up the list's commands
// and a double click are refused.
TEST_F(group_list_test, remove_marks_the_group_and_nothing_acts_while_composition_is_open) {
    group_record *other = add_group("sarge1", {});
    group_record *tanks = add_group("sarge0", {1, 2});
    lines before, after, available;
    int open_compositions = 0;
    ui_driver d;
    d.then("Group List", [&](HWND dlg) {
        before = ui_list_items(dlg, IDC_GL_GROUPS);
        ui_list_select(dlg, IDC_GL_GROUPS, "sarge0");
        ui_command(dlg, IDC_GL_REMOVE);
    });
    d.then("Group List", [&](HWND dlg) {
        after = ui_list_items(dlg, IDC_GL_GROUPS);
        ui_command(dlg, IDC_GL_REMOVE);  // no selection after the refill: nothing happens
    });
    d.then("Group List", [&](HWND dlg) {
        ui_list_select(dlg, IDC_GL_GROUPS, "sarge1");
        ui_list_double_click(dlg, IDC_GL_GROUPS);
    });
    d.then("Dialog", [&](HWND) {
        HWND list_dialog = FindWindowA(nullptr, "Group List");  // enabled under Group Composition
        for (int id : {int(IDC_GL_ADD), int(IDC_GL_EDIT), IDCANCEL}) ui_command(list_dialog, id);
        ui_list_double_click(list_dialog, IDC_GL_GROUPS);
    });
    d.then("Dialog", [&](HWND dlg) {
        available = ui_list_items(dlg, IDC_GC_AVAILABLE);  // the removed group's units are free
        for (HWND w : ui_thread_windows()) open_compositions += ui_window_text(w) == "Dialog";
        press_cancel(dlg);
    });
    d.then("Group List", press_ok);
    EXPECT_EQ(list(d), 1);
    EXPECT_EQ(before, (lines{"sarge0", "sarge1"}));  // sorted: the host's order is sarge1, sarge0
    EXPECT_EQ(after, (lines{"sarge1"}));
    EXPECT_EQ(tanks->status, GROUP_STATUS_REMOVED);
    EXPECT_EQ(other->status, 0);
    EXPECT_EQ(available.size(), 5u);
    EXPECT_EQ(open_compositions, 1);
    EXPECT_EQ(member_ids(tanks), (std::vector<int32_t>{1, 2}));  // nothing released
    EXPECT_EQ(group_names(groups), (lines{"sarge1", "sarge0"}));
}

TEST_F(group_list_test, no_dialog_opens_before_the_editor_starts) {
    group_record *g = add_group("sarge0", {});
    group_working_copy working{};
    ASSERT_TRUE(load_group(working, *g));
    sarge_order_record o = order(3, "kept");
    editor_tidyup();
    EXPECT_EQ(list_groups(groups) + edit_group(g, groups) + edit_group_orders(host.main_window, &working) +
                  choose_order_type(host.main_window, &o) + edit_sarge_order(host.main_window, &o) +
                  list_object_names(nullptr),
              0);
    EXPECT_EQ(o.type, 3);
    free_group_working_copy(working);
}
