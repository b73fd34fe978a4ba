// The six order dialogs through edit_heli_order, one broad scenario per kind:
// what each shows, which number rule each field follows, the name boxes, the
// list edits that take effect at once, and the exact records and sizes the
// host gets back.
#include "tests/heli_orders/order_fixture.h"
#include "tests/support/dialog_template.h"

namespace {
const char *const deploy_title = "Edit Deploy Order";
const char *const pickup_title = "Edit Pickup Order";
const char *const wait_title = "Edit Wait Order";
const char *const patrol_title = "Edit Patrol Order";

uint32_t word_of(float value) {
    uint32_t word;
    std::memcpy(&word, &value, 4);
    return word;
}
constexpr uint32_t unwritten = 0xCDCDCDCD;  // the host allocator's fill
}  // namespace

TEST_F(heli_order_test, engage_stores_its_choice_and_a_strictly_read_range_on_ok_only) {
    heli_order_record *o = order(HELI_ORDER_ENGAGE);
    engage_order &engage = *o->body.engage;
    engage.target_type = TARGETS_SEAD;
    engage.range = 250.0f;
    EXPECT_EQ(1, edit(o, "Edit Engage Order", {[](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_ENGAGE_TARGETS),
                  (names{"All Enemies", "Primary Targets", "Secondary Targets", "SEAD", "AFV"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ENGAGE_TARGETS), "SEAD");
        EXPECT_EQ(ui_text(dlg, IDC_ENGAGE_RANGE), " 250.0");
        ui_combo_select(dlg, IDC_ENGAGE_TARGETS, "AFV");
        ui_set_text(dlg, IDC_ENGAGE_RANGE, "-12.5e1");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(engage.target_type, uint32_t(TARGETS_AFV));
    EXPECT_EQ(engage.range, -125.0f);

    // A refused range keeps its value and OK still closes; a type without a
    // line shows nothing selected and is kept.
    engage.target_type = 9;
    for (const std::string &text : strict_refused()) {
        EXPECT_EQ(1, edit(o, "Edit Engage Order", {[&](HWND dlg) {
            EXPECT_EQ(ui_combo_selected(dlg, IDC_ENGAGE_TARGETS), "");
            ui_set_text(dlg, IDC_ENGAGE_RANGE, text);
            ui_command(dlg, IDOK);
        }})) << text;
        EXPECT_EQ(engage.range, -125.0f) << '"' << text << '"';
    }
    EXPECT_EQ(engage.target_type, 9u);
    EXPECT_EQ(0, edit(o, "Edit Engage Order", {[](HWND dlg) {
        ui_combo_select(dlg, IDC_ENGAGE_TARGETS, "SEAD");
        ui_set_text(dlg, IDC_ENGAGE_RANGE, "1");
        ui_command(dlg, IDCANCEL);
    }}));
    EXPECT_EQ(engage.target_type, 9u);
    EXPECT_EQ(engage.range, -125.0f);
}

TEST_F(heli_order_test, deploy_list_changes_at_once_with_duplicate_and_existence_checks) {
    heli_order_record *o = order(HELI_ORDER_DEPLOY);
    const std::string long_name(40, 'g'), stored_name(31, 'g');
    auto type = [](HWND dlg, const std::string &name, const std::string &x, const std::string &z, int button) {
        ui_set_text(dlg, IDC_DEPLOY_NAME, name);
        ui_set_text(dlg, IDC_DEPLOY_X, x);
        ui_set_text(dlg, IDC_DEPLOY_Z, z);
        ui_command(dlg, button);
    };
    std::string duplicate, unknown, renamed_to_other;
    ui_driver d;
    d.then(deploy_title, [&](HWND dlg) { type(dlg, "Tank1", "10", "-20.5", IDC_DEPLOY_ADD); });  // known: no box
    d.then(deploy_title, [&](HWND dlg) { type(dlg, "Tank1", "1", "1", IDC_DEPLOY_ADD); });
    d.answer_box("Editor Error", IDOK, &duplicate);
    d.then(deploy_title, [&](HWND dlg) { type(dlg, "Ghost", "1", "2", IDC_DEPLOY_ADD); });
    d.answer_box("Editor Question", IDNO);
    d.then(deploy_title, [&](HWND dlg) { type(dlg, long_name, "3", "4", IDC_DEPLOY_ADD); });
    d.answer_box("Editor Question", IDYES, &unknown);
    // An empty name or a number the strict rule refuses adds nothing, silently.
    d.then(deploy_title, [&](HWND dlg) { type(dlg, "", "1", "1", IDC_DEPLOY_ADD); });
    for (const std::string &bad : strict_refused()) {
        d.then(deploy_title, [&, bad](HWND dlg) { type(dlg, "Grunt7", bad, "1", IDC_DEPLOY_ADD); });
        d.then(deploy_title, [&, bad](HWND dlg) { type(dlg, "Grunt7", "1", bad, IDC_DEPLOY_ADD); });
    }
    // Out of memory for the entry, then for its node: nothing added, nothing kept.
    d.then(deploy_title, [&](HWND dlg) {
        host.memory.fail_after = 0;
        type(dlg, "Tank2", "1", "1", IDC_DEPLOY_ADD);
    });
    d.then(deploy_title, [&](HWND dlg) {
        host.memory.fail_after = 1;
        type(dlg, "Tank2", "1", "1", IDC_DEPLOY_ADD);
    });
    d.then(deploy_title, [&](HWND dlg) {
        host.memory.fail_after = -1;
        EXPECT_EQ(ui_list_items(dlg, IDC_DEPLOY_LIST),
                  (names{"Tank1   10.0  -20.5", stored_name + "    3.0    4.0"}));
        ui_list_select_index(dlg, IDC_DEPLOY_LIST, 1);
        ui_list_double_click(dlg, IDC_DEPLOY_LIST);
    });
    d.then(deploy_title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_DEPLOY_NAME), stored_name);
        EXPECT_EQ(ui_text(dlg, IDC_DEPLOY_X), "   3.0");
        EXPECT_EQ(ui_text(dlg, IDC_DEPLOY_Z), "   4.0");
        // Its own (unknown) name with new coordinates: moved, no box.
        ui_set_text(dlg, IDC_DEPLOY_X, "5");
        ui_command(dlg, IDC_DEPLOY_UPDATE);
    });
    d.then(deploy_title, [&](HWND dlg) {
        EXPECT_EQ(SendDlgItemMessageA(dlg, IDC_DEPLOY_LIST, LB_GETCURSEL, 0, 0), LB_ERR);
        type(dlg, "Tank1", "0", "0", IDC_DEPLOY_UPDATE);  // nothing selected: nothing happens
    });
    d.then(deploy_title, [&](HWND dlg) {
        ui_list_select_index(dlg, IDC_DEPLOY_LIST, 1);
        type(dlg, "Tank1", "0", "0", IDC_DEPLOY_UPDATE);
    });
    d.answer_box("Editor Error", IDOK, &renamed_to_other);
    d.then(deploy_title, [&](HWND dlg) {
        ui_list_select_index(dlg, IDC_DEPLOY_LIST, 0);
        ui_command(dlg, IDC_DEPLOY_DELETE);
    });
    d.then(deploy_title, [&](HWND dlg) {
        ui_command(dlg, IDC_DEPLOY_DELETE);  // no selection: nothing
        ui_command(dlg, IDCANCEL);           // the changes stay: they were made at once
    });
    EXPECT_EQ(0, edit(o, d));
    EXPECT_EQ(duplicate, "Object <Tank1> already on list");
    EXPECT_EQ(renamed_to_other, duplicate);
    EXPECT_EQ(unknown, "Object <" + stored_name + "> does not exist");

    std::vector<deploy_entry *> entries = values<deploy_entry>(o->body.deploy);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(bytes(entries[0]->name, 32), stored_name + '\0');
    EXPECT_EQ(entries[0]->x, 5.0f);
    EXPECT_EQ(entries[0]->z, 4.0f);
    EXPECT_EQ(word_of(entries[0]->y), unwritten);  // the y word is never written
    EXPECT_EQ(sizes_asked(), (std::vector<uint32_t>{12, 44}));
}

TEST_F(heli_order_test, pickup_names_are_cut_to_the_entry_and_checked_as_stored) {
    heli_order_record *o = order(HELI_ORDER_PICKUP);
    const std::string name24 = "ABCDEFGHIJKLMNOPQRSTUVWX";
    std::string duplicate, unknown, cut_unknown, renamed_to_other;
    auto type = [](HWND dlg, const std::string &name, int button) {
        ui_set_text(dlg, IDC_PICKUP_NAME, name);
        ui_command(dlg, button);
    };
    ui_driver d;
    d.then(pickup_title, [&](HWND dlg) { type(dlg, "Tank1", IDC_PICKUP_ADD); });
    d.then(pickup_title, [&](HWND dlg) { type(dlg, name24, IDC_PICKUP_ADD); });
    d.answer_box("Editor Question", IDYES, &unknown);
    d.then(pickup_title, [&](HWND dlg) { type(dlg, name24 + "_EXTRA", IDC_PICKUP_ADD); });  // 30: cut, a duplicate
    d.answer_box("Editor Error", IDOK, &duplicate);
    d.then(pickup_title, [&](HWND dlg) { type(dlg, std::string(40, 'Z'), IDC_PICKUP_ADD); });
    d.answer_box("Editor Question", IDNO, &cut_unknown);
    d.then(pickup_title, [&](HWND dlg) { type(dlg, "", IDC_PICKUP_ADD); });
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_PICKUP_LIST), (names{"Tank1", name24}));
        ui_list_select_index(dlg, IDC_PICKUP_LIST, 0);
        type(dlg, "Tank1", IDC_PICKUP_UPDATE);  // its own name: nothing, not even a refill
    });
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(SendDlgItemMessageA(dlg, IDC_PICKUP_LIST, LB_GETCURSEL, 0, 0), 0);
        type(dlg, name24, IDC_PICKUP_UPDATE);
    });
    d.answer_box("Editor Error", IDOK, &renamed_to_other);
    d.then(pickup_title, [&](HWND dlg) { type(dlg, "Grunt7", IDC_PICKUP_UPDATE); });  // known: no box
    d.then(pickup_title, [&](HWND dlg) {
        ui_list_select_index(dlg, IDC_PICKUP_LIST, 1);
        ui_list_double_click(dlg, IDC_PICKUP_LIST);
    });
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_PICKUP_NAME), name24);
        ui_command(dlg, IDC_PICKUP_DELETE);
    });
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_PICKUP_LIST), (names{"Grunt7"}));
        type(dlg, "sarge0", IDC_PICKUP_ADD);
    });
    d.then(pickup_title, [](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(1, edit(o, d));
    EXPECT_EQ(unknown, "Object <" + name24 + "> does not exist");
    EXPECT_EQ(duplicate, "Object <" + name24 + "> already on list");
    EXPECT_EQ(cut_unknown, "Object <" + std::string(24, 'Z') + "> does not exist");
    EXPECT_EQ(renamed_to_other, duplicate);

    std::vector<pickup_entry *> entries = values<pickup_entry>(o->body.pickup);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_STREQ(entries[0]->name, "Grunt7");
    EXPECT_EQ(bytes(entries[1]->name, 25), std::string("sarge0") + std::string(19, '\0'));
    EXPECT_EQ(sizes_asked(), (std::vector<uint32_t>{12, 25}));
}

TEST_F(heli_order_test, wait_enables_the_fields_of_its_mode_and_validates_object_names) {
    heli_order_record *o = order(HELI_ORDER_WAIT);
    wait_order &wait = *o->body.wait;  // the host's defaults: a fixed time of 60 s, range 100
    std::string no_object, empty, unknown;
    ui_driver d;
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_WAIT_MODE), (names{"Wait Until Time", "Wait Fixed Time", "Wait For Object",
                                                              "Wait For Sarge", "Wait For Heli Group"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_WAIT_MODE), "Wait Fixed Time");
        EXPECT_EQ(ui_text(dlg, IDC_WAIT_TIME) + ui_text(dlg, IDC_WAIT_NAME) + ui_text(dlg, IDC_WAIT_RANGE),
                  "  60.0NO_OBJECT 100.0");
        EXPECT_TRUE(ui_enabled(dlg, IDC_WAIT_TIME) && !ui_enabled(dlg, IDC_WAIT_NAME) && !ui_enabled(dlg, IDC_WAIT_RANGE));
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait For Sarge");
    });
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_TRUE(!ui_enabled(dlg, IDC_WAIT_TIME) && ui_enabled(dlg, IDC_WAIT_NAME) && ui_enabled(dlg, IDC_WAIT_RANGE));
        ui_set_text(dlg, IDC_WAIT_RANGE, "250");
        ui_command(dlg, IDOK);  // NO_OBJECT names no object
    });
    d.answer_box("Editor Error", IDOK, &no_object);
    d.then(wait_title, [&](HWND dlg) {
        ui_set_text(dlg, IDC_WAIT_NAME, "");
        ui_command(dlg, IDOK);
    });
    d.answer_box("Editor Error", IDOK, &empty);
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_EQ(wait.mode, uint32_t(WAIT_FOR_SARGE));  // stored by the refused OK already
        ui_set_text(dlg, IDC_WAIT_NAME, "Ghost");
        ui_command(dlg, IDOK);
    });
    d.answer_box("Editor Question", IDNO);
    d.then(wait_title, [&](HWND dlg) { ui_command(dlg, IDOK); });
    d.answer_box("Editor Question", IDYES, &unknown);
    EXPECT_EQ(1, edit(o, d));
    EXPECT_EQ(no_object, "Invalid object name <NO_OBJECT>");
    EXPECT_EQ(empty, "Invalid object name <>");
    EXPECT_EQ(unknown, "Object <Ghost> does not exist");
    EXPECT_STREQ(wait.name, "Ghost");
    EXPECT_EQ(wait.range, 250.0f);
    EXPECT_EQ(wait.time, 60.0f);

    // The unchanged unknown name is not asked about again; a refused range keeps its value.
    for (const std::string &bad : strict_refused()) {
        EXPECT_EQ(1, edit(o, wait_title, {[&](HWND dlg) {
            ui_set_text(dlg, IDC_WAIT_RANGE, bad);
            ui_command(dlg, IDOK);
        }}));
    }
    EXPECT_EQ(wait.range, 250.0f);

    // Back to a time mode: the name becomes NO_OBJECT, the range stays.
    EXPECT_EQ(1, edit(o, wait_title, {[](HWND dlg) {
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait Until Time");
        ui_set_text(dlg, IDC_WAIT_TIME, "90");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(wait.mode, uint32_t(WAIT_UNTIL_TIME));
    EXPECT_EQ(bytes(wait.name, 10), std::string("NO_OBJECT") + '\0');
    EXPECT_EQ(std::make_pair(wait.time, wait.range), std::make_pair(90.0f, 250.0f));

    // A mode without a line: nothing selected, the edits keep their template
    // state (enabled), and OK treats it as a time mode.
    wait.mode = 7;
    std::memset(wait.name, 'q', sizeof wait.name);
    for (const std::string &bad : strict_refused()) {
        EXPECT_EQ(1, edit(o, wait_title, {[&](HWND dlg) {
            EXPECT_EQ(ui_combo_selected(dlg, IDC_WAIT_MODE), "");
            EXPECT_TRUE(ui_enabled(dlg, IDC_WAIT_TIME) && ui_enabled(dlg, IDC_WAIT_NAME) && ui_enabled(dlg, IDC_WAIT_RANGE));
            ui_set_text(dlg, IDC_WAIT_TIME, bad);
            ui_command(dlg, IDOK);
        }}));
    }
    EXPECT_EQ(wait.mode, 7u);
    EXPECT_EQ(wait.time, 90.0f);
    EXPECT_STREQ(wait.name, "NO_OBJECT");
}

TEST_F(heli_order_test, patrol_points_come_and_go_through_the_host_on_its_own_marker_list) {
    heli_order_record *o = order(HELI_ORDER_PATROL);
    patrol_order &patrol = *o->body.patrol;  // the host's default: one cycle
    // Edit Waypoint under the dialog holds a marker list of its own.
    dlist_node *outer = nullptr;
    ASSERT_TRUE(::host().host_marker_list(&outer, 1));
    auto points = [&] {
        names out;
        for (patrol_point *p : values<patrol_point>(patrol.points)) out.push_back(p->marker_name);
        return out;
    };
    auto add = [](HWND dlg, int marker, int button) {
        ui_list_select_index(dlg, IDC_PATROL_MARKERS, marker);
        ui_command(dlg, button);
    };
    ui_driver d;
    d.then(patrol_title, [&](HWND dlg) {
        EXPECT_EQ(host.lists_out, 2);
        EXPECT_EQ(ui_list_items(dlg, IDC_PATROL_MARKERS), (names{"WP_North", "WP_South", "LZ_Alpha"}));
        names cycles = ui_combo_items(dlg, IDC_PATROL_CYCLES);
        EXPECT_EQ(cycles.size(), 20u);
        EXPECT_EQ(cycles.front() + cycles[1] + cycles.back(), "Unlimited119");
        EXPECT_EQ(ui_combo_selected(dlg, IDC_PATROL_CYCLES), "1");
        ui_command(dlg, IDC_PATROL_ADD);  // no marker selected: nothing
        add(dlg, 0, IDC_PATROL_ADD);
    });
    d.then(patrol_title, [&](HWND dlg) {
        ui_list_select_index(dlg, IDC_PATROL_MARKERS, 1);
        ui_list_double_click(dlg, IDC_PATROL_MARKERS);
    });
    d.then(patrol_title, [&](HWND dlg) {
        // A choice not yet stored is reset by the next list change.
        ui_combo_select(dlg, IDC_PATROL_CYCLES, "5");
        ui_list_select_index(dlg, IDC_PATROL_POINTS, 0);
        add(dlg, 2, IDC_PATROL_INSERT);  // before the first point: the new head
    });
    d.then(patrol_title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_PATROL_CYCLES), "1");
        add(dlg, 0, IDC_PATROL_INSERT);  // no point selected: appended; the same marker again
    });
    d.then(patrol_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_PATROL_POINTS), (names{"LZ_Alpha", "WP_North", "WP_South", "WP_North"}));
        ui_list_select_index(dlg, IDC_PATROL_POINTS, 1);
        ui_list_double_click(dlg, IDC_PATROL_POINTS);
    });
    d.then(patrol_title, [&](HWND dlg) {
        ui_command(dlg, IDC_PATROL_DELETE);  // no point selected: nothing
        host.heli.refuse_patrol_point = true;
        add(dlg, 1, IDC_PATROL_ADD);
    });
    d.then(patrol_title, [&](HWND dlg) {
        host.heli.refuse_patrol_point = false;
        host.memory.fail_after = 1;  // the point is made, its node is not: the point goes again
        add(dlg, 1, IDC_PATROL_ADD);
    });
    d.then(patrol_title, [&](HWND dlg) {
        host.memory.fail_after = -1;
        EXPECT_EQ(ui_list_items(dlg, IDC_PATROL_POINTS), (names{"LZ_Alpha", "WP_South", "WP_North"}));
        ui_combo_select(dlg, IDC_PATROL_CYCLES, "Unlimited");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(1, edit(o, d));
    EXPECT_EQ(points(), (names{"LZ_Alpha", "WP_South", "WP_North"}));
    EXPECT_EQ(patrol.cycles, 0u);
    EXPECT_EQ(host.heli.live.size(), 4u);  // the order and its three points
    EXPECT_EQ(host.lists_out, 1);

    // A stored number without a line shows nothing; OK without a choice keeps it.
    patrol.cycles = 25;
    EXPECT_EQ(1, edit(o, patrol_title, {[](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_PATROL_CYCLES), "");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(patrol.cycles, 25u);
    EXPECT_TRUE(::host().host_marker_list(&outer, 0));

    // No marker list: the dialog does not open (returning at all shows it).
    host.refuse_acquire = true;
    EXPECT_EQ(edit_heli_order(host.main_window, o), 0);
    EXPECT_EQ(host.lists_out, 0);
}

TEST_F(heli_order_test, land_reads_each_coordinate_leniently_and_leaves_y_alone) {
    heli_order_record *o = order(HELI_ORDER_LAND);
    land_order &land = *o->body.land;
    const int x_ids[] = {IDC_LAND_X0, IDC_LAND_X1, IDC_LAND_X2, IDC_LAND_X3, IDC_LAND_X4,  IDC_LAND_X5,
                         IDC_LAND_X6, IDC_LAND_X7, IDC_LAND_X8, IDC_LAND_X9, IDC_LAND_X10, IDC_LAND_X11};
    const int z_ids[] = {IDC_LAND_Z0, IDC_LAND_Z1, IDC_LAND_Z2, IDC_LAND_Z3, IDC_LAND_Z4,  IDC_LAND_Z5,
                         IDC_LAND_Z6, IDC_LAND_Z7, IDC_LAND_Z8, IDC_LAND_Z9, IDC_LAND_Z10, IDC_LAND_Z11};
    const struct {
        const char *text;
        bool taken;
        float value;
    } fields[LAND_POSITIONS] = {
        {"12m", true, 12},  {"12.5 ", true, 12.5f}, {"-3e2x", true, -300}, {"0x1A", true, 0},
        {"", false, 0},     {"   ", false, 0},      {"abc", false, 0},     {"nan", false, 0},
        {"inf", false, 0},  {"1e39", false, 0},     {"-inf", false, 0},    {".", false, 0},
    };
    for (int i = 0; i < LAND_POSITIONS; ++i) land.positions[i] = {float(i), 1000.0f + i, -float(i)};
    EXPECT_EQ(1, edit(o, "Edit Land Order", {[&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_LAND_X0) + ui_text(dlg, IDC_LAND_Z11), "   0.0 -11.0");
        for (int i = 0; i < LAND_POSITIONS; ++i) {
            ui_set_text(dlg, x_ids[i], fields[i].text);
            ui_set_text(dlg, z_ids[11 - i], fields[i].text);
        }
        ui_command(dlg, IDOK);
    }}));
    for (int i = 0; i < LAND_POSITIONS; ++i) {
        SCOPED_TRACE(fields[i].text);
        EXPECT_EQ(land.positions[i].x, fields[i].taken ? fields[i].value : float(i));
        EXPECT_EQ(land.positions[11 - i].z, fields[i].taken ? fields[i].value : -float(11 - i));
        EXPECT_EQ(land.positions[i].y, 1000.0f + i);
    }
    const std::string before = snapshot(o);
    EXPECT_EQ(0, edit(o, "Edit Land Order", {[&](HWND dlg) {
        for (int id : x_ids) ui_set_text(dlg, id, "7");
        ui_command(dlg, IDCANCEL);
    }}));
    EXPECT_EQ(snapshot(o), before);
}

TEST(heli_order_templates, titles_sizes_and_control_roles) {
    constexpr DWORD modal = DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU;
    constexpr DWORD list_role = LBS_SORT | LBS_NOTIFY | LBS_EXTENDEDSEL | LBS_MULTIPLESEL;
    const struct {
        int dialog;
        const char *title;
        int cx, cy;
        size_t controls;
        std::vector<int> lists, combos, default_buttons;
    } dialogs[] = {
        {146, "Select New Order Type", 186, 100, 3, {1168}, {}, {1}},
        {148, "Edit Engage Order", 186, 90, 6, {}, {1191}, {1}},
        {149, "Edit Deploy Order", 268, 159, 14, {1155}, {}, {1}},
        {150, "Edit Pickup Order", 233, 165, 9, {1185}, {}, {1}},
        {151, "Edit Patrol Order", 236, 201, 11, {1173, 1122}, {1178}, {1, 1174, 1175, 1176}},
        {152, "Edit Wait Order", 186, 159, 10, {}, {1193}, {1}},
        {153, "Edit Land Order", 130, 236, 29, {}, {}, {1}},
    };
    for (const auto &e : dialogs) {
        SCOPED_TRACE(e.dialog);
        dialog_template t = read_template(e.dialog);
        EXPECT_EQ(t.title, e.title);
        EXPECT_EQ(std::make_pair(t.cx, t.cy), std::make_pair(e.cx, e.cy));
        EXPECT_EQ(t.style & (modal | DS_SETFONT), modal | DS_SETFONT);
        EXPECT_EQ(t.controls.size(), e.controls);
        for (int id : e.lists) EXPECT_EQ(style_of(t, id) & list_role, DWORD(LBS_NOTIFY)) << id;
        for (int id : e.combos) EXPECT_EQ(style_of(t, id) & CBS_DROPDOWNLIST, DWORD(CBS_DROPDOWNLIST)) << id;
        for (const template_control &c : t.controls) EXPECT_TRUE(c.class_ordinal) << c.id;
        for (int id : e.default_buttons) EXPECT_EQ(style_of(t, id) & BS_TYPEMASK, DWORD(BS_DEFPUSHBUTTON)) << id;
    }
    // The land edits: x at 19 and z at 66, a row every 14 units from 36.
    dialog_template land = read_template(153);
    for (int row = 0; row < LAND_POSITIONS; ++row) {
        const template_control &x = land.controls[5 + 2 * row], &z = land.controls[6 + 2 * row];
        EXPECT_EQ(std::vector<int>({x.x, x.y, x.cx, x.cy, z.x, z.y}),
                  std::vector<int>({19, 36 + 14 * row, 45, 12, 66, 36 + 14 * row}));
    }
}
