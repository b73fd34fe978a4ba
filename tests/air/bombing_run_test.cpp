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
        run.ingress = list_of({waypoint("wp1", 50), waypoint("WP_a", 120.25f)});
        run.egress = list_of<bombing_waypoint>({});
        run.aircraft_types = names_of({"Tornado", "A-10", "F-16"});
    }
    int edit(std::initializer_list<ui_driver::action> steps) {
        return drive("Edit Bombing Run Details", steps,
                     [&] { return editor_window(REQUEST_BOMBING_RUN, reinterpret_cast<uintptr_t>(&run), 0); });
    }
    // Selects a route line (route 0: none) and a marker (null: as it is), then clicks.
    static ui_driver::action click(int button, int route = 0, int line = 0, const char *marker = nullptr) {
        return [=](HWND dlg) {
            if (route) ui_list_select_index(dlg, route, line);
            if (marker) ui_list_select(dlg, IDC_BR_MARKERS, marker);
            ui_command(dlg, button);
        };
    }
    static std::string texts(HWND dlg, std::initializer_list<int> ids) {
        std::string all;
        for (int id : ids) all += ui_text(dlg, id) + "|";
        return all;
    }
};

TEST_F(bombing_run_test, a_designers_whole_edit_reaches_the_record_byte_by_byte) {
    bombing_run_record expected = run;
    EXPECT_EQ(1, edit({
        [](HWND dlg) {
            EXPECT_EQ(texts(dlg, {IDC_BR_NAME, IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME,
                                  IDC_BR_ATTACK_RADIUS, IDC_BR_INGRESS_HEIGHT, IDC_BR_EGRESS_HEIGHT}),
                      "Run 1|1500.250|-20.000|300.000|60.000|100.500|50.0|50.0|");
            // Sorted, the first selected; 32 characters cannot name a waypoint and are not offered.
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_MARKERS), (names{"LZ", "WP_a", "WP_b", "wp1"}));
            EXPECT_EQ(ui_list_selected(dlg, IDC_BR_MARKERS), std::vector<int>{0});
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS), (names{"       wp1 50.000", "      WP_a 120.250"}));
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_COUNT), (names{"1", "2", "3", "4", "5", "6", "7", "8"}));
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_COUNT) + ui_combo_selected(dlg, IDC_BR_AIRCRAFT_TYPE), "2F-16");
            ui_command(dlg, IDC_BR_INGRESS_INSERT);  // no route line: appends LZ
        },
        click(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 1, "WP_b"),
        click(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 0, "WP_b"),  // already in the route: silently nothing
        click(IDC_BR_EGRESS_ADD, 0, 0, "WP_b"),                   // the other route may hold it too
        click(IDC_BR_EGRESS_INSERT, IDC_BR_EGRESS, 0, "LZ"),
        [](HWND dlg) {
            ui_set_text(dlg, IDC_BR_INGRESS_HEIGHT, "75.5m");
            click(IDC_BR_INGRESS_SET_HEIGHT, IDC_BR_INGRESS, 2)(dlg);
        },
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_INGRESS_HEIGHT), "50.0");
            ui_set_text(dlg, IDC_BR_INGRESS_HEIGHT, "abc");
            click(IDC_BR_INGRESS_SET_HEIGHT, IDC_BR_INGRESS, 0)(dlg);
        },
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_INGRESS_HEIGHT), "50.0");
            ui_set_text(dlg, IDC_BR_EGRESS_HEIGHT, "10");
            ui_command(dlg, IDC_BR_EGRESS_SET_HEIGHT);  // no line selected: nothing, not even the edit
        },
        click(IDC_BR_EGRESS_DELETE),  // no line selected: nothing
        click(IDC_BR_INGRESS_DELETE, IDC_BR_INGRESS, 0),
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_EGRESS_HEIGHT), "10");
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS), (names{"      WP_b 50.000", "      WP_a 75.500", "        LZ 50.000"}));
            const char *typed[] = {"Night Raid", "12.5m", "abc", "  250", "", "1e3"};
            const int ids[] = {IDC_BR_NAME, IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME, IDC_BR_ATTACK_RADIUS};
            for (int i = 0; i < 6; ++i) ui_set_text(dlg, ids[i], typed[i]);
            ui_combo_select(dlg, IDC_BR_AIRCRAFT_TYPE, "Tornado");
            ui_combo_select(dlg, IDC_BR_AIRCRAFT_COUNT, "8");
            ui_command(dlg, IDOK);
        },
    }));
    std::memcpy(expected.name, "Night Raid", 11);  // the rest of the field stays
    expected.target_x = 12.5f, expected.release_height = 250, expected.attack_radius = 1000;
    std::memcpy(expected.aircraft_type, "Tornado", 8);
    expected.aircraft_count = 8;
    expected.cancelled = 0;
    EXPECT_EQ(bytes_of(run), bytes_of(expected));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.ingress), entries_of<bombing_waypoint>(list_of({waypoint("WP_b", 50), waypoint("WP_a", 75.5f), waypoint("LZ", 50)})));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress), entries_of<bombing_waypoint>(list_of({waypoint("LZ", 50), waypoint("WP_b", 50)})));
}

TEST_F(bombing_run_test, cancel_and_close_keep_route_edits_and_only_mark_the_record) {
    bombing_run_record before = run;
    before.cancelled = 1;
    for (bool close_box : {false, true}) {
        run.cancelled = 0;
        EXPECT_EQ(0, edit({[=](HWND dlg) {
                               ui_set_text(dlg, IDC_BR_NAME, "changed");
                               ui_combo_select(dlg, IDC_BR_AIRCRAFT_COUNT, "5");
                               click(IDC_BR_EGRESS_ADD, 0, 0, close_box ? "WP_b" : "LZ")(dlg);
                           },
                           [=](HWND dlg) { PostMessageA(dlg, close_box ? WM_CLOSE : WM_COMMAND, close_box ? 0 : IDCANCEL, 0); }}));
        EXPECT_EQ(bytes_of(run), bytes_of(before));
    }
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress), entries_of<bombing_waypoint>(list_of({waypoint("LZ", 50), waypoint("WP_b", 50)})));
}

TEST_F(bombing_run_test, numeric_fields_take_a_leading_number_or_keep_their_value) {
    const struct {
        const char *text;
        bool taken;
        float value;
    } cases[] = {
        {"12.5 ", true, 12.5f}, {"12m", true, 12}, {" -3", true, -3},  {"0x1A", true, 0}, {"1e38", true, 1e38f},
        {"", false, 0},         {"  ", false, 0},  {"abc", false, 0},  {"nan", false, 0}, {"inf", false, 0},
        {"1e39", false, 0},     {"-", false, 0},
    };
    const int ids[] = {IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME, IDC_BR_ATTACK_RADIUS};
    for (const auto &c : cases) {
        run.target_x = 1, run.target_z = 2, run.release_height = 3, run.attack_time = 4, run.attack_radius = 5;
        EXPECT_EQ(1, edit({[&](HWND dlg) {
            for (int id : ids) ui_set_text(dlg, id, c.text);
            ui_command(dlg, IDOK);
        }}));
        const float stored[] = {run.target_x, run.target_z, run.release_height, run.attack_time, run.attack_radius};
        for (int i = 0; i < 5; ++i) EXPECT_EQ(stored[i], c.taken ? c.value : float(i + 1)) << '"' << c.text << "\" " << i;
    }
}

TEST_F(bombing_run_test, aircraft_type_search_and_count_selection) {
    const names types = {"Harrier", "A-10B", "A-10"};
    const struct {
        names types;  // empty: a null list
        std::string stored;
        uint32_t count;
        std::string shown, kept;  // type and count selected; the type after OK
    } cases[] = {
        {types, "A-10", 8, "A-10B8", "A-10B"},  // the search starts after item 0 and wraps
        {types, "harr", 0, "Harrier", "Harrier"},
        {types, "Zulu", 9, "", "Zulu"},
        {{}, "Zulu", 1, "1", "Zulu"},
        {{std::string(40, 'T')}, std::string(31, 'T'), 3, "3", std::string(31, 'T')},  // too long: not offered
    };
    for (const auto &c : cases) {
        run.aircraft_types = c.types.empty() ? nullptr : names_of(c.types);
        std::strcpy(run.aircraft_type, c.stored.c_str());
        run.aircraft_count = c.count;
        EXPECT_EQ(1, edit({[&](HWND dlg) {
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_TYPE).size(), c.types.size() == 3 ? 3u : 0u);
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_TYPE) + ui_combo_selected(dlg, IDC_BR_AIRCRAFT_COUNT), c.shown);
            ui_command(dlg, IDOK);
        }}));
        EXPECT_EQ(run.aircraft_type, c.kept);
        EXPECT_EQ(run.aircraft_count, c.count);
    }
}

TEST_F(bombing_run_test, hosts_that_fail_leave_routes_whole_and_nothing_leaks) {
    const names ingress = entries_of<bombing_waypoint>(run.ingress);
    // A marker list the host will not build, or will not take back: nothing to add.
    for (bool refuse_release : {false, true}) {
        host.refuse_acquire = !refuse_release;
        host.refuse_release = refuse_release;
        EXPECT_EQ(1, edit({click(IDC_BR_INGRESS_ADD), click(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 0), click(IDOK)}));
    }
    host.refuse_acquire = host.refuse_release = false;
    // Out of memory for the waypoint (0 more blocks), or for its node (1), on either way in.
    EXPECT_EQ(1, edit({failing(0, click(IDC_BR_INGRESS_ADD, 0, 0, "LZ")), failing(1, click(IDC_BR_INGRESS_ADD)),
                       failing(1, click(IDC_BR_INGRESS_INSERT, IDC_BR_INGRESS, 1)), failing(-1, [&](HWND dlg) {
                           // Neither a second opening nor a host request opens another meanwhile.
                           EXPECT_EQ(nested_call([&] { return edit_bombing_run(&run); }), 0);
                           ui_command(dlg, IDOK);
                       })}));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.ingress), ingress);
    expect_refused(REQUEST_BOMBING_RUN, edit_bombing_run, bombing_run_tidyup, bombing_run_start, run);
}
