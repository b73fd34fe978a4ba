// Edit Heli Group through request 14: units moved by id as fresh entries,
// all or nothing; the name and rally point on OK only; the route and the
// in-transit order edited on copies; missing lists and orders leave their
// controls inert.
#include "heli/heli_group.h"
#include "tests/heli/heli_fixture.h"

namespace {
const char *const group_title = "Edit Heli Group";
step select_lines(int box, std::vector<int> indexes, step next) {
    return [=](HWND dlg) {
        for (int i : indexes) ui_list_select_index(dlg, box, i);
        next(dlg);
    };
}
// The rally point selected, and how many are offered.
std::string rally(HWND dlg) {
    return ui_combo_selected(dlg, IDC_HG_RALLY_POINT) + "/" + std::to_string(ui_combo_items(dlg, IDC_HG_RALLY_POINT).size());
}
}  // namespace

class heli_group_test : public heli_test {
protected:
    int open(heli_group_record *group) {
        return editor_window(REQUEST_EDIT_HELI_GROUP, dlist_value(group), dlist_value(available));
    }
    int edit(heli_group_record *group, const std::vector<step> &steps) {
        return drive(group_title, steps, [&] { return open(group); });
    }
};

TEST_F(heli_group_test, units_move_by_id_as_fresh_entries_and_cancel_keeps_the_moves_only) {
    heli_group_record *g = add_group("Group0", {7, 8});
    const std::vector<void *> old = values(available);
    lines seen;
    const auto look = [&](HWND dlg) {
        return listed(dlg, IDC_HG_AVAILABLE) + "|" + listed(dlg, IDC_HG_MEMBERS) + "|" + ids(available) + "|" + ids(g->members);
    };
    EXPECT_EQ(0, edit(g, {
        noting(seen, rally, [&](HWND dlg) {
             // U1 leaves the host's list behind the dialog's back: its line no longer
             // matches an entry and is skipped, while the others still find theirs.
             dlist_node *u1 = available->next;
             u1->prev->next = u1->next;
             u1->next->prev = u1->prev;
             host.memory.free(reinterpret_cast<void *>(u1->value), sizeof(unit_entry));
             host.memory.free(u1, 12);
             select_lines(IDC_HG_AVAILABLE, {0, 2, 3}, press(IDC_HG_ADD))(dlg);
         }),
        noting(seen, look, [&](HWND dlg) {
             // U2 stays on its entry; U3 and U4 joined on new ones, theirs released.
             const std::vector<void *> joined = values(g->members);
             EXPECT_TRUE(host.memory.owns(old[1]) && !host.memory.owns(old[2]) && !host.memory.owns(old[3]) &&
                         joined[0] != old[3] && joined[1] != old[2]);
             select_lines(IDC_HG_MEMBERS, {0, 1, 2}, [](HWND dlg) { ui_list_double_click(dlg, IDC_HG_MEMBERS); })(dlg);
         }),  // a double-click moves every selected line
        noting(seen, look, typing({{IDC_HG_NAME, "Renamed"}}, choosing(IDC_HG_RALLY_POINT, "RP_North", press(IDCANCEL)))),
    }));
    EXPECT_EQ(seen, (lines{"RP_South/2", "U2|U4/U3/U7/U8|2|4,3,7,8", "U7/U3/U4/U2|U8|7,3,4,2|8"}));
    EXPECT_EQ(std::string(g->name) + "," + std::to_string(g->rally_point_id), "Group0,202");
}

// The name is cut to its field; a rally point the host does not list, or
// a refused list, shows none and keeps the stored id.
TEST_F(heli_group_test, ok_stores_the_name_cut_to_fit_and_keeps_a_rally_point_it_cannot_show) {
    heli_group_record *g = add_group("Group0", {});
    g->rally_point_id = 999;
    lines seen;
    EXPECT_EQ(1, edit(g, {noting(seen, rally, typing({{IDC_HG_NAME, std::string(40, 'N')}}, press(IDOK)))}));
    EXPECT_EQ(g->name + std::to_string(g->rally_point_id), std::string(31, 'N') + "999");
    host.refuse_rally_points = true;
    EXPECT_EQ(1, edit(g, {noting(seen, rally, press(IDOK))}));
    EXPECT_EQ(g->rally_point_id, 999u);
    host.refuse_rally_points = false;
    EXPECT_EQ(1, edit(g, {choosing(IDC_HG_RALLY_POINT, "RP_North", press(IDOK))}));
    EXPECT_EQ(g->rally_point_id, 201u);
    EXPECT_EQ(seen, (lines{"/2", "/0"}));
    // Nothing opens without a record, nor once the editor is tidied up.
    EXPECT_EQ(edit(nullptr, {}), 0);
    editor_tidyup();
    EXPECT_EQ(edit(g, {}), 0);
}

// Confirmed, a nested edit replaces the route or the order at once (the old
// one destroyed), whatever Edit Heli Group does next; cancelled, its copies
// are destroyed. A cancelled route and a confirmed order reload the dialog,
// dropping a name typed but not stored.
TEST_F(heli_group_test, route_and_in_transit_order_are_edited_on_copies_and_missing_ones_leave_buttons_inert) {
    heli_group_record *g = add_group("Group0", {7});
    waypoint_record *w1 = add_waypoint(g->waypoints, "WP_North", 1), *w2 = add_waypoint(g->waypoints, "", 2);
    dlist_node *route = g->waypoints;
    heli_order_record *in_transit = g->in_transit;
    lines seen;
    // The name and rally point shown, and whether the route and the order were replaced.
    const auto look = [&](HWND dlg) {
        return ui_text(dlg, IDC_HG_NAME) + "," + rally(dlg) + "," + std::to_string(g->waypoints != route) +
               std::to_string(g->in_transit != in_transit);
    };
    EXPECT_EQ(0, drive({
        {group_title, typing({{IDC_HG_NAME, "Typed"}}, press(IDC_HG_EDIT_WAYPOINTS))},
        {"Edit Waypoints", press(IDCANCEL)},
        {group_title, noting(seen, look, typing({{IDC_HG_NAME, "Typed"}}, [&](HWND dlg) {
             heli.refuse_waypoint_copy = true;  // no working route: nothing opens
             ui_command(dlg, IDC_HG_EDIT_WAYPOINTS);
         }))},
        {group_title, [&](HWND dlg) { heli.refuse_waypoint_copy = false, ui_command(dlg, IDC_HG_IN_TRANSIT); }},
        {"Edit Deploy Order", press(IDCANCEL)},
        {group_title, noting(seen, look, press(IDC_HG_IN_TRANSIT))},
        {"Edit Deploy Order", press(IDOK)},
        {group_title, noting(seen, look, typing({{IDC_HG_NAME, "Kept"}}, press(IDC_HG_EDIT_WAYPOINTS)))},
        {"Edit Waypoints", picking(IDC_WPS_LIST, 1, press(IDC_WPS_EDIT))},
        {"Edit Waypoint", choosing(IDC_WP_MARKER, "LZ_Alpha", press(IDOK))},
        {"Edit Waypoints", press(IDOK)},
        {group_title, noting(seen, look, press(IDCANCEL))},
    }, [&] { return open(g); }));
    EXPECT_EQ(seen, (lines{"Group0,RP_South/2,00", "Typed,RP_South/2,00", "Group0,RP_South/2,01", "Kept,RP_South/2,11"}));
    EXPECT_STREQ(g->name, "Group0");
    EXPECT_TRUE(!live(in_transit) && !live(w1) && !live(w2));
    std::string markers;
    for (waypoint_record *w : values<waypoint_record>(g->waypoints)) markers += std::string(w->marker_name) + "/";
    EXPECT_EQ(markers, "WP_North/LZ_Alpha/");

    // No members, route or in-transit order: every control that needs one does nothing.
    heli.free_units(g->members);
    heli.destroy_waypoints(g->waypoints);
    heli.destroy_order(g->in_transit);
    g->members = g->waypoints = nullptr;
    g->in_transit = nullptr;
    const size_t blocks = host.memory.live_blocks();
    EXPECT_EQ(1, edit(g, {[&](HWND dlg) {
                              ui_list_select_index(dlg, IDC_HG_AVAILABLE, 0);
                              for (int id : {IDC_HG_ADD, IDC_HG_REMOVE, IDC_HG_EDIT_WAYPOINTS, IDC_HG_IN_TRANSIT})
                                  ui_command(dlg, id);
                              ui_list_double_click(dlg, IDC_HG_AVAILABLE);
                          },
                          press(IDOK)}));
    EXPECT_EQ(host.memory.live_blocks(), blocks);
    EXPECT_EQ(ids(available), "1,2,3,4");
}
