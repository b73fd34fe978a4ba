// Edit Heli Group through request 14: units moved by id as fresh entries,
// all or nothing; the name and rally point on OK only; the route and the
// in-transit order edited on copies; missing lists and orders leave their
// controls inert.
#include "heli/heli_group.h"
#include "tests/heli/heli_fixture.h"

class heli_group_test : public heli_test {
protected:
    int edit(heli_group_record *group, ui_driver &d) {
        const int result = editor_window(REQUEST_EDIT_HELI_GROUP, arg(group), arg(available));
        EXPECT_DRIVER_OK(d);
        return result;
    }
    void select_lines(HWND dlg, int box, std::initializer_list<int> indexes) {
        for (int i : indexes) ui_list_select_index(dlg, box, i);
    }
};

TEST_F(heli_group_test, units_move_by_id_as_fresh_entries_and_cancel_keeps_the_moves_only) {
    heli_group_record *g = add_group("Group0", {7, 8});
    const std::vector<void *> old_units = values(available);
    std::vector<int32_t> members_after_add, available_after_add;
    std::string rally;
    bool replaced = false;
    ui_driver d;
    d.then("Edit Heli Group", [&](HWND dlg) {
         rally = ui_combo_selected(dlg, IDC_HG_RALLY_POINT);
         // U1 leaves the host's list behind the dialog's back: its line no longer
         // matches an entry and is skipped, while the others still find theirs.
         dlist_node *u1 = available->next;
         u1->prev->next = u1->next;
         u1->next->prev = u1->prev;
         host.memory.free(reinterpret_cast<void *>(u1->value), sizeof(unit_entry));
         host.memory.free(u1, 12);
         select_lines(dlg, IDC_HG_AVAILABLE, {0, 2, 3});
         ui_command(dlg, IDC_HG_ADD);
     })
        .then("Edit Heli Group", [&](HWND dlg) {
            members_after_add = ids(g->members);
            available_after_add = ids(available);
            // U2 stays on its entry; U3 and U4 joined on new ones, theirs released.
            const std::vector<void *> joined = values(g->members);
            replaced = host.memory.owns(old_units[1]) && !host.memory.owns(old_units[2]) &&
                       !host.memory.owns(old_units[3]) && joined[0] != old_units[3] && joined[1] != old_units[2];
            select_lines(dlg, IDC_HG_MEMBERS, {0, 1, 2});
            ui_list_double_click(dlg, IDC_HG_MEMBERS);  // moves every selected line
        })
        .then("Edit Heli Group", [&](HWND dlg) {
            ui_set_text(dlg, IDC_HG_NAME, "Renamed");
            ui_combo_select(dlg, IDC_HG_RALLY_POINT, "RP_North");
            press_cancel(dlg);
        });
    EXPECT_EQ(edit(g, d), 0);
    EXPECT_EQ(rally, "RP_South");
    EXPECT_EQ(members_after_add, (std::vector<int32_t>{4, 3, 7, 8}));
    EXPECT_EQ(available_after_add, (std::vector<int32_t>{2}));
    EXPECT_EQ(ids(available), (std::vector<int32_t>{7, 3, 4, 2}));
    EXPECT_EQ(ids(g->members), (std::vector<int32_t>{8}));
    EXPECT_TRUE(replaced);
    EXPECT_STREQ(g->name, "Group0");
    EXPECT_EQ(g->rally_point_id, 202u);
}

TEST_F(heli_group_test, a_move_the_host_cannot_allocate_for_moves_nothing) {
    heli_group_record *g = add_group("Group0", {7});
    const std::vector<void *> units = values(available), members = values(g->members);
    // The selection buffer, the list that gathers the fresh entries, then an
    // entry and a node per unit: failing any of them, both lists stay whole.
    ui_driver d;
    for (int granted = 0; granted < 6; ++granted)
        d.then("Edit Heli Group", [&, granted](HWND dlg) {
            EXPECT_EQ(values(available), units) << granted - 1;
            EXPECT_EQ(values(g->members), members) << granted - 1;
            host.memory.fail_after = granted;
            select_lines(dlg, IDC_HG_AVAILABLE, {1, 2});
            ui_command(dlg, IDC_HG_ADD);
        });
    d.then("Edit Heli Group", [&](HWND dlg) {
        EXPECT_EQ(values(available), units);
        host.memory.fail_after = -1;
        select_lines(dlg, IDC_HG_AVAILABLE, {1, 2});
        ui_command(dlg, IDC_HG_ADD);
    });
    d.then("Edit Heli Group", press_ok);
    EXPECT_EQ(edit(g, d), 1);
    EXPECT_EQ(ids(g->members), (std::vector<int32_t>{3, 2, 7}));
}

TEST_F(heli_group_test, ok_stores_the_name_cut_to_fit_and_keeps_a_rally_point_it_cannot_show) {
    heli_group_record *g = add_group("Group0", {});
    g->rally_point_id = 999;
    std::string rally;
    ui_driver d;
    d.then("Edit Heli Group", [&](HWND dlg) {
        rally = ui_combo_selected(dlg, IDC_HG_RALLY_POINT);
        ui_set_text(dlg, IDC_HG_NAME, std::string(40, 'N'));
        press_ok(dlg);
    });
    EXPECT_EQ(edit(g, d), 1);
    EXPECT_EQ(rally, "");
    EXPECT_EQ(std::string(g->name), std::string(31, 'N'));
    EXPECT_EQ(g->rally_point_id, 999u);

    host.refuse_rally_points = true;
    d.then("Edit Heli Group", [&](HWND dlg) {
        EXPECT_TRUE(ui_combo_items(dlg, IDC_HG_RALLY_POINT).empty());
        press_ok(dlg);
    });
    EXPECT_EQ(edit(g, d), 1);
    EXPECT_EQ(g->rally_point_id, 999u);

    host.refuse_rally_points = false;
    d.then("Edit Heli Group", [&](HWND dlg) {
        ui_combo_select(dlg, IDC_HG_RALLY_POINT, "RP_North");
        press_ok(dlg);
    });
    EXPECT_EQ(edit(g, d), 1);
    EXPECT_EQ(g->rally_point_id, 201u);
}

TEST_F(heli_group_test, route_and_in_transit_order_are_edited_on_copies_and_missing_ones_leave_buttons_inert) {
    heli_group_record *g = add_group("Group0", {7});
    waypoint_record *w1 = add_waypoint(g->waypoints, "WP_North", 1);
    add_waypoint(g->waypoints, "", 2);
    dlist_node *route = g->waypoints;
    heli_order_record *in_transit = g->in_transit;
    const size_t records = heli.live.size();
    ui_driver d;
    d.then("Edit Heli Group", [&](HWND dlg) { ui_command(dlg, IDC_HG_EDIT_WAYPOINTS); })
        .then("Edit Waypoints", press_cancel)
        .then("Edit Heli Group", [&](HWND dlg) { ui_command(dlg, IDC_HG_IN_TRANSIT); })
        .then("Edit Deploy Order", press_cancel)  // the in-transit copy goes
        .then("Edit Heli Group", [&](HWND dlg) {
            heli.refuse_waypoint_copy = true;  // no working route: nothing opens
            ui_command(dlg, IDC_HG_EDIT_WAYPOINTS);
        })
        .then("Edit Heli Group", [&](HWND dlg) {
            heli.refuse_waypoint_copy = false;
            ui_command(dlg, IDC_HG_EDIT_WAYPOINTS);
        })
        .then("Edit Waypoints", press_ok)
        .then("Edit Heli Group", press_cancel);
    EXPECT_EQ(edit(g, d), 0);
    EXPECT_EQ(g->in_transit, in_transit);
    EXPECT_EQ(heli.copies, 1);
    EXPECT_EQ(heli.destroys, 1);
    // Confirmed at once, Cancel or not: a new list of copies, the old route destroyed.
    EXPECT_NE(g->waypoints, route);
    ASSERT_EQ(values(g->waypoints).size(), 2u);
    EXPECT_STREQ(static_cast<waypoint_record *>(values(g->waypoints)[0])->marker_name, "WP_North");
    EXPECT_FALSE(live(w1));
    EXPECT_EQ(heli.live.size(), records);

    // No members, route or in-transit order: every control that needs one does nothing.
    heli.free_units(g->members);
    g->members = nullptr;
    heli.destroy_waypoints(g->waypoints);
    g->waypoints = nullptr;
    heli.destroy_order(g->in_transit);
    g->in_transit = nullptr;
    const size_t blocks = host.memory.live_blocks();
    d.then("Edit Heli Group", [&](HWND dlg) {
        select_lines(dlg, IDC_HG_AVAILABLE, {0});
        for (int id : {IDC_HG_ADD, IDC_HG_REMOVE, IDC_HG_EDIT_WAYPOINTS, IDC_HG_IN_TRANSIT}) ui_command(dlg, id);
        ui_list_double_click(dlg, IDC_HG_AVAILABLE);
    });
    d.then("Edit Heli Group", press_ok);
    EXPECT_EQ(edit(g, d), 1);
    EXPECT_EQ(host.memory.live_blocks(), blocks);
    EXPECT_EQ(ids(available), (std::vector<int32_t>{1, 2, 3, 4}));
}

TEST_F(heli_group_test, nothing_opens_without_a_record_or_before_the_editor_starts) {
    heli_group_record *g = add_group("Group0", {});
    EXPECT_EQ(editor_window(REQUEST_EDIT_HELI_GROUP, 0, arg(available)), 0);
    editor_tidyup();
    EXPECT_EQ(editor_window(REQUEST_EDIT_HELI_GROUP, arg(g), arg(available)), 0);
    EXPECT_EQ(edit_heli_group(host.main_window, g, available), 0);
}
