// List Heli Groups through request 15, down to Edit Waypoint: new records
// and copies committed only on OK (the copy in the original's node, the
// private units in the host's list), destroyed on Cancel, every record the
// host made or copied destroyed exactly once.
#include "heli/heli_group_list.h"
#include "tests/heli/heli_fixture.h"

class heli_group_list_test : public heli_test {
protected:
    int list(ui_driver &d) {
        const int result = editor_window(REQUEST_LIST_HELI_GROUPS, arg(groups), arg(available));
        EXPECT_DRIVER_OK(d);
        return result;
    }
    heli_group_record *group_at(size_t i) { return static_cast<heli_group_record *>(values(groups).at(i)); }
};

TEST_F(heli_group_list_test, add_names_the_group_and_commits_it_with_its_units_only_on_ok) {
    add_group("Group0", {});
    add_group("Group1", {}, HELI_GROUP_STATUS_REMOVED);
    heli_group_record *odd = add_group("", {});
    std::memset(odd->name, 'X', sizeof odd->name);  // no terminator
    const std::vector<void *> units = values(available);
    lines names, shown;
    ui_driver d;
    for (int confirm : {0, 1}) {
        d.then("List Heli Groups", [](HWND dlg) { ui_command(dlg, IDC_LHG_ADD); });
        d.then("Edit Heli Group", [&, confirm](HWND dlg) {
            names.push_back(ui_text(dlg, IDC_HG_NAME));
            ui_list_select_index(dlg, IDC_HG_AVAILABLE, 0);
            ui_command(dlg, IDC_HG_ADD);
            ui_command(dlg, confirm ? IDOK : IDCANCEL);
        });
        d.then("List Heli Groups", [&, confirm](HWND dlg) {
            if (confirm) shown = ui_list_items(dlg, IDC_LHG_GROUPS);
            else EXPECT_EQ(values(available), units);  // the private units went, not these
        });
    }
    d.then("List Heli Groups", press_cancel);
    EXPECT_EQ(list(d), 0);
    EXPECT_EQ(names, (lines{"Group2", "Group2"}));
    EXPECT_EQ(shown, (lines{"Group0", std::string(31, 'X'), "Group2"}));
    heli_group_record *added = group_at(3);
    EXPECT_EQ(added->status, uint32_t(HELI_GROUP_STATUS_ADDED));
    EXPECT_EQ(ids(added->members), (std::vector<int32_t>{1}));
    EXPECT_EQ(ids(available), (std::vector<int32_t>{2, 3, 4}));
    for (void *unit : units) EXPECT_FALSE(host.memory.owns(unit));  // replaced by the private copies
    EXPECT_EQ(heli.group_counts.creates - heli.group_counts.destroys, 4);  // three made here, one added
}

TEST_F(heli_group_list_test, edit_puts_a_confirmed_copy_in_the_original_node_and_remove_gives_members_back) {
    heli_group_record *alpha = add_group("Alpha", {7, 8});
    heli_group_record *bravo = add_group("Bravo", {}, HELI_GROUP_STATUS_ADDED);
    const std::vector<void *> units = values(available);
    lines shown;
    ui_driver d;
    auto edit_line = [&](int line, const char *name, int member, int end) {
        d.then("List Heli Groups", [line](HWND dlg) {
            ui_list_select_index(dlg, IDC_LHG_GROUPS, line);
            ui_list_double_click(dlg, IDC_LHG_GROUPS);
        });
        d.then("Edit Heli Group", [=](HWND dlg) {
            ui_set_text(dlg, IDC_HG_NAME, name);
            if (member >= 0) {
                ui_list_select_index(dlg, IDC_HG_MEMBERS, member);
                ui_command(dlg, IDC_HG_REMOVE);
            }
            ui_command(dlg, end);
        });
    };
    edit_line(0, "Alpha2", 1, IDCANCEL);
    d.then("List Heli Groups", [&](HWND dlg) {
        EXPECT_EQ(group_at(0), alpha);
        EXPECT_STREQ(alpha->name, "Alpha");
        EXPECT_EQ(ids(alpha->members), (std::vector<int32_t>{7, 8}));
        EXPECT_EQ(values(available), units);
        // The available units cannot be copied whole: Edit opens nothing.
        host.memory.fail_after = 2;
        ui_list_select_index(dlg, IDC_LHG_GROUPS, 0);
        ui_command(dlg, IDC_LHG_EDIT);
    });
    d.then("List Heli Groups", [&](HWND) {
        host.memory.fail_after = -1;
        EXPECT_EQ(values(available), units);
    });
    edit_line(0, "Alpha2", 0, IDOK);
    edit_line(1, "Bravo", -1, IDOK);
    d.then("List Heli Groups", [&](HWND dlg) {
        heli_group_record *copy = group_at(0);
        EXPECT_NE(copy, alpha);
        EXPECT_FALSE(live(alpha));
        EXPECT_STREQ(copy->name, "Alpha2");
        EXPECT_EQ(copy->status, 0u);  // as the host's copy has it
        EXPECT_EQ(ids(copy->members), (std::vector<int32_t>{8}));
        EXPECT_EQ(ids(available), (std::vector<int32_t>{7, 1, 2, 3, 4}));
        EXPECT_NE(group_at(1), bravo);
        EXPECT_EQ(group_at(1)->status, uint32_t(HELI_GROUP_STATUS_ADDED));
        ui_list_select_index(dlg, IDC_LHG_GROUPS, 0);
        ui_command(dlg, IDC_LHG_REMOVE);
    });
    d.then("List Heli Groups", [&](HWND dlg) {
        shown = ui_list_items(dlg, IDC_LHG_GROUPS);
        press_ok(dlg);
    });
    EXPECT_EQ(list(d), 1);
    EXPECT_EQ(shown, (lines{"Bravo"}));
    EXPECT_EQ(ids(available), (std::vector<int32_t>{7, 1, 2, 3, 4, 8}));
    EXPECT_EQ(group_at(0)->status, uint32_t(HELI_GROUP_STATUS_REMOVED));
    EXPECT_STREQ(group_at(0)->name, "Alpha2");
    EXPECT_TRUE(values(group_at(0)->members).empty());
}

// Down the whole nesting and back, once cancelling at every level and once
// confirming at every level.
TEST_F(heli_group_list_test, the_whole_nesting_commits_level_by_level_only_on_ok) {
    heli_group_record *group = add_group("Group0", {7});
    waypoint_record *first = add_waypoint(group->waypoints, "WP_North", 1);
    waypoint_record *second = add_waypoint(group->waypoints, "", 2);
    const size_t records = heli.live.size();
    for (int end : {IDCANCEL, IDOK}) {
        SCOPED_TRACE(end);
        ui_driver d;
        d.then("List Heli Groups", [](HWND dlg) {
            ui_list_select_index(dlg, IDC_LHG_GROUPS, 0);
            ui_command(dlg, IDC_LHG_EDIT);
        });
        d.then("Edit Heli Group", [](HWND dlg) {
            ui_set_text(dlg, IDC_HG_NAME, "Renamed");
            ui_command(dlg, IDC_HG_EDIT_WAYPOINTS);
        });
        d.then("Edit Waypoints", [](HWND dlg) {
            ui_list_select_index(dlg, IDC_WPS_LIST, 1);
            ui_command(dlg, IDC_WPS_EDIT);
        });
        d.then("Edit Waypoint", [end](HWND dlg) {
            ui_combo_select(dlg, IDC_WP_MARKER, "LZ_Alpha");
            ui_command(dlg, end);
        });
        // A confirmed route leaves the name typed before it in place.
        for (const char *title : {"Edit Waypoints", "Edit Heli Group", "List Heli Groups"})
            d.then(title, [end](HWND dlg) { ui_command(dlg, end); });
        EXPECT_EQ(list(d), end == IDOK ? 1 : 0);
        EXPECT_EQ(heli.live.size(), records);  // every copy made was destroyed, or took a record's place
        if (end == IDCANCEL) {
            EXPECT_EQ(group_at(0), group);
            EXPECT_STREQ(group->name, "Group0");
            EXPECT_EQ(values(group->waypoints), (std::vector<void *>{first, second}));
            EXPECT_STREQ(second->marker_name, "");
        }
    }
    heli_group_record *now = group_at(0);
    EXPECT_NE(now, group);
    EXPECT_STREQ(now->name, "Renamed");
    EXPECT_EQ(ids(now->members), (std::vector<int32_t>{7}));
    std::vector<void *> route = values(now->waypoints);
    ASSERT_EQ(route.size(), 2u);
    EXPECT_STREQ(static_cast<waypoint_record *>(route[0])->marker_name, "WP_North");
    EXPECT_STREQ(static_cast<waypoint_record *>(route[1])->marker_name, "LZ_Alpha");
    for (const void *old : {static_cast<const void *>(group), static_cast<const void *>(first),
                            static_cast<const void *>(second)})
        EXPECT_FALSE(live(old));
    // Cancelled: one group copy, two route copies and one waypoint copy, all
    // destroyed. Confirmed: the same copies, and each one replaced destroyed.
    EXPECT_EQ(heli.group_counts.copies, 2);
    EXPECT_EQ(heli.group_counts.destroys, 2);
}
