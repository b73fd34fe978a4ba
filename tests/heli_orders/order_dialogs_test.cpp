// The six order dialogs through edit_heli_order: which number rule each field
// follows, the name boxes, the list edits that take effect at once, and the
// exact records and sizes the host gets back.
#include <algorithm>

#include "editor/editor.h"
#include "tests/heli_orders/order_fixture.h"

namespace {
const char *const deploy_title = "Edit Deploy Order";
const char *const pickup_title = "Edit Pickup Order";
const char *const wait_title = "Edit Wait Order";
const char *const patrol_title = "Edit Patrol Order";

const char *const strict_refused[] = {"12.5 ", "12m", "   ", "", "nan", "inf", "0x1A", "1e39"};

// The sizes the host was asked for, each once.
std::vector<uint32_t> sizes_asked(const alloc_tracker &memory) {
    std::vector<uint32_t> sizes = memory.requested_sizes();
    std::sort(sizes.begin(), sizes.end());
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    return sizes;
}
}  // namespace

TEST_F(heli_order_test, each_number_field_follows_its_rule_and_a_refused_one_keeps_its_value) {
    heli_order_record *engage = order(HELI_ORDER_ENGAGE), *timed = order(HELI_ORDER_WAIT),
                      *object = order(HELI_ORDER_WAIT), *land = order(HELI_ORDER_LAND);
    object->body.wait->mode = WAIT_FOR_OBJECT;
    std::strcpy(object->body.wait->name, "Tank1");
    engage->body.engage->target_type = 9;  // no line: nothing selected, and kept
    const struct {
        const char *text;
        bool strict, lenient;
        float value;
    } texts[] = {{"-12.5e1", true, true, -125}, {"12.5 ", false, true, 12.5f}, {"12m", false, true, 12},
                 {"0x1A", false, true, 0},      {"   ", false, false, 0},      {"", false, false, 0},
                 {"nan", false, false, 0},      {"inf", false, false, 0},      {"1e39", false, false, 0}};
    const struct {
        heli_order_record *order;
        const char *title;
        int id;
        float *value;
        bool lenient;
    } fields[] = {{engage, "Edit Engage Order", IDC_ENGAGE_RANGE, &engage->body.engage->range, false},
                  {timed, wait_title, IDC_WAIT_TIME, &timed->body.wait->time, false},
                  {object, wait_title, IDC_WAIT_RANGE, &object->body.wait->range, false},
                  {land, "Edit Land Order", IDC_LAND_Z11, &land->body.land->positions[11].z, true}};
    for (const auto &f : fields) {
        for (const auto &t : texts) {
            *f.value = 7;
            EXPECT_EQ(1, edit(f.order, f.title, [&](HWND dlg) {
                ui_set_text(dlg, f.id, t.text);
                ui_command(dlg, IDOK);
            }));
            EXPECT_EQ(*f.value, (f.lenient ? t.lenient : t.strict) ? t.value : 7.0f) << f.title << " \"" << t.text << '"';
        }
    }
    EXPECT_EQ(engage->body.engage->target_type, 9u);
}

TEST_F(heli_order_test, engage_targets_and_land_positions_go_to_their_fields_and_y_is_never_touched) {
    heli_order_record *engage = order(HELI_ORDER_ENGAGE), *land = order(HELI_ORDER_LAND);
    engage_order &e = *engage->body.engage;
    e.target_type = TARGETS_SEAD;
    EXPECT_EQ(1, edit(engage, "Edit Engage Order", [](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_ENGAGE_TARGETS),
                  (names{"All Enemies", "Primary Targets", "Secondary Targets", "SEAD", "AFV"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ENGAGE_TARGETS) + ui_text(dlg, IDC_ENGAGE_RANGE), "SEAD 500.0");
        ui_combo_select(dlg, IDC_ENGAGE_TARGETS, "AFV");
        ui_command(dlg, IDOK);
    }));
    EXPECT_EQ(e.target_type, uint32_t(TARGETS_AFV));

    land_order &l = *land->body.land;
    for (int i = 0; i < LAND_POSITIONS; ++i) l.positions[i] = {-1, 1000.0f + i, -1};
    const int x_ids[] = {IDC_LAND_X0, IDC_LAND_X1, IDC_LAND_X2, IDC_LAND_X3, IDC_LAND_X4,  IDC_LAND_X5,
                         IDC_LAND_X6, IDC_LAND_X7, IDC_LAND_X8, IDC_LAND_X9, IDC_LAND_X10, IDC_LAND_X11};
    const int z_ids[] = {IDC_LAND_Z0, IDC_LAND_Z1, IDC_LAND_Z2, IDC_LAND_Z3, IDC_LAND_Z4,  IDC_LAND_Z5,
                         IDC_LAND_Z6, IDC_LAND_Z7, IDC_LAND_Z8, IDC_LAND_Z9, IDC_LAND_Z10, IDC_LAND_Z11};
    EXPECT_EQ(1, edit(land, "Edit Land Order", [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_LAND_X11), "  -1.0");
        for (int i = 0; i < LAND_POSITIONS; ++i) {
            ui_set_text(dlg, x_ids[i], std::to_string(i) + "m");
            ui_set_text(dlg, z_ids[i], std::to_string(-10 * i));
        }
        ui_command(dlg, IDOK);
    }));
    for (int i = 0; i < LAND_POSITIONS; ++i)
        EXPECT_EQ(std::vector<float>({l.positions[i].x, l.positions[i].y, l.positions[i].z}),
                  std::vector<float>({float(i), 1000.0f + i, -10.0f * i}));

}

TEST_F(heli_order_test, deploy_entries_change_at_once_after_the_duplicate_and_existence_checks) {
    heli_order_record *o = order(HELI_ORDER_DEPLOY);
    const std::string stored(31, 'g');  // of the 40 typed
    auto add = [](const std::string &name, const std::string &x, const std::string &z, int button = IDC_DEPLOY_ADD) {
        return type({{IDC_DEPLOY_NAME, name}, {IDC_DEPLOY_X, x}, {IDC_DEPLOY_Z, z}}, button);
    };
    ui_driver d;
    d.then(deploy_title, add("Tank1", "10", "-20.5"));  // known: no box
    d.then(deploy_title, add("Tank1", "1", "1"));
    answer(d, "Editor Error", IDOK);
    d.then(deploy_title, add("Ghost", "1", "2"));
    answer(d, "Editor Question", IDNO);
    d.then(deploy_title, add(std::string(40, 'g'), "3", "4"));
    answer(d, "Editor Question", IDYES);
    // An empty name or a refused number adds nothing, silently; so does a
    // node the host cannot give (the entry goes back).
    d.then(deploy_title, add("", "1", "1"));
    d.then(deploy_title, add("Grunt7", "1", "12m"));
    for (const char *bad : strict_refused) d.then(deploy_title, add("Grunt7", bad, "1"));
    d.then(deploy_title, [&](HWND dlg) {
        host.memory.fail_after = 1;
        add("Tank2", "1", "1")(dlg);
    });
    d.then(deploy_title, [&](HWND dlg) {
        host.memory.fail_after = -1;
        EXPECT_EQ(ui_list_items(dlg, IDC_DEPLOY_LIST), (names{"Tank1   10.0  -20.5", stored + "    3.0    4.0"}));
        pick(IDC_DEPLOY_LIST, 1, 0)(dlg);
    });
    d.then(deploy_title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_DEPLOY_NAME) + ui_text(dlg, IDC_DEPLOY_X), stored + "   3.0");
        type({{IDC_DEPLOY_X, "5"}}, IDC_DEPLOY_UPDATE)(dlg);  // its own unknown name: moved, no box
    });
    d.then(deploy_title, [&](HWND dlg) {
        ui_list_select_index(dlg, IDC_DEPLOY_LIST, 1);
        add("Tank1", "0", "0", IDC_DEPLOY_UPDATE)(dlg);
    });
    answer(d, "Editor Error", IDOK);
    d.then(deploy_title, pick(IDC_DEPLOY_LIST, 0, IDC_DEPLOY_DELETE));
    d.then(deploy_title, pick(IDC_DEPLOY_LIST, -1, IDCANCEL));  // what was done stays done
    EXPECT_EQ(0, edit(o, d));
    EXPECT_EQ(boxes, (names{"Object <Tank1> already on list", "Object <Ghost> does not exist",
                            "Object <" + stored + "> does not exist", "Object <Tank1> already on list"}));
    std::vector<deploy_entry *> entries = values<deploy_entry>(o->body.deploy);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(bytes(entries[0]->name, 32), stored + '\0');
    EXPECT_EQ(std::make_pair(entries[0]->x, entries[0]->z), std::make_pair(5.0f, 4.0f));
    EXPECT_EQ(bytes(&entries[0]->y, 4), std::string(4, '\xCD'));  // the allocator's fill: never written
    EXPECT_EQ(sizes_asked(host.memory), (std::vector<uint32_t>{12, 44}));
}

TEST_F(heli_order_test, pickup_names_are_cut_to_24_characters_before_they_are_checked) {
    heli_order_record *o = order(HELI_ORDER_PICKUP);
    const std::string name24 = "ABCDEFGHIJKLMNOPQRSTUVWX";
    auto name = [](const std::string &text, int button = IDC_PICKUP_ADD) { return type({{IDC_PICKUP_NAME, text}}, button); };
    ui_driver d;
    d.then(pickup_title, name("Tank1"));
    d.then(pickup_title, name(name24));
    answer(d, "Editor Question", IDYES);
    d.then(pickup_title, name(name24 + "_EXTRA"));  // 30 characters, cut: a duplicate
    answer(d, "Editor Error", IDOK);
    d.then(pickup_title, name(std::string(40, 'Z')));
    answer(d, "Editor Question", IDNO);
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_PICKUP_LIST), (names{"Tank1", name24}));
        ui_list_select_index(dlg, IDC_PICKUP_LIST, 0);
        name("Tank1", IDC_PICKUP_UPDATE)(dlg);  // its own name: nothing, not even a refill
    });
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(SendDlgItemMessageA(dlg, IDC_PICKUP_LIST, LB_GETCURSEL, 0, 0), 0);
        name(name24, IDC_PICKUP_UPDATE)(dlg);
    });
    answer(d, "Editor Error", IDOK);
    d.then(pickup_title, name("Grunt7", IDC_PICKUP_UPDATE));
    d.then(pickup_title, pick(IDC_PICKUP_LIST, 1, 0));
    d.then(pickup_title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_PICKUP_NAME), name24);
        ui_command(dlg, IDC_PICKUP_DELETE);
    });
    d.then(pickup_title, name("sarge0"));
    d.then(pickup_title, name("", IDOK));
    EXPECT_EQ(1, edit(o, d));
    EXPECT_EQ(boxes, (names{"Object <" + name24 + "> does not exist", "Object <" + name24 + "> already on list",
                            "Object <" + std::string(24, 'Z') + "> does not exist",
                            "Object <" + name24 + "> already on list"}));
    std::vector<pickup_entry *> entries = values<pickup_entry>(o->body.pickup);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(bytes(entries[0], 25) + bytes(entries[1], 25),
              "Grunt7" + std::string(19, '\0') + "sarge0" + std::string(19, '\0'));
    EXPECT_EQ(sizes_asked(host.memory), (std::vector<uint32_t>{12, 25}));
}

TEST_F(heli_order_test, wait_enables_the_fields_of_its_mode_and_names_only_real_objects) {
    heli_order_record *o = order(HELI_ORDER_WAIT);
    wait_order &wait = *o->body.wait;  // the host's defaults: a fixed time of 60 s, range 100
    auto enabled = [](HWND dlg) {
        return std::vector<bool>{ui_enabled(dlg, IDC_WAIT_TIME), ui_enabled(dlg, IDC_WAIT_NAME), ui_enabled(dlg, IDC_WAIT_RANGE)};
    };
    ui_driver d;
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_WAIT_MODE), (names{"Wait Until Time", "Wait Fixed Time", "Wait For Object",
                                                              "Wait For Sarge", "Wait For Heli Group"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_WAIT_MODE) + ui_text(dlg, IDC_WAIT_NAME), "Wait Fixed TimeNO_OBJECT");
        EXPECT_EQ(enabled(dlg), (std::vector<bool>{true, false, false}));
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait For Sarge");
    });
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_EQ(enabled(dlg), (std::vector<bool>{false, true, true}));
        type({{IDC_WAIT_RANGE, "250"}}, IDOK)(dlg);  // NO_OBJECT is no object's name
    });
    answer(d, "Editor Error", IDOK);
    d.then(wait_title, type({{IDC_WAIT_NAME, ""}}, IDOK));
    answer(d, "Editor Error", IDOK);
    d.then(wait_title, type({{IDC_WAIT_NAME, "Ghost"}}, IDOK));
    answer(d, "Editor Question", IDNO);
    d.then(wait_title, [&](HWND dlg) {
        EXPECT_EQ(wait.mode, uint32_t(WAIT_FOR_SARGE));  // stored by the first OK already
        ui_command(dlg, IDOK);
    });
    answer(d, "Editor Question", IDYES);
    EXPECT_EQ(1, edit(o, d));
    EXPECT_EQ(boxes, (names{"Invalid object name <NO_OBJECT>", "Invalid object name <>", "Object <Ghost> does not exist",
                            "Object <Ghost> does not exist"}));
    EXPECT_EQ(std::make_pair(std::string(wait.name), wait.range), std::make_pair(std::string("Ghost"), 250.0f));

    // The unchanged unknown name is not asked about again; back in a time
    // mode the name becomes NO_OBJECT and the range stays.
    EXPECT_EQ(1, edit(o, wait_title, type({}, IDOK)));
    EXPECT_EQ(1, edit(o, wait_title, [](HWND dlg) {
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait Until Time");
        ui_command(dlg, IDOK);
    }));
    EXPECT_EQ(bytes(wait.name, 10) + std::to_string(wait.mode), std::string("NO_OBJECT") + '\0' + "0");
    EXPECT_EQ(wait.range, 250.0f);
    // A mode without a line: nothing selected, every edit as the template has
    // it (enabled), and OK treats it as a time mode.
    wait.mode = 7;
    std::memset(wait.name, 'q', sizeof wait.name);
    EXPECT_EQ(1, edit(o, wait_title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_WAIT_MODE), "");
        EXPECT_EQ(enabled(dlg), (std::vector<bool>{true, true, true}));
        ui_command(dlg, IDOK);
    }));
    EXPECT_EQ(std::string(wait.name) + std::to_string(wait.mode), "NO_OBJECT7");
}

TEST_F(heli_order_test, patrol_points_come_and_go_through_the_host_on_the_dialogs_own_marker_list) {
    heli_order_record *o = order(HELI_ORDER_PATROL);
    patrol_order &patrol = *o->body.patrol;  // the host's default: one cycle
    dlist_node *outer = nullptr;             // as Edit Waypoint under the dialog holds one
    ASSERT_TRUE(::host().host_marker_list(&outer, 1));
    ui_driver d;
    d.then(patrol_title, [&](HWND dlg) {
        EXPECT_EQ(host.lists_out, 2);
        EXPECT_EQ(ui_list_items(dlg, IDC_PATROL_MARKERS), (names{"WP_North", "WP_South", "LZ_Alpha"}));
        names cycles = ui_combo_items(dlg, IDC_PATROL_CYCLES);
        EXPECT_EQ(cycles.size(), 20u);
        EXPECT_EQ(cycles[0] + cycles[1] + cycles[19] + ui_combo_selected(dlg, IDC_PATROL_CYCLES), "Unlimited1191");
        pick(IDC_PATROL_MARKERS, -1, IDC_PATROL_ADD)(dlg);  // no marker: nothing
    });
    d.then(patrol_title, pick(IDC_PATROL_MARKERS, 0, IDC_PATROL_ADD));
    d.then(patrol_title, pick(IDC_PATROL_MARKERS, 1, 0));
    d.then(patrol_title, [&](HWND dlg) {
        ui_combo_select(dlg, IDC_PATROL_CYCLES, "5");  // reset by the next list change
        ui_list_select_index(dlg, IDC_PATROL_POINTS, 0);
        pick(IDC_PATROL_MARKERS, 2, IDC_PATROL_INSERT)(dlg);  // before the first point: the new head
    });
    d.then(patrol_title, pick(IDC_PATROL_MARKERS, 0, IDC_PATROL_INSERT));  // no point selected: at the tail
    d.then(patrol_title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_PATROL_CYCLES), "1");
        EXPECT_EQ(ui_list_items(dlg, IDC_PATROL_POINTS), (names{"LZ_Alpha", "WP_North", "WP_South", "WP_North"}));
        pick(IDC_PATROL_POINTS, 1, 0)(dlg);
    });
    d.then(patrol_title, [&](HWND dlg) {
        pick(IDC_PATROL_POINTS, -1, IDC_PATROL_DELETE)(dlg);  // no point: nothing
        host.heli.refuse_patrol_point = true;
        pick(IDC_PATROL_MARKERS, 1, IDC_PATROL_ADD)(dlg);
    });
    d.then(patrol_title, [&](HWND dlg) {
        host.heli.refuse_patrol_point = false;
        host.memory.fail_after = 1;  // a point but no node: the point is destroyed again
        pick(IDC_PATROL_MARKERS, 1, IDC_PATROL_ADD)(dlg);
    });
    d.then(patrol_title, [&](HWND dlg) {
        host.memory.fail_after = -1;
        ui_combo_select(dlg, IDC_PATROL_CYCLES, "Unlimited");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(1, edit(o, d));
    names points;
    for (patrol_point *p : values<patrol_point>(patrol.points)) points.push_back(p->marker_name);
    EXPECT_EQ(points, (names{"LZ_Alpha", "WP_South", "WP_North"}));
    EXPECT_EQ(patrol.cycles, 0u);
    EXPECT_EQ(host.heli.live.size(), 4u);  // the order and its three points
    EXPECT_EQ(host.lists_out, 1);

    patrol.cycles = 25;  // no line: nothing selected, and kept
    EXPECT_EQ(1, edit(o, patrol_title, [](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_PATROL_CYCLES), "");
        ui_command(dlg, IDOK);
    }));
    EXPECT_EQ(patrol.cycles, 25u);
    EXPECT_TRUE(::host().host_marker_list(&outer, 0));
    host.refuse_acquire = true;  // no marker list: no dialog (returning at all shows it)
    EXPECT_EQ(edit_heli_order(host.main_window, o), 0);
}
