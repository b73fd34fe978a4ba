// The six order dialogs through edit_heli_order: what each shows, which
// number rule each field follows, the name boxes, the list edits that take
// effect at once, and the exact records the host gets back. (Entry sizes are
// checked when the host frees what is left in its lists.)
#include <sstream>

#include "tests/heli_orders/order_fixture.h"

namespace {
const char *const deploy = "Edit Deploy Order";
const char *const pickup = "Edit Pickup Order";
const char *const wait_title = "Edit Wait Order";
const char *const patrol = "Edit Patrol Order";
const char *const error = "Editor Error";
const char *const question = "Editor Question";
}  // namespace

// Engage reads its range strictly ("12m" is refused), Land leniently; a
// refused or unselected field keeps its value, and y is never touched.
TEST_F(heli_order_test, engage_and_land_store_each_field_by_its_own_rule) {
    heli_order_record *engage = order(HELI_ORDER_ENGAGE), *land = order(HELI_ORDER_LAND);
    engage_order &e = *engage->body.engage;
    e.target_type = TARGETS_SEAD;
    lines seen;
    const auto targets = [](HWND dlg) { return shown(dlg, {IDC_ENGAGE_TARGETS, IDC_ENGAGE_RANGE}); };
    EXPECT_EQ(1, edit(engage, {{"Edit Engage Order", noting(seen, targets, [](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_ENGAGE_TARGETS),
                  (lines{"All Enemies", "Primary Targets", "Secondary Targets", "SEAD", "AFV"}));
        choosing(IDC_ENGAGE_TARGETS, "AFV", typing({{IDC_ENGAGE_RANGE, "12m"}}, press(IDOK)))(dlg);
    })}}));
    EXPECT_EQ(std::make_pair(e.target_type, e.range), std::make_pair(uint32_t(TARGETS_AFV), 500.0f));
    e.target_type = 9;
    EXPECT_EQ(1, edit(engage, {{"Edit Engage Order", noting(seen, targets, typing({{IDC_ENGAGE_RANGE, "-1.25e2"}}, press(IDOK)))}}));
    EXPECT_EQ(std::make_pair(e.target_type, e.range), std::make_pair(9u, -125.0f));
    EXPECT_EQ(seen, (lines{"SEAD, 500.0", ", 500.0"}));

    land_order &l = *land->body.land;
    for (int i = 0; i < LAND_POSITIONS; ++i) l.positions[i] = {-1, 1000.0f + i, -1};
    const int x_ids[] = {IDC_LAND_X0, IDC_LAND_X1, IDC_LAND_X2, IDC_LAND_X3, IDC_LAND_X4,  IDC_LAND_X5,
                         IDC_LAND_X6, IDC_LAND_X7, IDC_LAND_X8, IDC_LAND_X9, IDC_LAND_X10, IDC_LAND_X11};
    EXPECT_EQ(1, edit(land, {{"Edit Land Order", [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_LAND_X11), "  -1.0");
        for (int i = 0; i < LAND_POSITIONS; ++i) {
            ui_set_text(dlg, x_ids[i], std::to_string(i) + "m");
            ui_set_text(dlg, IDC_LAND_Z0 + i, i % 2 ? "" : std::to_string(-10 * i) + " ");
        }
        ui_command(dlg, IDOK);
    }}}));
    for (int i = 0; i < LAND_POSITIONS; ++i)
        EXPECT_EQ(std::vector<float>({l.positions[i].x, l.positions[i].y, l.positions[i].z}),
                  std::vector<float>({float(i), 1000.0f + i, i % 2 ? -1.0f : -10.0f * i}));
}

TEST_F(heli_order_test, deploy_entries_change_at_once_after_the_duplicate_and_existence_checks) {
    heli_order_record *o = order(HELI_ORDER_DEPLOY);
    const std::string stored(31, 'g');  // of the 40 typed
    auto add = [](const std::string &name, const std::string &x, const std::string &z, int button = IDC_DEPLOY_ADD) {
        return typing({{IDC_DEPLOY_NAME, name}, {IDC_DEPLOY_X, x}, {IDC_DEPLOY_Z, z}}, press(button));
    };
    lines seen;
    const auto look = [](HWND dlg) {
        return listed(dlg, IDC_DEPLOY_LIST) + "|" + shown(dlg, {IDC_DEPLOY_NAME, IDC_DEPLOY_X, IDC_DEPLOY_Z});
    };
    EXPECT_EQ(0, edit(o, {
        {deploy, add("Tank1", "10", "-20.5")},  // known: no box
        {deploy, add("Tank1", "1", "1")}, {error, answer(IDOK)},
        {deploy, add("Ghost", "1", "2")}, {question, answer(IDNO)},
        {deploy, add(std::string(40, 'g'), "3", "4")}, {question, answer(IDYES)},
        // An empty name or a number the strict rule refuses adds nothing,
        // silently; so does a node the host cannot give (the entry goes back).
        {deploy, add("Grunt7", "12.5 ", "1")}, {deploy, add("Grunt7", "1", "12m")}, {deploy, add("", "1", "1")},
        {deploy, [&](HWND dlg) { host.memory.fail_after = 1, add("Tank2", "1", "1")(dlg); }},
        {deploy, [&](HWND dlg) { host.memory.fail_after = -1, picking(IDC_DEPLOY_LIST, 1)(dlg); }},
        {deploy, noting(seen, look, typing({{IDC_DEPLOY_X, "5"}}, press(IDC_DEPLOY_UPDATE)))},  // its own name: no box
        {deploy, noting(seen, look, picking(IDC_DEPLOY_LIST, 1, add("Tank1", "0", "0", IDC_DEPLOY_UPDATE)))},
        {error, answer(IDOK)},
        {deploy, picking(IDC_DEPLOY_LIST, 0, press(IDC_DEPLOY_DELETE))},
        {deploy, noting(seen, look, picking(IDC_DEPLOY_LIST, -1, press(IDCANCEL)))},  // what was done stays done
    }));
    EXPECT_EQ(seen, (lines{"Tank1   10.0  -20.5/>" + stored + "    3.0    4.0|" + stored + ",   3.0,   4.0",
                           "Tank1   10.0  -20.5/" + stored + "    5.0    4.0|" + stored + ",5,   4.0",
                           stored + "    5.0    4.0|Tank1,0,0"}));
    EXPECT_EQ(boxes, (lines{"Object <Tank1> already on list", "Object <Ghost> does not exist",
                            "Object <" + stored + "> does not exist", "Object <Tank1> already on list"}));
    std::vector<deploy_entry *> entries = values<deploy_entry>(o->body.deploy);
    ASSERT_EQ(entries.size(), 1u);
    deploy_entry expected;
    std::memset(&expected, 0xCD, sizeof expected);  // the allocator's fill: y is never written
    std::memcpy(expected.name, stored.c_str(), 32);
    expected.x = 5, expected.z = 4;
    EXPECT_EQ(bytes(entries[0], 44), bytes(&expected, 44));
}

// The edit takes 31 characters, an entry 24: names are cut to 24 before
// they are checked, so the boxes name what would be stored.
TEST_F(heli_order_test, pickup_names_are_cut_to_24_characters_before_they_are_checked) {
    heli_order_record *o = order(HELI_ORDER_PICKUP);
    const std::string name24 = "ABCDEFGHIJKLMNOPQRSTUVWX";
    auto name = [](const std::string &text, int button = IDC_PICKUP_ADD) {
        return typing({{IDC_PICKUP_NAME, text}}, press(button));
    };
    lines seen;
    const auto look = [](HWND dlg) { return listed(dlg, IDC_PICKUP_LIST) + "|" + ui_text(dlg, IDC_PICKUP_NAME); };
    EXPECT_EQ(1, edit(o, {
        {pickup, name("Tank1")},
        {pickup, name(name24)}, {question, answer(IDYES)},
        {pickup, name(name24 + "_EXTRA")}, {error, answer(IDOK)},  // cut: a duplicate
        {pickup, name(std::string(40, 'Z'))}, {question, answer(IDNO)},
        {pickup, picking(IDC_PICKUP_LIST, 0, name("Tank1", IDC_PICKUP_UPDATE))},  // its own name: not even a refill
        {pickup, noting(seen, look, name(name24, IDC_PICKUP_UPDATE))}, {error, answer(IDOK)},
        {pickup, name("Grunt7", IDC_PICKUP_UPDATE)},
        {pickup, picking(IDC_PICKUP_LIST, 1)},
        {pickup, noting(seen, look, press(IDC_PICKUP_DELETE))},
        {pickup, name("sarge0")},
        {pickup, name("", IDOK)},
    }));
    EXPECT_EQ(seen, (lines{">Tank1/" + name24 + "|Tank1", "Grunt7/>" + name24 + "|" + name24}));
    EXPECT_EQ(boxes, (lines{"Object <" + name24 + "> does not exist", "Object <" + name24 + "> already on list",
                            "Object <" + std::string(24, 'Z') + "> does not exist", "Object <" + name24 + "> already on list"}));
    std::vector<pickup_entry *> entries = values<pickup_entry>(o->body.pickup);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(bytes(entries[0], 25) + bytes(entries[1], 25), "Grunt7" + std::string(19, '\0') + "sarge0" + std::string(19, '\0'));
}

// Time and range are read strictly; the fields of the other kind of mode are
// greyed and keep their values. The mode is stored even by an OK that a
// refused name keeps open.
TEST_F(heli_order_test, wait_enables_the_fields_of_its_mode_and_names_only_real_objects) {
    heli_order_record *o = order(HELI_ORDER_WAIT);
    wait_order &wait = *o->body.wait;  // the host's defaults: a fixed time of 60 s, range 100
    const auto stored = [&] {
        std::ostringstream s;
        s << wait.mode << ',' << wait.time << ',' << wait.name << ',' << wait.range;
        return s.str();
    };
    lines seen;
    const auto look = [&](HWND dlg) {
        return shown(dlg, {IDC_WAIT_MODE, IDC_WAIT_TIME, IDC_WAIT_NAME, IDC_WAIT_RANGE}) + "|" + stored();
    };
    EXPECT_EQ(1, edit(o, {
        {wait_title, noting(seen, look, [](HWND dlg) {
             EXPECT_EQ(ui_combo_items(dlg, IDC_WAIT_MODE), (lines{"Wait Until Time", "Wait Fixed Time", "Wait For Object",
                                                                   "Wait For Sarge", "Wait For Heli Group"}));
             ui_combo_select(dlg, IDC_WAIT_MODE, "Wait For Sarge");
         })},
        {wait_title, noting(seen, look, typing({{IDC_WAIT_RANGE, "12m"}}, press(IDOK)))},  // NO_OBJECT is no name
        {error, answer(IDOK)},
        {wait_title, typing({{IDC_WAIT_NAME, ""}}, press(IDOK))}, {error, answer(IDOK)},
        {wait_title, typing({{IDC_WAIT_NAME, "Ghost"}}, press(IDOK))}, {question, answer(IDNO)},
        {wait_title, noting(seen, look, press(IDOK))}, {question, answer(IDYES)},
    }));
    EXPECT_EQ(boxes, (lines{"Invalid object name <NO_OBJECT>", "Invalid object name <>", "Object <Ghost> does not exist",
                            "Object <Ghost> does not exist"}));
    // The unchanged unknown name is not asked about again, and an object mode
    // keeps the time; back in a time mode the name becomes NO_OBJECT.
    EXPECT_EQ(1, edit(o, {{wait_title, noting(seen, look, typing({{IDC_WAIT_RANGE, "250"}, {IDC_WAIT_TIME, "5"}}, press(IDOK)))}}));
    EXPECT_EQ(1, edit(o, {{wait_title, noting(seen, look, choosing(IDC_WAIT_MODE, "Wait Until Time",
                                                                    typing({{IDC_WAIT_TIME, "12.5 "}}, press(IDOK))))}}));
    seen.push_back(stored());
    // A mode without a line: nothing selected, every field as the template
    // has it (enabled), and OK treats it as a time mode, terminator and all.
    wait.mode = 7;
    std::memset(wait.name, 'q', sizeof wait.name);
    const auto fields = [](HWND dlg) { return shown(dlg, {IDC_WAIT_MODE, IDC_WAIT_TIME, IDC_WAIT_RANGE}); };
    EXPECT_EQ(1, edit(o, {{wait_title, noting(seen, fields, typing({{IDC_WAIT_TIME, "-12.5e1"}}, press(IDOK)))}}));
    seen.push_back(stored());
    EXPECT_EQ(seen, (lines{"Wait Fixed Time,  60.0,[NO_OBJECT],[ 100.0]|1,60,NO_OBJECT,100",
                           "Wait For Sarge,[  60.0],NO_OBJECT, 100.0|1,60,NO_OBJECT,100",
                           "Wait For Sarge,[  60.0],Ghost,12m|3,60,NO_OBJECT,100",
                           "Wait For Sarge,[  60.0],Ghost, 100.0|3,60,Ghost,100",
                           "Wait For Sarge,[  60.0],Ghost, 250.0|3,60,Ghost,250", "0,60,NO_OBJECT,250",
                           ",  60.0, 250.0", "7,-125,NO_OBJECT,250"}));
}

// The dialog holds a marker list of its own while Edit Waypoint under it
// holds another; every list change resets the cycles choice to the stored one.
TEST_F(heli_order_test, patrol_points_come_and_go_through_the_host_on_the_dialogs_own_marker_list) {
    heli_order_record *o = order(HELI_ORDER_PATROL);
    patrol_order &p = *o->body.patrol;  // the host's default: one cycle
    dlist_node *outer = nullptr;
    ASSERT_TRUE(::host().host_marker_list(&outer, 1));
    lines cycles{"Unlimited"}, seen;
    for (int n = 1; n <= 19; ++n) cycles.push_back(std::to_string(n));
    const auto look = [](HWND dlg) { return listed(dlg, IDC_PATROL_POINTS) + "|" + ui_combo_selected(dlg, IDC_PATROL_CYCLES); };
    const auto marker = [](int line, int button) { return picking(IDC_PATROL_MARKERS, line, button ? press(button) : nullptr); };
    EXPECT_EQ(1, edit(o, {
        {patrol, noting(seen, look, [&](HWND dlg) {
             EXPECT_EQ(host.lists_out, 2);
             EXPECT_EQ(listed(dlg, IDC_PATROL_MARKERS), "WP_North/WP_South/LZ_Alpha");
             EXPECT_EQ(ui_combo_items(dlg, IDC_PATROL_CYCLES), cycles);
             marker(-1, IDC_PATROL_ADD)(dlg);  // no marker: nothing
         })},
        {patrol, marker(0, IDC_PATROL_ADD)},
        {patrol, marker(1, 0)},  // a double-click adds
        {patrol, choosing(IDC_PATROL_CYCLES, "5", picking(IDC_PATROL_POINTS, 0, marker(2, IDC_PATROL_INSERT)))},  // the new head
        {patrol, marker(0, IDC_PATROL_INSERT)},  // no point selected: at the tail
        {patrol, noting(seen, look, picking(IDC_PATROL_POINTS, 1))},  // a double-click deletes
        {patrol, picking(IDC_PATROL_POINTS, -1, press(IDC_PATROL_DELETE))},  // no point: nothing
        {patrol, choosing(IDC_PATROL_CYCLES, "Unlimited", press(IDOK))},
    }));
    EXPECT_EQ(std::make_pair(p.cycles, host.lists_out), std::make_pair(0u, 1));
    EXPECT_EQ(host.heli.live.size(), 4u);  // the order and its three points
    p.cycles = 25;  // no line: nothing selected, and kept
    EXPECT_EQ(1, edit(o, {{patrol, noting(seen, look, press(IDOK))}}));
    EXPECT_EQ(seen, (lines{"|1", "LZ_Alpha/WP_North/WP_South/WP_North|1", "LZ_Alpha/WP_South/WP_North|"}));
    EXPECT_EQ(p.cycles, 25u);
    EXPECT_TRUE(::host().host_marker_list(&outer, 0));
    host.refuse_acquire = true;  // no marker list: no dialog
    EXPECT_EQ(edit(o, {}), 0);
    heli_order_record odd{};  // nor for a null record or an unknown kind
    odd.kind = HELI_ORDER_KIND_COUNT;
    EXPECT_EQ(edit(nullptr, {}) + edit(&odd, {}), 0);
}
