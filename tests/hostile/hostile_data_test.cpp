// Hostile host data: names that fill their fields to the last byte with no
// terminator, in every record and list entry the editor reads, next to
// fields of other letters so that a read past a name would show; nodes that
// hold no record where lists may have them; numbers as wide as a float's;
// and settings files full of garbage. Entries sit at the end of host blocks
// that end at untouchable pages, so a read past a block faults. Shown names
// must be cut within their fields, and what OK stores must end within them.
#include <cstdlib>
#include <cstring>

#include "air/bombing_run.h"
#include "air/rally_point.h"
#include "heli/heli_group.h"
#include "heli/waypoints.h"
#include "heli_orders/order_dialogs.h"
#include "placement/create_objects.h"
#include "resources/air_ids.h"
#include "resources/ground_ids.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"
#include "resources/placement_ids.h"
#include "resources/window_ids.h"
#include "tests/hostile/hostile_fixture.h"
#include "tests/support/steps.h"
#include "windows/status.h"

namespace {
std::string run_of(char c, size_t n = 31) { return std::string(n, c); }
// A unit line of the ground dialogs, "name (type)", of two runs of 31.
std::string pair_of(char name, char type) { return run_of(name) + " (" + run_of(type) + ")"; }

// Fills a fixed field to its last byte: no terminator.
template <size_t N>
void fill(char (&field)[N], char c) {
    std::memset(field, c, N);
}

// The field's text up to its terminator or its end.
template <size_t N>
std::string text_of(const char (&field)[N]) {
    return std::string(field, strnlen(field, N));
}

unit_entry unit(int32_t id, char name, char type_name) {
    unit_entry u;
    fill(u.name, name);
    fill(u.type_name, type_name);
    u.id = id;
    return u;
}

using lines = std::vector<std::string>;
using script = std::vector<std::pair<std::string, step>>;
}  // namespace

class hostile_data_test : public hostile_test {
protected:
    lines seen;  // what the dialogs showed, in order
};

// The allocator the hostile tests rely on: a block's last byte is followed
// by a page the process may not touch, and so is a block once freed.
TEST_F(hostile_data_test, host_blocks_end_at_an_untouchable_page) {
    auto untouchable = [](const void *at) {
        MEMORY_BASIC_INFORMATION info{};
        VirtualQuery(at, &info, sizeof info);
        return info.Protect == PAGE_NOACCESS || info.State != MEM_COMMIT;
    };
    auto *block = static_cast<char *>(host.memory.alloc(25));
    EXPECT_FALSE(untouchable(block + 24));
    EXPECT_TRUE(untouchable(block + 25));
    host.memory.free(block, 25);
    EXPECT_TRUE(untouchable(block));
}

TEST_F(hostile_data_test, ground_dialogs_cut_unterminated_names_within_their_fields) {
    host.units = {unit(1, 'A', 'B'), test_host::unit(2, "Tank2", "tank")};
    group_record *g = host.make_group("", {unit(3, 'C', 'D')});
    fill(g->name, 'G');
    sarge_order_record &o = g->orders[0];
    o.type = SARGE_ORDER_HALT;
    fill(o.name, 'N');
    fill(o.destination, 'E');
    fill(o.formation, 'F');
    fill(o.message, 'M');
    fill(o.message_target, 'T');
    g->order_count = 1;
    contingency_order_record &c = g->contingencies[0];
    c.trigger = TRIGGER_MESSAGE;
    c.order = o;
    fill(c.order.name, 'O');
    fill(c.next_order, 'X');
    fill(c.trigger_string, 'S');
    g->contingency_count = 1;
    dlist_node *groups = host.make_group_list({g});
    cleanup.push_back([this, groups] { host.free_group_list(groups); });

    EXPECT_EQ(drive(script{
                  {"Group List", noting(seen, screen({IDC_GL_GROUPS}), picking(IDC_GL_GROUPS, 0, press(IDC_GL_EDIT)))},
                  {"Dialog", noting(seen, screen({IDC_GC_NAME, IDC_GC_AVAILABLE, IDC_GC_MEMBERS}), press(IDC_GC_EDIT_ORDERS))},
                  {"Dialog", noting(seen, screen({IDC_GO_ORDERS, IDC_GO_CONTINGENCIES}), picking(IDC_GO_ORDERS, 0, press(IDC_GO_EDIT)))},
                  {"Sarge Order", noting(seen, screen({IDC_ORDER_NAME, IDC_ORDER_MESSAGE, IDC_ORDER_MESSAGE_TARGET}), press(IDOK))},
                  {"Dialog", picking(IDC_GO_CONTINGENCIES, 0, press(IDC_GO_C_EDIT))},
                  {"Sarge Order", noting(seen, screen({IDC_CT_NEXT_ORDER, IDC_CT_VALUE, IDC_ORDER_NAME}), press(IDOK))},
                  {"Dialog", press(IDOK)}, {"Dialog", press(IDOK)}, {"Group List", press(IDOK)}},
              [&] { return editor_window(REQUEST_GROUP_LIST, reinterpret_cast<uintptr_t>(groups), 0); }),
              1);
    // A stored target that is no host name shows the first host name.
    EXPECT_EQ(seen, (lines{">" + run_of('G'), run_of('G') + "|" + pair_of('A', 'B') + "/Tank2 (tank)|" + pair_of('C', 'D'),
                           run_of('N') + " (Halt)|" + run_of('O') + " (Message)", run_of('N') + "|" + run_of('M') + "|HQ",
                           run_of('X', 15) + "|" + run_of('S') + "|" + run_of('O')}));
    // What OK stored ends within each field; what it does not store keeps its bytes.
    const sarge_order_record &stored = g->orders[0];
    EXPECT_EQ(text_of(g->name) + "|" + text_of(stored.name) + "|" + text_of(stored.message) + "|" +
                  text_of(stored.message_target),
              run_of('G') + "|" + run_of('N') + "|" + run_of('M') + "|HQ");
    EXPECT_EQ(std::string(stored.destination, 32), run_of('E', 32));
    EXPECT_EQ(text_of(g->contingencies[0].next_order) + "|" + text_of(g->contingencies[0].trigger_string),
              run_of('X', 15) + "|" + run_of('S'));
    const unit_entry *member = values<unit_entry>(g->members).at(0);
    EXPECT_EQ(text_of(member->name) + "|" + text_of(member->type_name), run_of('C') + "|" + run_of('D'));
}

TEST_F(hostile_data_test, object_name_list_skips_empty_nodes_and_cuts_names) {
    unit_entry plain = test_host::unit(8, "Jeep3", "jeep"), hostile = unit(7, 'E', 'F');
    dlist_node *objects = host.held_entries<unit_entry>({&hostile, nullptr, &plain});
    EXPECT_EQ(drive(script{{"Dialog", noting(seen, screen({IDC_ON_LIST}), picking(IDC_ON_LIST, 0, press(IDC_ON_EDIT_NAME)))},
                           {"", noting(seen, screen({IDC_EN_NAME}), press(IDOK))},
                           {"Dialog", press(IDOK)}},
                    [&] { return editor_window(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(objects), 0); }),
              1);
    EXPECT_EQ(seen, (lines{"7 : " + run_of('E') + "  (" + run_of('F') + ")/8 : Jeep3  (jeep)", run_of('E')}));
    EXPECT_EQ(text_of(values<unit_entry>(objects)[0]->name), run_of('E'));
}

TEST_F(hostile_data_test, heli_dialogs_cut_unterminated_names_and_skip_empty_nodes) {
    host.rally_points = {test_host::rally_point(5, "")};
    fill(host.rally_points[0].name, 'R');
    fill(host.rally_points[0].host_bytes, 'r');
    host.markers = {run_of('L', 40), "WP1"};
    host.existing_names = {};
    heli_group_record *g = host.heli.create_heli_group();
    cleanup.push_back([this, g] { host.heli.destroy_heli_group(g); });
    fill(g->name, 'H');
    g->rally_point_id = 5;
    const unit_entry member = unit(9, 'U', 'V'), spare = unit(10, 'S', 'T');
    host.heli.append(g->members, host.copy_block(member));
    dlist_node *available = host.held_entries<unit_entry>({&spare});

    // A route with an empty node; its second waypoint holds orders whose
    // entries fill their names, each list with an empty node of its own.
    waypoint_record *named = host.heli.create_waypoint(), *unnamed = host.heli.create_waypoint();
    fill(named->marker_name, 'W');
    dlist_node *route = host.heli.new_list();
    for (const void *value : {static_cast<const void *>(named), static_cast<const void *>(nullptr),
                              static_cast<const void *>(unnamed)})
        host.heli.append(route, value);
    cleanup.push_back([this, route] { host.heli.destroy_waypoints(route); });
    heli_order_record *deploy = host.heli.create_order(HELI_ORDER_DEPLOY);
    heli_order_record *pickup = host.heli.create_order(HELI_ORDER_PICKUP);
    heli_order_record *wait = host.heli.create_order(HELI_ORDER_WAIT);
    heli_order_record *patrol = order(HELI_ORDER_PATROL);
    deploy_entry cargo{};
    fill(cargo.name, 'P');
    cargo.x = 1;
    cargo.z = 2;
    pickup_entry sarge;
    fill(sarge.name, 'K');  // all 25 bytes, the last before the untouchable page
    for (dlist_node *list : {deploy->body.deploy, pickup->body.pickup, unnamed->orders}) {
        const void *first = list == deploy->body.deploy ? static_cast<const void *>(host.copy_block(cargo))
                            : list == pickup->body.pickup ? static_cast<const void *>(host.copy_block(sarge))
                                                          : static_cast<const void *>(deploy);
        host.heli.append(list, first);
        host.heli.append(list, nullptr);
    }
    host.heli.append(unnamed->orders, pickup);
    host.heli.append(unnamed->orders, wait);
    patrol_point *point = host.heli.create_patrol_point("x");
    fill(point->marker_name, 'Q');
    host.heli.append(patrol->body.patrol->points, point);
    wait->body.wait->mode = WAIT_FOR_OBJECT;
    fill(wait->body.wait->name, 'Z');

    HWND owner = host.main_window;
    // Each dialog's answer, a digit each in the order opened.
    EXPECT_EQ(drive(script{
                  {"Edit Heli Group", noting(seen, screen({IDC_HG_NAME, IDC_HG_RALLY_POINT, IDC_HG_MEMBERS, IDC_HG_AVAILABLE}), press(IDOK))},
                  {"Edit Waypoints", noting(seen, screen({IDC_WPS_LIST}), press(IDCANCEL))},
                  {"Edit Waypoint", noting(seen, screen({IDC_WP_ORDERS, IDC_WP_MARKER}), press(IDCANCEL))},
                  // The entry into the edits (a double-click), then Update with what they show.
                  {"Edit Deploy Order", noting(seen, screen({IDC_DEPLOY_LIST}), picking(IDC_DEPLOY_LIST, 0))},
                  {"Edit Deploy Order", noting(seen, screen({IDC_DEPLOY_NAME}), picking(IDC_DEPLOY_LIST, 0, press(IDC_DEPLOY_UPDATE)))},
                  {"Editor Question", press(IDYES)},
                  {"Edit Deploy Order", press(IDOK)},
                  {"Edit Pickup Order", picking(IDC_PICKUP_LIST, 0)},
                  {"Edit Pickup Order", noting(seen, screen({IDC_PICKUP_LIST, IDC_PICKUP_NAME}), press(IDOK))},
                  {"Edit Patrol Order", noting(seen, screen({IDC_PATROL_POINTS, IDC_PATROL_MARKERS}), press(IDOK))},
                  {"Edit Wait Order", noting(seen, screen({IDC_WAIT_NAME}), press(IDOK))},
                  {"Editor Question", press(IDYES)}},
              [&] {
                  return edit_heli_group(owner, g, available) * 1000000 + edit_waypoints(owner, route) * 100000 +
                         edit_waypoint(owner, unnamed) * 10000 + edit_deploy_order(owner, deploy->body.deploy) * 1000 +
                         edit_pickup_order(owner, pickup->body.pickup) * 100 +
                         edit_patrol_order(owner, patrol->body.patrol) * 10 + edit_wait_order(owner, wait->body.wait);
              }),
              1001111);
    // Marker names as they would be stored; the unterminated marker is none of them.
    EXPECT_EQ(seen, (lines{run_of('H') + "|" + run_of('R') + "|" + run_of('U') + "|" + run_of('S'),
                           run_of('W') + "/Waypoint 1", "Deploy/Pickup/Wait|None Selected",
                           run_of('P') + "    1.0    2.0", run_of('P'), ">" + run_of('K', 24) + "|" + run_of('K', 24),
                           run_of('Q') + "|" + run_of('L') + "/WP1", run_of('Z')}));
    EXPECT_EQ(text_of(g->name), run_of('H'));
    EXPECT_EQ(text_of(values<deploy_entry>(deploy->body.deploy)[0]->name), run_of('P'));
    EXPECT_EQ(text_of(wait->body.wait->name), run_of('Z'));
}

TEST_F(hostile_data_test, air_dialogs_cut_unterminated_names_and_offer_no_name_that_cannot_fit) {
    bombing_waypoint inbound;
    std::memset(&inbound, 0xCD, sizeof inbound);
    fill(inbound.name, 'I');
    inbound.height = -3.4e38f;  // numbers as wide as a float's: shown whole
    bombing_run_record run{};
    fill(run.name, 'B');
    fill(run.aircraft_type, 'T');
    run.aircraft_count = 2;
    run.ingress = host.held_entries<bombing_waypoint>({&inbound});
    run.egress = waypoints({"WP2"});
    const std::string long_type = run_of('A', 40), full_type = run_of('A', 32), type = run_of('T');
    run.aircraft_types = host.held_names({"A-10", long_type.c_str(), full_type.c_str(), type.c_str()});
    bombing_run_record *r = host.held_record(run);
    rally_point_record point{};
    fill(point.name, 'R');
    const arsp_location far_off = {-3.4e38f, 0.0f, 3.4e38f};
    point.arsp_locations = host.held_entries<arsp_location>({&far_off});
    rally_point_record *p = host.held_record(point);
    host.markers = {run_of('L', 40), run_of('M'), "WP1"};

    auto types = [](HWND dialog) {
        std::string all;
        for (const std::string &t : ui_combo_items(dialog, IDC_BR_AIRCRAFT_TYPE)) all += t + "/";
        return all + screen({IDC_BR_NAME, IDC_BR_AIRCRAFT_TYPE, IDC_BR_MARKERS})(dialog);
    };
    EXPECT_EQ(drive(script{{"Edit Bombing Run Details", noting(seen, types, noting(seen, screen({IDC_BR_INGRESS}), press(IDOK)))},
                           {"Edit Rally Point Details", noting(seen, screen({IDC_RP_NAME}), noting(seen, screen({IDC_RP_ARSP}), press(IDOK)))}},
                    [&] { return edit_bombing_run(r) * 10 + edit_rally_point(p); }),
              11);
    // Types and markers too long for a 32-byte field are not offered.
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0], "A-10/" + type + "/" + run_of('B') + "|" + type + "|>" + run_of('M') + "/WP1");
    EXPECT_EQ(seen[1].substr(0, 32), run_of('I') + " ");
    EXPECT_EQ(std::strtof(seen[1].c_str() + 32, nullptr), inbound.height);
    EXPECT_EQ(seen[2], run_of('R'));
    char *z = nullptr;
    EXPECT_EQ(seen[3].substr(0, 1), ">");
    EXPECT_EQ(std::strtof(seen[3].c_str() + 1, &z), far_off.x);
    EXPECT_EQ(std::strtof(z, nullptr), far_off.z);
    EXPECT_EQ(text_of(r->name) + "|" + text_of(r->aircraft_type), run_of('B') + "|" + type);
    EXPECT_EQ(text_of(p->name), run_of('R'));
}

// A preset reference name that fills its 64 bytes, and an info line whose
// shape name and object names are longer than the line: each cut in place.
TEST_F(hostile_data_test, reference_name_and_info_line_cut_what_the_host_overfills) {
    host.reference_names[0] = {run_of('R', 63), "Church"};
    create_objects_record objects{};
    objects.preset = objects.enabled = CO_TYPE | CO_REF_OBJ;
    fill(objects.ref_obj, 'R');
    create_objects_record *o = host.held_record(objects);
    EXPECT_EQ(drive("Create New Objects", {noting(seen, screen({IDC_CO_REF_OBJ}), press(IDOK))},
                    [&] { return create_objects_dialog(o); }),
              1);
    EXPECT_EQ(seen, lines{run_of('R', 63)});
    EXPECT_EQ(text_of(o->ref_obj), run_of('R', 63));
    EXPECT_EQ(std::string(create_objects_remembered().ref_obj), run_of('R', 63));

    HWND status = nullptr;
    for (HWND w : ui_thread_windows())
        if (is_status_window(w)) status = w;
    ASSERT_NE(status, nullptr);
    editor_state state = editor_stored_state();
    const std::string shape = run_of('S', 300);
    state.info_kind = INFO_OBJECT;
    state.info.object.object_id = 42;
    state.shape_name = shape.c_str();
    editor_update(state);
    EXPECT_EQ(ui_text(status, IDC_ST_INFO_TEXT), "42, (" + run_of('S', 79 - 6) + ")");
    // Names the host writes without terminators: each read within its 32 bytes.
    host.objects[42] = {run_of('N', 40), run_of('G', 40)};
    state.info.object.named = 1;
    editor_update(state);
    EXPECT_EQ(ui_text(status, IDC_ST_INFO_TEXT), run_of('N') + ", (" + run_of('G') + ")");
}

// Settings files with 10 KB values, garbage lines and sections, and
// positions that are no numbers: every window stays where it would be
// without them, every remembered choice keeps its default, and tidy-up
// writes sane values back.
TEST_F(hostile_data_test, garbage_settings_leave_windows_and_defaults_alone) {
    auto window_rects = [&] {
        std::string out;
        for (HWND w : ui_thread_windows()) {
            RECT r;
            if ((is_editor_window(w) || w == host.main_window) && GetWindowRect(w, &r))
                out += std::to_string(r.left) + "," + std::to_string(r.top) + " ";
        }
        return out;
    };
    const std::string clean = window_rects();
    const create_objects_memory defaults = create_objects_remembered();
    editor_tidyup();

    const std::string junk(10240, 'x');
    std::string file = "\xEF\xBB\xBF garbage before any section\r\n[Main\r\nPosition=5,5\r\n[]\r\n=nothing\r\n\x01\x02\r\n";
    file += "[Main]\r\nPosition=" + std::string(10240, '9') + "\r\n[ToolBar]\r\nPosition=abc,def\r\n[Status]\r\nPosition=12\r\n";
    file += "[Query]\r\nType=" + junk + "\r\nRefObj=" + junk + "\r\nNumber=%s%n\r\nObjDist=nan\r\nCamDist=1e39\r\n";
    file += "AAlign=\r\nAACamRel==\r\nOrient=,\r\nOCamrel=\xFF\xFE\r\n[" + junk + "]\r\n" + junk + "\r\n";
    HANDLE out = CreateFileA(host.settings_path().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(out, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(out, file.data(), static_cast<DWORD>(file.size()), &written, nullptr);
    CloseHandle(out);

    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(window_rects(), clean);
    // Everything but the name is as if the file said nothing.
    const create_objects_memory &m = create_objects_remembered();
    create_objects_memory expected = defaults;
    std::memcpy(expected.ref_obj, m.ref_obj, sizeof m.ref_obj);
    EXPECT_EQ(std::memcmp(&m, &expected, sizeof m), 0);
    EXPECT_EQ(std::string(m.ref_obj), run_of('x', 63));
    editor_tidyup();
    EXPECT_EQ(host.read_setting("Main", "Position"), "50,50");
    EXPECT_EQ(host.read_setting("Query", "CamDist"), "100.000000");
    EXPECT_EQ(host.read_setting("Query", "RefObj"), run_of('x', 63));
}
