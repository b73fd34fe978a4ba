// Edit Bombing Run Details through the real dialog: routes change at once,
// the other fields on OK, and the record reaches the host byte by byte.
#include "air/bombing_run.h"
#include "tests/air/air_fixture.h"

namespace {
using names = std::vector<std::string>;
const char title[] = "Edit Bombing Run Details";
}  // namespace

class bombing_run_test : public air_test {
protected:
    bombing_run_record run;

    void SetUp() override {
        air_test::SetUp();
        host.markers = {"WP_b", "wp1", std::string(32, 'x'), "LZ", "WP_a"};
        std::memset(&run, 0xEE, sizeof run);
        std::strcpy(run.name, "Run 1");
        run.target_x = 1500.25f;
        run.target_z = -20;
        run.release_height = 300;
        run.attack_time = 60;
        run.attack_radius = 100.5f;
        std::strcpy(run.aircraft_type, "f-16");
        run.aircraft_count = 2;
        run.ingress = list_of<bombing_waypoint>({waypoint("wp1", 50), waypoint("WP_a", 120.25f)});
        run.egress = list_of<bombing_waypoint>({});
        run.aircraft_types = names_of({"Tornado", "A-10", "F-16"});
    }
    int edit(std::initializer_list<ui_driver::action> steps) {
        return drive(title, steps, [&] { return editor_window(REQUEST_BOMBING_RUN, reinterpret_cast<uintptr_t>(&run), 0); });
    }
    static void pick(HWND dlg, int route_line_list, int line, const char *marker, int button) {
        if (route_line_list) ui_list_select_index(dlg, route_line_list, line);
        if (marker) {
            EXPECT_TRUE(ui_list_select(dlg, IDC_BR_MARKERS, marker)) << marker;
        }
        ui_command(dlg, button);
    }
};

TEST_F(bombing_run_test, a_designers_whole_edit_reaches_the_record_byte_by_byte) {
    bombing_run_record expected = run;
    EXPECT_EQ(1, edit({
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_NAME), "Run 1");
            EXPECT_EQ(ui_text(dlg, IDC_BR_TARGET_X) + "|" + ui_text(dlg, IDC_BR_TARGET_Z) + "|" +
                          ui_text(dlg, IDC_BR_RELEASE_HEIGHT) + "|" + ui_text(dlg, IDC_BR_ATTACK_TIME) + "|" +
                          ui_text(dlg, IDC_BR_ATTACK_RADIUS),
                      "1500.250|-20.000|300.000|60.000|100.500");
            // Sorted; a 32-character marker cannot be a waypoint's name and is not offered.
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_MARKERS), (names{"LZ", "WP_a", "WP_b", "wp1"}));
            EXPECT_EQ(ui_list_selected(dlg, IDC_BR_MARKERS), std::vector<int>{0});
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS), (names{"       wp1 50.000", "      WP_a 120.250"}));
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_EGRESS), names{});
            EXPECT_EQ(ui_text(dlg, IDC_BR_INGRESS_HEIGHT) + ui_text(dlg, IDC_BR_EGRESS_HEIGHT), "50.050.0");
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_COUNT), (names{"1", "2", "3", "4", "5", "6", "7", "8"}));
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_COUNT), "2");
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_TYPE), (names{"A-10", "F-16", "Tornado"}));
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_TYPE), "F-16");
            pick(dlg, 0, 0, nullptr, IDC_BR_INGRESS_INSERT);  // no route line: appends LZ
        },
        [](HWND dlg) { pick(dlg, IDC_BR_INGRESS, 1, "WP_b", IDC_BR_INGRESS_INSERT); },
        [](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS)[1], "      WP_b 50.000");
            pick(dlg, IDC_BR_INGRESS, 0, "WP_b", IDC_BR_INGRESS_INSERT);  // already in the route: silently nothing
        },
        [](HWND dlg) { pick(dlg, 0, 0, "WP_b", IDC_BR_EGRESS_ADD); },  // the other route may hold it too
        [](HWND dlg) { pick(dlg, IDC_BR_EGRESS, 0, "LZ", IDC_BR_EGRESS_INSERT); },
        [](HWND dlg) {
            ui_set_text(dlg, IDC_BR_INGRESS_HEIGHT, "75.5m");
            pick(dlg, IDC_BR_INGRESS, 2, nullptr, IDC_BR_INGRESS_SET_HEIGHT);
        },
        [](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS)[2], "      WP_a 75.500");
            EXPECT_EQ(ui_text(dlg, IDC_BR_INGRESS_HEIGHT), "50.0");
            ui_set_text(dlg, IDC_BR_INGRESS_HEIGHT, "abc");
            pick(dlg, IDC_BR_INGRESS, 0, nullptr, IDC_BR_INGRESS_SET_HEIGHT);
        },
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_INGRESS_HEIGHT), "50.0");
            ui_set_text(dlg, IDC_BR_EGRESS_HEIGHT, "10");
            ui_command(dlg, IDC_BR_EGRESS_SET_HEIGHT);  // no egress line selected: nothing
        },
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_BR_EGRESS_HEIGHT), "10");
            ui_command(dlg, IDC_BR_EGRESS_DELETE);  // no selection: nothing
        },
        [](HWND dlg) { pick(dlg, IDC_BR_INGRESS, 0, nullptr, IDC_BR_INGRESS_DELETE); },
        [](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS), (names{"      WP_b 50.000", "      WP_a 75.500", "        LZ 50.000"}));
            EXPECT_EQ(ui_list_items(dlg, IDC_BR_EGRESS), (names{"        LZ 50.000", "      WP_b 50.000"}));
            ui_set_text(dlg, IDC_BR_NAME, "Night Raid");
            ui_set_text(dlg, IDC_BR_TARGET_X, "12.5m");
            ui_set_text(dlg, IDC_BR_TARGET_Z, "abc");
            ui_set_text(dlg, IDC_BR_RELEASE_HEIGHT, "  250");
            ui_set_text(dlg, IDC_BR_ATTACK_TIME, "");
            ui_set_text(dlg, IDC_BR_ATTACK_RADIUS, "1e3");
            ui_combo_select(dlg, IDC_BR_AIRCRAFT_TYPE, "Tornado");
            ui_combo_select(dlg, IDC_BR_AIRCRAFT_COUNT, "8");
            ui_command(dlg, IDOK);
        },
    }));
    std::memcpy(expected.name, "Night Raid", 11);  // the rest of the field stays
    expected.target_x = 12.5f;
    expected.release_height = 250;
    expected.attack_radius = 1000;
    std::memcpy(expected.aircraft_type, "Tornado", 8);
    expected.aircraft_count = 8;
    expected.cancelled = 0;
    EXPECT_EQ(bytes_of(run), bytes_of(expected));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.ingress),
              entries({waypoint("WP_b", 50), waypoint("WP_a", 75.5f), waypoint("LZ", 50)}));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress), entries({waypoint("LZ", 50), waypoint("WP_b", 50)}));
    expect_only_sizes(48);
}

TEST_F(bombing_run_test, cancel_and_close_keep_route_edits_and_only_mark_the_record) {
    bombing_run_record before = run;
    run.cancelled = 0;
    EXPECT_EQ(0, edit({[](HWND dlg) {
                           ui_set_text(dlg, IDC_BR_NAME, "changed");
                           ui_combo_select(dlg, IDC_BR_AIRCRAFT_COUNT, "5");
                           pick(dlg, 0, 0, "LZ", IDC_BR_EGRESS_ADD);
                       },
                       [](HWND dlg) { pick(dlg, IDC_BR_INGRESS, 1, nullptr, IDC_BR_INGRESS_DELETE); },
                       [](HWND dlg) { ui_command(dlg, IDCANCEL); }}));
    before.cancelled = 1;
    EXPECT_EQ(bytes_of(run), bytes_of(before));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.ingress), entries({waypoint("wp1", 50)}));
    EXPECT_EQ(entries_of<bombing_waypoint>(run.egress), entries({waypoint("LZ", 50)}));
    run.cancelled = 0;
    EXPECT_EQ(0, edit({[](HWND dlg) { PostMessageA(dlg, WM_CLOSE, 0, 0); }}));
    EXPECT_EQ(bytes_of(run), bytes_of(before));
}

TEST_F(bombing_run_test, numeric_fields_take_a_leading_number_or_keep_their_value) {
    const struct {
        const char *text;
        bool taken;
        float value;
    } cases[] = {
        {"12.5 ", true, 12.5f}, {"12m", true, 12},  {" -3", true, -3},      {"0x1A", true, 0},
        {"1e38", true, 1e38f},  {"", false, 0},     {"  ", false, 0},       {"abc", false, 0},
        {"nan", false, 0},      {"inf", false, 0},  {"1e39", false, 0},     {"-", false, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        run.target_x = 1, run.target_z = 2, run.release_height = 3, run.attack_time = 4, run.attack_radius = 5;
        EXPECT_EQ(1, edit({[&](HWND dlg) {
            for (int id : {IDC_BR_TARGET_X, IDC_BR_TARGET_Z, IDC_BR_RELEASE_HEIGHT, IDC_BR_ATTACK_TIME, IDC_BR_ATTACK_RADIUS})
                ui_set_text(dlg, id, c.text);
            ui_command(dlg, IDOK);
        }}));
        const float stored[] = {run.target_x, run.target_z, run.release_height, run.attack_time, run.attack_radius};
        for (int i = 0; i < 5; ++i) EXPECT_EQ(stored[i], c.taken ? c.value : float(i + 1)) << i;
    }
}

TEST_F(bombing_run_test, aircraft_type_search_and_count_selection) {
    const std::string long_type(40, 'T');
    const struct {
        std::vector<std::string> types;  // empty: a null list
        const char *stored;
        uint32_t count;
        size_t offered;
        const char *shown_type, *shown_count, *kept_type;
    } cases[] = {
        // The search starts after item 0 and wraps: "A-10" finds "A-10B" first.
        {{"Harrier", "A-10B", "A-10"}, "A-10", 8, 3, "A-10B", "8", "A-10B"},
        {{"Harrier", "A-10B", "A-10"}, "harr", 0, 3, "Harrier", "", "Harrier"},
        {{"Harrier", "A-10B", "A-10"}, "Zulu", 9, 3, "", "", "Zulu"},
        {{}, "Zulu", 1, 0, "", "1", "Zulu"},
        // A type too long for the field is not offered, so its cut name finds nothing.
        {{long_type, "Lynx"}, "TTTTTTTTTTTTTTTTTTTTTTTTTTTTTTT", 3, 1, "", "3", "TTTTTTTTTTTTTTTTTTTTTTTTTTTTTTT"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.stored);
        run.aircraft_types = c.types.empty() ? nullptr : names_of(c.types);
        std::strcpy(run.aircraft_type, c.stored);
        run.aircraft_count = c.count;
        EXPECT_EQ(1, edit({[&](HWND dlg) {
            EXPECT_EQ(ui_combo_items(dlg, IDC_BR_AIRCRAFT_TYPE).size(), c.offered);
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_TYPE), c.shown_type);
            EXPECT_EQ(ui_combo_selected(dlg, IDC_BR_AIRCRAFT_COUNT), c.shown_count);
            ui_command(dlg, IDOK);
        }}));
        EXPECT_STREQ(run.aircraft_type, c.kept_type);
        EXPECT_EQ(run.aircraft_count, c.count);
    }
}

TEST_F(bombing_run_test, hosts_that_fail_leave_routes_whole_and_nothing_leaks) {
    const std::string before = bytes_of(run);
    auto ingress_now = [&] { return entries_of<bombing_waypoint>(run.ingress); };
    const auto ingress_before = ingress_now();
    // A marker list the host will not build, or will not take back: no markers, so nothing to add.
    for (bool refuse_release : {false, true}) {
        host.refuse_acquire = !refuse_release;
        host.refuse_release = refuse_release;
        EXPECT_EQ(1, edit({[](HWND dlg) {
                               EXPECT_EQ(ui_list_items(dlg, IDC_BR_MARKERS), names{});
                               ui_command(dlg, IDC_BR_INGRESS_ADD);
                           },
                           [](HWND dlg) { pick(dlg, IDC_BR_INGRESS, 0, nullptr, IDC_BR_INGRESS_INSERT); },
                           [](HWND dlg) { ui_command(dlg, IDOK); }}));
        EXPECT_EQ(ingress_now(), ingress_before);
    }
    host.refuse_acquire = host.refuse_release = false;
    // Out of memory for the waypoint (0), or for its node (1), on either way in.
    EXPECT_EQ(1, edit({[&](HWND dlg) {
                           host.memory.fail_after = 0;
                           pick(dlg, 0, 0, "LZ", IDC_BR_INGRESS_ADD);
                       },
                       [&](HWND dlg) {
                           host.memory.fail_after = 1;
                           pick(dlg, 0, 0, "LZ", IDC_BR_INGRESS_ADD);
                       },
                       [&](HWND dlg) {
                           host.memory.fail_after = 1;
                           pick(dlg, IDC_BR_INGRESS, 1, "LZ", IDC_BR_INGRESS_INSERT);
                       },
                       [&](HWND dlg) {
                           host.memory.fail_after = -1;
                           EXPECT_EQ(ui_list_items(dlg, IDC_BR_INGRESS).size(), 2u);
                           // Neither the editor nor a host request opens a second one meanwhile.
                           EXPECT_EQ(nested_call([&] { return edit_bombing_run(&run); }), 0);
                           ui_command(dlg, IDOK);
                       }}));
    EXPECT_EQ(ingress_now(), ingress_before);
    run.cancelled = 0xEEEEEEEE;
    EXPECT_EQ(bytes_of(run).substr(0, 60), before.substr(0, 60));
    // Refused without a dialog: a null record, the module or the editor stopped.
    EXPECT_EQ(editor_window(REQUEST_BOMBING_RUN, 0, 0), 0);
    EXPECT_EQ(bombing_run_tidyup(), 1);
    EXPECT_EQ(edit_bombing_run(&run), 0);
    EXPECT_EQ(bombing_run_start(), 1);
    editor_tidyup();
    EXPECT_EQ(edit_bombing_run(&run), 0);
    EXPECT_EQ(run.cancelled, 0xEEEEEEEEu);
}
