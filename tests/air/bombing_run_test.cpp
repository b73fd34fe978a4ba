// Edit Bombing Run Details through the real dialog: routes change at once,
// the other fields on OK, and the record reaches the host byte by byte.
#include "air/bombing_run.h"
#include "tests/air/air_fixture.h"

class bombing_run_test : public air_test {
protected:
    bombing_run_record run;

    void SetUp() override {
        air_test::SetUp();
        host.markers = {"WP_b", "wp1", std::string(32, 'x'), "LZ", "WP_a"};
        std::memset(&run, 0xEE, sizeof run);
        std::strcpy(run.name, "Run 1");
        run.target_x = 1500.25f, run.target_z = -20, run.release_height = 300, run.attack_time = 60;
        run.attack_radius = 100.5f;
        std::strcpy(run.aircraft_type, "f-16");
        run.aircraft_count = 2;
        run.ingress = host.held_entries({waypoint("wp1", 50), waypoint("WP_a", 120.25f)});
        run.egress = host.held_entries<bombing_waypoint>({});
        run.aircraft_types = host.held_names({"Tornado", "A-10", "F-16"});
    }
    int edit(std::initializer_list<step> steps) {
        return drive("Edit Bombing Run Details", steps, [&] { return editor_window(REQUEST_BOMBING_RUN, dlist_value(&run), 0); });
    }
    // Selects a route line (route 0: none) and a marker (null: as it is), then clicks.
    static step route(int button, int list = 0, int line = 0, const char *marker = nullptr) {
        return [=](HWND dlg) {
            if (list) ui_list_select_index(dlg, list, line);
            if (marker) ui_list_select(dlg, IDC_BR_MARKERS, marker);
            ui_command(dlg, button);
        };
    }
    // Both routes and their height edits.
    static std::string routes(HWND dlg) {
        return listed(dlg, IDC_BR_INGRESS) + "|" + listed(dlg, IDC_BR_EGRESS) + "|" +
               shown(dlg, {IDC_BR_INGRESS_HEIGHT, IDC_BR_EGRESS_HEIGHT});
    }
};

TEST_F(bombing_run_test, a_designers_whole_edit_reaches_the_record_byte_by_byte) {
    bombing_run_record expected = run;
    lines seen;
    EXPECT_EQ(1, edit({
        [](HWND dlg) {
            EXPECT_EQ(shown(dlg, {IDC_BR_NAME, IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME,
                                  IDC_BR_ATTACK_RADIUS, IDC_BR_AIRCRAFT_TYPE, IDC_BR_AIRCRAFT_COUNT}),
                      "Run 1,1500.250,-20.000,300.000,60.000,100.500,F-16,2");
            // Sorted, the first selected; 32 characters cannot name a waypoint and are not offered.
            EXPECT_EQ(listed(dlg, IDC_BR_MARKERS), ">LZ/WP_a/WP_b/wp1");
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_COUNT), (lines{"1", "2", "3", "4", "5", "6", "7", "8"}));
        },
        noting(seen, routes, typing({{IDC_BR_INGRESS_HEIGHT, "1"}}, press(IDC_BR_INGRESS_INSERT))),  // no line: appends
        noting(seen, routes, route(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 1, "WP_b")),
        route(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 0, "WP_b"),  // already in the route: silently nothing
        route(IDC_BR_EGRESS_ADD, 0, 0, "WP_b"),                   // the other route may hold it too
        route(IDC_BR_EGRESS_INSERT, IDC_BR_EGRESS, 0, "LZ"),
        typing({{IDC_BR_INGRESS_HEIGHT, "75.5m"}}, route(IDC_BR_INGRESS_SET_HEIGHT, IDC_BR_INGRESS, 2)),
        typing({{IDC_BR_INGRESS_HEIGHT, "abc"}}, route(IDC_BR_INGRESS_SET_HEIGHT, IDC_BR_INGRESS, 1)),  // refused
        noting(seen, routes, typing({{IDC_BR_EGRESS_HEIGHT, "10"}}, route(IDC_BR_EGRESS_SET_HEIGHT, IDC_BR_EGRESS, -1))),
        route(IDC_BR_EGRESS_DELETE, IDC_BR_EGRESS, -1),  // no line: nothing
        route(IDC_BR_INGRESS_DELETE, IDC_BR_INGRESS, 0),
        noting(seen, routes, typing({{IDC_BR_NAME, "Night Raid"}},
                                    choosing(IDC_BR_AIRCRAFT_TYPE, "Tornado", choosing(IDC_BR_AIRCRAFT_COUNT, "8", press(IDOK))))),
    }));
    // Every refill resets the route's height edit, and so does a refused
    // height (without a refill); Set Height without a line does nothing.
    EXPECT_EQ(seen, (lines{"       wp1 50.000/      WP_a 120.250||50.0,50.0",
                           "       wp1 50.000/      WP_a 120.250/        LZ 50.000||50.0,50.0",
                           "       wp1 50.000/>      WP_b 50.000/      WP_a 75.500/        LZ 50.000|        LZ 50.000/      WP_b "
                           "50.000|50.0,50.0",
                           "      WP_b 50.000/      WP_a 75.500/        LZ 50.000|        LZ 50.000/      WP_b 50.000|50.0,10"}));
    std::memcpy(expected.name, "Night Raid", 11);  // the rest of the field stays
    std::memcpy(expected.aircraft_type, "Tornado", 8);
    expected.aircraft_count = 8;
    expected.cancelled = 0;
    EXPECT_EQ(bytes_of({run}), bytes_of({expected}));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.ingress),
              bytes_of({waypoint("WP_b", 50), waypoint("WP_a", 75.5f), waypoint("LZ", 50)}));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress), bytes_of({waypoint("LZ", 50), waypoint("WP_b", 50)}));
}

// The five numbers are read leniently, each into its own field; a refused
// one keeps its value. Cancel and the close box store nothing but the mark,
// and route edits stay made.
TEST_F(bombing_run_test, only_ok_stores_the_numbers_each_by_the_lenient_rule) {
    const int ids[] = {IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME, IDC_BR_ATTACK_RADIUS};
    const struct {
        const char *typed[5], *marker;  // the marker added to egress
        int end;                        // IDOK, IDCANCEL, or 0 for the close box
        float stored[5];
    } cases[] = {
        {{"12.5 ", "12m", " -3", "0x1A", "1e38"}, "LZ", IDOK, {12.5f, 12, -3, 0, 1e38f}},
        {{"", "  ", "abc", "nan", "1e39"}, "WP_a", IDOK, {1, 2, 3, 4, 5}},
        {{"7", "7", "7", "7", "7"}, "WP_b", IDCANCEL, {1, 2, 3, 4, 5}},
        {{"7", "7", "7", "7", "7"}, "wp1", 0, {1, 2, 3, 4, 5}},
    };
    for (const auto &c : cases) {
        run.target_x = 1, run.target_z = 2, run.release_height = 3, run.attack_time = 4, run.attack_radius = 5;
        run.cancelled = 7;
        std::strcpy(run.aircraft_type, "F-16");  // as OK stores the selection
        bombing_run_record expected = run;
        EXPECT_EQ(c.end == IDOK, edit({[&](HWND dlg) {
                                           for (int i = 0; i < 5; ++i) ui_set_text(dlg, ids[i], c.typed[i]);
                                           choosing(IDC_BR_AIRCRAFT_COUNT, "5", route(IDC_BR_EGRESS_ADD, 0, 0, c.marker))(dlg);
                                       },
                                       [&](HWND dlg) { c.end ? ui_command(dlg, c.end) : close_box(dlg); }}));
        expected.target_x = c.stored[0], expected.target_z = c.stored[1], expected.release_height = c.stored[2];
        expected.attack_time = c.stored[3], expected.attack_radius = c.stored[4];
        expected.cancelled = c.end != IDOK;
        if (c.end == IDOK) expected.aircraft_count = 5;
        EXPECT_EQ(bytes_of({run}), bytes_of({expected})) << c.marker;
    }
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress),
              bytes_of({waypoint("LZ", 50), waypoint("WP_a", 50), waypoint("WP_b", 50), waypoint("wp1", 50)}));
}

// The stored type is searched from item 1 onward, item 0 last, by a prefix
// without regard to case; a name too long for the field is not offered.
TEST_F(bombing_run_test, aircraft_type_search_and_count_selection_and_no_dialog_without_a_record) {
    const lines types = {"Harrier", "A-10B", "A-10", std::string(32, 'T')};
    const struct {
        lines types;  // empty: a null list
        std::string stored;
        uint32_t count;
        std::string shown, kept;  // type and count selected; the type after OK
    } cases[] = {
        {types, "A-10", 8, "A-10B,8", "A-10B"},  {types, "harr", 0, "Harrier,", "Harrier"},
        {types, "Zulu", 9, ",", "Zulu"},         {{}, "Zulu", 1, ",1", "Zulu"},
    };
    for (const auto &c : cases) {
        run.aircraft_types = c.types.empty() ? nullptr : host.held_names(c.types);
        std::strcpy(run.aircraft_type, c.stored.c_str());
        run.aircraft_count = c.count;
        EXPECT_EQ(1, edit({[&](HWND dlg) {
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_TYPE).size(), c.types.empty() ? 0u : 3u);
            EXPECT_EQ(shown(dlg, {IDC_BR_AIRCRAFT_TYPE, IDC_BR_AIRCRAFT_COUNT}), c.shown);
            ui_command(dlg, IDOK);
        }}));
        EXPECT_EQ(run.aircraft_type + std::to_string(run.aircraft_count), c.kept + std::to_string(c.count));
    }
    expect_refused(REQUEST_BOMBING_RUN, edit_bombing_run, bombing_run_tidyup, bombing_run_start, run);
}
