// Edit Waypoints and Edit Waypoint through the real dialogs: where new
// waypoints go and what they inherit, copies replacing records in their own
// nodes, and each setting shown from and stored into its word.
#include "heli/waypoints.h"
#include "tests/heli/heli_fixture.h"

class waypoints_test : public heli_test {
protected:
    dlist_node *route = nullptr;  // a group's, destroyed with it
    void SetUp() override {
        heli_test::SetUp();
        route = add_group("Group0", {})->waypoints;
    }
};

// A new waypoint starts with the settings of the one it follows (the host's
// defaults when it comes first) but its own marker and orders.
TEST_F(waypoints_test, new_waypoints_follow_their_predecessor_and_edits_replace_records_in_place) {
    waypoint_record *w1 = add_waypoint(route, "WP_North", 1), *w2 = add_waypoint(route, "", 2), *w3 = add_waypoint(route, "", 3);
    const std::string w2_settings = settings_of(w2);
    const char *const list = "Edit Waypoints", *const one = "Edit Waypoint";
    lines seen;
    // The lines, and whether W2 (while the route still holds it) is unchanged.
    const auto look = [&](HWND dlg) {
        return listed(dlg, IDC_WPS_LIST) + "|" + (live(w2) ? std::to_string(settings_of(w2) == w2_settings) : "gone");
    };
    EXPECT_EQ(0, drive({
        {list, noting(seen, look, picking(IDC_WPS_LIST, 2, press(IDC_WPS_INSERT)))},  // W3: between W2 and W3
        {one, press(IDOK)},
        {list, picking(IDC_WPS_LIST, 0, press(IDC_WPS_INSERT))},  // the new one comes first
        {one, press(IDOK)},
        {list, picking(IDC_WPS_LIST, 2, press(IDC_WPS_EDIT))},  // W2
        {one, choosing(IDC_WP_HEIGHT, "High", typing({{IDC_WP_SPEED, "5"}}, press(IDCANCEL)))},
        {list, noting(seen, look, picking(IDC_WPS_LIST, 2))},  // a double-click edits
        {one, choosing(IDC_WP_MARKER, "LZ_Alpha", press(IDOK))},
        {list, noting(seen, look, picking(IDC_WPS_LIST, 4, press(IDC_WPS_REMOVE)))},  // W3
        {list, press(IDC_WPS_ADD)},  // after the last
        {one, press(IDOK)},
        {list, press(IDCANCEL)},  // the route changed all the same
    }, [&] { return edit_waypoints(host.main_window, route); }));
    // A cancelled edit leaves the list as it was, selection and all.
    EXPECT_EQ(seen, (lines{"WP_North/Waypoint 1/Waypoint 2|1", "Waypoint 1/WP_North/>Waypoint 2/Waypoint 3/Waypoint 4|1",
                           "Waypoint 1/WP_North/LZ_Alpha/Waypoint 2/Waypoint 3|gone"}));
    const std::vector<waypoint_record *> now = values<waypoint_record>(route);
    ASSERT_EQ(now.size(), 5u);
    EXPECT_TRUE(now[1] == w1 && now[2] != w2 && !live(w2) && !live(w3));
    EXPECT_EQ(std::make_pair(now[0]->carried_a, now[0]->height_level), std::make_pair(0xCAu, uint32_t(HEIGHT_LOW)));
    EXPECT_EQ(now[2]->marker_name + settings_of(now[2]), "LZ_Alpha" + w2_settings);
    for (waypoint_record *inherited : {now[3], now[4]})
        EXPECT_TRUE(settings_of(inherited) == w2_settings && !inherited->marker_name[0] && inherited->orders);
    EXPECT_EQ(std::make_tuple(heli.waypoint_counts.creates, heli.waypoint_counts.copies, heli.waypoint_counts.destroys),
              std::make_tuple(6, 2, 3));  // three here; the cancelled copy, W2 and W3 destroyed
}

// Every change is written at once and Cancel undoes nothing (the caller
// throws the record away); a value without a line shows none and is kept.
TEST_F(waypoints_test, each_setting_comes_from_its_table_and_changes_are_written_at_once) {
    waypoint_record *w = add_waypoint(route, "LZ_Alpha", 0);
    w->height_level = HEIGHT_HIGH;
    w->non_threat_action = CONTACT_ENGAGE;
    w->threat_action = CONTACT_BYPASS;
    w->fuel_low_action = ACTION_USE_ARSP;
    w->weapons_low_action = ACTION_GO_HOME;
    w->damage_action = ACTION_USE_RALLY_POINT;
    w->damage_level = DAMAGE_NMC;
    w->transit_speed = 27.7778f;
    const int combos[] = {IDC_WP_MARKER,   IDC_WP_HEIGHT,      IDC_WP_NON_THREAT, IDC_WP_THREAT,
                          IDC_WP_FUEL_LOW, IDC_WP_WEAPONS_LOW, IDC_WP_DAMAGE,     IDC_WP_DAMAGE_LEVEL};
    const struct {
        const char *text;
        float kmh;  // 0: refused, the speed stays
    } typed[] = {{"120km/h", 120}, {"12 km/h", 12}, {"-5", -5}, {"  7", 7}, {"nan", 0},
                 {"1e39", 0},      {"", 0},         {"  ", 0},  {"abc", 0}, {"60", 60}};
    std::string offered, selected;
    const auto open = [&] { return edit_waypoint(host.main_window, w); };
    EXPECT_EQ(0, drive("Edit Waypoint", {[&](HWND dlg) {
        for (int id : combos) {
            for (const std::string &line : ui_combo_items(dlg, id)) offered += line + "/";
            offered += "|";
            selected += ui_combo_selected(dlg, id) + "/";
        }
        // Loading the speed notifies too: the record holds the shown value converted back.
        EXPECT_EQ(ui_text(dlg, IDC_WP_SPEED) + std::to_string(w->transit_speed), " 100.0" + std::to_string(100 * 0.277777f));
        EXPECT_EQ(host.lists_out, 1);  // the marker list, released at the end
        for (const auto &t : typed) {
            w->transit_speed = 9.0f;
            ui_set_text(dlg, IDC_WP_SPEED, t.text);
            EXPECT_FLOAT_EQ(w->transit_speed, t.kmh != 0 ? t.kmh * 0.277777f : 9.0f) << '"' << t.text << '"';
        }
        choosing(IDC_WP_DAMAGE_LEVEL, "PMC",
                 choosing(IDC_WP_FUEL_LOW, "Go Home", choosing(IDC_WP_MARKER, "None Selected", press(IDCANCEL))))(dlg);
    }}, open));
    EXPECT_EQ(offered, "None Selected/WP_North/WP_South/LZ_Alpha/|NOE/Low/Medium/High/|Bypass/Engage/|Bypass/Engage/|"
                       "Continue/Use ARSP/Go Home/|Continue/Use ARSP/Go Home/|Continue/Use Rally Point/Go Home/|PMC/NMC/|");
    EXPECT_EQ(selected, "LZ_Alpha/High/Engage/Bypass/Use ARSP/Go Home/Use Rally Point/NMC/");
    EXPECT_EQ(std::to_string(w->damage_level) + std::to_string(w->fuel_low_action) + w->marker_name, "12LZ_Alpha");

    w->height_level = 7;
    w->damage_level = DAMAGE_FMC;
    std::strcpy(w->marker_name, "Nowhere");
    lines seen;
    const auto look = [](HWND dlg) { return shown(dlg, {IDC_WP_HEIGHT, IDC_WP_DAMAGE_LEVEL, IDC_WP_MARKER}); };
    EXPECT_EQ(1, drive("Edit Waypoint", {noting(seen, look, press(IDOK))}, open));
    EXPECT_EQ(seen, lines{",,None Selected"});
    EXPECT_EQ(std::to_string(w->height_level) + std::to_string(w->damage_level) + w->marker_name, "70Nowhere");
    host.refuse_acquire = true;  // without a marker list nothing opens
    EXPECT_EQ(drive("Edit Waypoint", {}, open), 0);
}
