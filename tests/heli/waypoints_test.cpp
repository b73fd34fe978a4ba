// Edit Waypoints and Edit Waypoint through the real dialogs: where new
// waypoints go and what they inherit, copies replacing records in their own
// nodes, and each setting shown from and stored into its word.
#include "heli/waypoints.h"
#include "tests/heli/heli_fixture.h"

class waypoints_test : public heli_test {
protected:
    dlist_node *route = nullptr;
    void SetUp() override {
        heli_test::SetUp();
        route = heli.new_list();
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (void *w : values(route)) heli.destroy_waypoint(static_cast<waypoint_record *>(w));
        heli.free_list(route);
        heli_test::TearDown();
    }
};

TEST_F(waypoints_test, new_waypoints_follow_their_predecessor_and_edits_replace_records_in_place) {
    waypoint_record *w1 = add_waypoint(route, "WP_North", 1);
    waypoint_record *w2 = add_waypoint(route, "", 2);
    waypoint_record *w3 = add_waypoint(route, "", 3);
    const std::string w2_settings = settings_of(w2);
    const heli_records::tally before = heli.waypoint_counts;
    lines opened, renamed;
    std::string w2_after_cancel;
    ui_driver d;
    auto on_route = [&](std::function<void(HWND)> act) { d.then("Edit Waypoints", act); };
    on_route([&](HWND dlg) {
        opened = ui_list_items(dlg, IDC_WPS_LIST);
        ui_list_select_index(dlg, IDC_WPS_LIST, 2);  // W3: the new one goes between W2 and W3
        ui_command(dlg, IDC_WPS_INSERT);
    });
    d.then("Edit Waypoint", press_ok);
    on_route([&](HWND dlg) {
        ui_list_select_index(dlg, IDC_WPS_LIST, 0);  // the new one becomes first
        ui_command(dlg, IDC_WPS_INSERT);
    });
    d.then("Edit Waypoint", press_ok);
    on_route([&](HWND dlg) {
        ui_list_select_index(dlg, IDC_WPS_LIST, 2);  // W2
        ui_command(dlg, IDC_WPS_EDIT);
    });
    d.then("Edit Waypoint", [&](HWND dlg) {
        ui_combo_select(dlg, IDC_WP_HEIGHT, "High");
        ui_set_text(dlg, IDC_WP_SPEED, "5");
        press_cancel(dlg);
    });
    on_route([&](HWND dlg) {
        w2_after_cancel = settings_of(w2);
        ui_list_select_index(dlg, IDC_WPS_LIST, 2);
        ui_list_double_click(dlg, IDC_WPS_LIST);
    });
    d.then("Edit Waypoint", [&](HWND dlg) {
        ui_combo_select(dlg, IDC_WP_MARKER, "LZ_Alpha");
        press_ok(dlg);
    });
    on_route([&](HWND dlg) {
        renamed = ui_list_items(dlg, IDC_WPS_LIST);
        ui_list_select_index(dlg, IDC_WPS_LIST, 4);  // W3
        ui_command(dlg, IDC_WPS_REMOVE);
    });
    on_route(press_cancel);
    EXPECT_EQ(edit_waypoints(host.main_window, route), 0);  // the route changed all the same
    EXPECT_DRIVER_OK(d);

    EXPECT_EQ(opened, (lines{"WP_North", "Waypoint 1", "Waypoint 2"}));
    EXPECT_EQ(renamed, (lines{"Waypoint 1", "WP_North", "LZ_Alpha", "Waypoint 2", "Waypoint 3"}));
    EXPECT_EQ(w2_after_cancel, w2_settings);
    std::vector<void *> now = values(route);
    ASSERT_EQ(now.size(), 4u);
    auto *first = static_cast<waypoint_record *>(now[0]);
    auto *edited = static_cast<waypoint_record *>(now[2]);
    auto *inserted = static_cast<waypoint_record *>(now[3]);
    EXPECT_EQ(now[1], w1);
    // Between W2 and W3: W2's settings, carried words included, but its own
    // marker and orders. First on the route: the host's defaults.
    EXPECT_EQ(settings_of(inserted), w2_settings);
    EXPECT_STREQ(inserted->marker_name, "");
    EXPECT_NE(inserted->orders, nullptr);
    EXPECT_EQ(first->carried_a, 0xCAu);
    EXPECT_EQ(first->height_level, uint32_t(HEIGHT_LOW));
    EXPECT_STREQ(edited->marker_name, "LZ_Alpha");
    EXPECT_EQ(settings_of(edited), w2_settings);
    EXPECT_FALSE(live(w2));
    EXPECT_FALSE(live(w3));
    EXPECT_EQ(heli.waypoint_counts.creates - before.creates, 2);
    EXPECT_EQ(heli.waypoint_counts.copies - before.copies, 2);
    EXPECT_EQ(heli.waypoint_counts.destroys - before.destroys, 3);  // the cancelled copy, W2, W3
}

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
    const struct {
        const char *text;
        float kmh;  // 0: refused, the speed stays
    } typed[] = {{"120km/h", 120}, {"12 km/h", 12}, {"-5", -5}, {"  7", 7}, {"nan", 0},
                 {"1e39", 0},      {"", 0},         {"  ", 0},  {"abc", 0}, {"60", 60}};
    lines selected, fuel_lines, damage_lines, marker_lines;
    std::string speed;
    float opened_speed = 0;
    int lists_held = 0;
    ui_driver d;
    d.then("Edit Waypoint", [&](HWND dlg) {
        for (int id : {IDC_WP_MARKER, IDC_WP_HEIGHT, IDC_WP_NON_THREAT, IDC_WP_THREAT, IDC_WP_FUEL_LOW,
                       IDC_WP_WEAPONS_LOW, IDC_WP_DAMAGE, IDC_WP_DAMAGE_LEVEL})
            selected.push_back(ui_combo_selected(dlg, id));
        fuel_lines = ui_combo_items(dlg, IDC_WP_FUEL_LOW);
        damage_lines = ui_combo_items(dlg, IDC_WP_DAMAGE);
        marker_lines = ui_combo_items(dlg, IDC_WP_MARKER);
        speed = ui_text(dlg, IDC_WP_SPEED);
        opened_speed = w->transit_speed;
        lists_held = host.lists_out;
        for (const auto &t : typed) {
            w->transit_speed = 9.0f;
            ui_set_text(dlg, IDC_WP_SPEED, t.text);
            EXPECT_FLOAT_EQ(w->transit_speed, t.kmh != 0 ? t.kmh * 0.277777f : 9.0f) << '"' << t.text << '"';
        }
        ui_combo_select(dlg, IDC_WP_DAMAGE_LEVEL, "PMC");
        ui_combo_select(dlg, IDC_WP_FUEL_LOW, "Go Home");
        ui_combo_select(dlg, IDC_WP_MARKER, "None Selected");
        press_cancel(dlg);
    });
    EXPECT_EQ(edit_waypoint(host.main_window, w), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(selected, (lines{"LZ_Alpha", "High", "Engage", "Bypass", "Use ARSP", "Go Home", "Use Rally Point", "NMC"}));
    EXPECT_EQ(fuel_lines, (lines{"Continue", "Use ARSP", "Go Home"}));
    EXPECT_EQ(damage_lines, (lines{"Continue", "Use Rally Point", "Go Home"}));
    EXPECT_EQ(marker_lines, (lines{"None Selected", "WP_North", "WP_South", "LZ_Alpha"}));
    EXPECT_EQ(speed, " 100.0");
    EXPECT_FLOAT_EQ(opened_speed, 100 * 0.277777f);  // the shown value, converted back
    EXPECT_EQ(lists_held, 1);                        // the marker list, released at the end
    // Cancel undoes nothing: the caller throws the whole record away.
    EXPECT_EQ(w->damage_level, uint32_t(DAMAGE_PMC));
    EXPECT_EQ(w->fuel_low_action, uint32_t(ACTION_GO_HOME));
    EXPECT_STREQ(w->marker_name, "LZ_Alpha");

    // Values without a line show no selection, and OK keeps them.
    w->height_level = 7;
    w->damage_level = DAMAGE_FMC;
    std::strcpy(w->marker_name, "Nowhere");
    d.then("Edit Waypoint", [&](HWND dlg) {
        selected = {ui_combo_selected(dlg, IDC_WP_HEIGHT), ui_combo_selected(dlg, IDC_WP_DAMAGE_LEVEL),
                    ui_combo_selected(dlg, IDC_WP_MARKER)};
        press_ok(dlg);
    });
    EXPECT_EQ(edit_waypoint(host.main_window, w), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(selected, (lines{"", "", "None Selected"}));
    EXPECT_EQ(w->height_level, 7u);
    EXPECT_EQ(w->damage_level, 0u);
    EXPECT_STREQ(w->marker_name, "Nowhere");

    // Without a marker list nothing opens.
    host.refuse_acquire = true;
    EXPECT_EQ(edit_waypoint(host.main_window, w), 0);
}
