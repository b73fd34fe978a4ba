// The flows the sweep plays: every request's dialog, every command button,
// OK, Cancel and the close box, and the nested chains down to the deepest
// dialog. A step acts on the dialog of its kind with at most one command
// that can fail, given last (a failed command then undoes its whole step);
// steps whose effects would be overwritten by a notification the dialog has
// not yet handled (a combo that reloads its section) are split in two.
#include "host/driver_steps.h"
#include "resources/air_ids.h"
#include "resources/ground_ids.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"
#include "resources/placement_ids.h"
#include "tests/sweep/sweep.h"

namespace {
const action ok = press(IDOK);
const action cancel = press(IDCANCEL);

uintptr_t nth(const dlist_node *list, int n) {
    const dlist_node *node = list->next;
    while (n-- > 0) node = node->next;
    return node->value;
}
uintptr_t arg(const void *p) { return reinterpret_cast<uintptr_t>(p); }

// The arguments of each flow's request.
using request_args = std::pair<uintptr_t, uintptr_t>;
request_args the_placement(const mission &m) { return {arg(m.placement), 0}; }
request_args the_objects(const mission &m) { return {arg(m.objects), 0}; }
request_args the_groups(const mission &m) { return {arg(m.groups), 0}; }
request_args sarge1_alone(const mission &m) { return {nth(m.groups, 1), 0}; }
request_args the_heli_groups(const mission &m) { return {arg(m.heli_groups), arg(m.available)}; }
request_args alpha_and_units(const mission &m) { return {nth(m.heli_groups, 0), arg(m.available)}; }
request_args the_bombing_run(const mission &m) { return {arg(m.run), 0}; }
request_args the_rally_point(const mission &m) { return {arg(m.rally), 0}; }

std::vector<step> steps_of(std::initializer_list<std::vector<step>> parts) {
    std::vector<step> all;
    for (const std::vector<step> &part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

// A new order of `kind` from Edit Waypoint, left with Cancel after `first`
// (if any), then another left with the close box.
std::vector<step> order_left(uint32_t kind, const char *dialog, const char *chosen, std::vector<step> first = {}) {
    std::vector<step> out = {{"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
                             {"order type", chosen, all({select_at(IDC_SOT_KINDS, static_cast<int>(kind)), ok})}};
    out.insert(out.end(), first.begin(), first.end());
    out.push_back({dialog, "Cancel", cancel});
    out.push_back(out[0]);
    out.push_back(out[1]);
    out.push_back({dialog, "close box", close_box});
    return out;
}
}  // namespace

const std::vector<flow> &all_flows() {
    static const std::vector<flow> flows = {
        {"create objects: type, reference, counts and axes, OK", REQUEST_CREATE_OBJECTS, the_placement,
         {
             {"create objects", "type Cultural", combo(IDC_CO_TYPE, "Cultural")},
             {"create objects", "Barn, 3 objects 12.5 m apart, 80 m out",
              all({combo(IDC_CO_REF_OBJ, "Barn"), type(IDC_CO_NUMBER, "3"), type(IDC_CO_OBJ_DIST, "12.5"),
                   type(IDC_CO_CAM_DIST, "80")})},
             {"create objects", "align Y, orient X, neither camera relative",
              all({toggle(IDC_CO_AALIGN_Y), toggle(IDC_CO_ORIENT_X), toggle(IDC_CO_AACAMREL), toggle(IDC_CO_OCAMREL)})},
             {"create objects", "OK", ok},
         }},
        {"create objects: a refused number, then the close box", REQUEST_CREATE_OBJECTS, the_placement,
         {
             {"create objects", "11 objects, OK", all({type(IDC_CO_NUMBER, "11"), ok})},
             {"create objects", "close box", close_box},
         }},
        {"create objects: Cancel", REQUEST_CREATE_OBJECTS, the_placement,
         {
             {"create objects", "type Cultural", combo(IDC_CO_TYPE, "Cultural")},
             {"create objects", "Cancel", cancel},
         }},
        {"object names: a rename, then Cancel", REQUEST_OBJECT_NAMES, the_objects,
         {
             {"object names", "Edit Name on the second line", pick_at(IDC_ON_LIST, 1, IDC_ON_EDIT_NAME)},
             {"edit name", "Mill, OK", all({type(IDC_EN_NAME, "Mill"), ok})},
             {"object names", "Cancel", cancel},
         }},
        {"object names: the close box", REQUEST_OBJECT_NAMES, the_objects,
         {{"object names", "close box", close_box}}},
        {"group list: sarge0 removed, then the close box", REQUEST_GROUP_LIST, the_groups,
         {
             {"group list", "Remove sarge0", pick(IDC_GL_GROUPS, "sarge0", IDC_GL_REMOVE)},
             {"group list", "close box", close_box},
         }},
        {"object names: renames through Edit Name", REQUEST_OBJECT_NAMES, the_objects,
         {
             {"object names", "Edit Name on the first line", pick_at(IDC_ON_LIST, 0, IDC_ON_EDIT_NAME)},
             {"edit name", "Hill42, OK", all({type(IDC_EN_NAME, "Hill42"), ok})},
             {"object names", "Edit Name on the last line", pick_at(IDC_ON_LIST, 2, IDC_ON_EDIT_NAME)},
             {"edit name", "close box", close_box},
             {"object names", "Edit Name on the second line", pick_at(IDC_ON_LIST, 1, IDC_ON_EDIT_NAME)},
             {"edit name", "Cancel", cancel},
             {"object names", "OK", ok},
         }},
        {"group list: a group added through Group Composition, Group Orders, Orders and Sarge Order",
         REQUEST_GROUP_LIST, the_groups,
         {
             {"group list", "Add", press(IDC_GL_ADD)},
             {"composition", "+, By Group, Target Player Only",
              all({press(IDC_GC_PLUS), press(IDC_GC_BY_GROUP), press(IDC_GC_TARGET_PLAYER)})},
             {"composition", "Rename", press(IDC_GC_RENAME)},
             {"edit name", "Tigers, OK", all({type(IDC_EN_NAME, "Tigers"), ok})},
             {"composition", "Add-> Mortar2 and Medic9",
              all({select(IDC_GC_AVAILABLE, "Mortar2 (mortar)"), select(IDC_GC_AVAILABLE, "Medic9 (medic)"),
                   press(IDC_GC_ADD)})},
             {"composition", "Edit Orders", press(IDC_GC_EDIT_ORDERS)},
             {"group orders", "Add", press(IDC_GO_ADD)},
             {"orders", "March, OK", all({select(IDC_OR_TYPES, "March"), ok})},
             {"sarge order", "Go to WP3 in a wedge and tell HQ, OK",
              all({type(IDC_ORDER_NAME, "Go"), combo(IDC_ORDER_DESTINATION, "WP3"),
                   combo(IDC_ORDER_FORMATION, "Wedge"), combo(IDC_ORDER_MESSAGE_TARGET, "HQ"),
                   type(IDC_ORDER_MESSAGE, "Arrived"), ok})},
             {"group orders", "contingency Add", press(IDC_GO_C_ADD)},
             {"contingency", "trigger Message", combo(IDC_CT_TRIGGER, "Message")},
             {"contingency", "Go!, next order Go, OK",
              all({type(IDC_CT_VALUE, "Go!"), type(IDC_CT_NEXT_ORDER, "Go"), ok})},
             {"group orders", "OK", ok},
             {"composition", "ENEMY_ARMOUR, OK", all({combo(IDC_GC_TYPE, "ENEMY_ARMOUR"), ok})},
             {"group list", "OK", ok},
         }},
        {"group list: sarge0's orders edited, inserted and removed, sarge1 removed, Cancel", REQUEST_GROUP_LIST,
         the_groups,
         {
             {"group list", "Edit sarge0", pick(IDC_GL_GROUPS, "sarge0", IDC_GL_EDIT)},
             {"composition", "<-Remove Tank2", pick(IDC_GC_MEMBERS, "Tank2 (tank_t80)", IDC_GC_REMOVE)},
             {"composition", "By Unit, --", all({press(IDC_GC_BY_UNIT), press(IDC_GC_MINUS)})},
             {"composition", "Edit Orders", press(IDC_GC_EDIT_ORDERS)},
             {"group orders", "Edit Push", pick(IDC_GO_ORDERS, "Push (Advance)", IDC_GO_EDIT)},
             {"sarge order", "Wedge, OK", all({combo(IDC_ORDER_FORMATION, "Wedge"), ok})},
             {"group orders", "Insert before Wait", pick(IDC_GO_ORDERS, "Wait (Halt)", IDC_GO_INSERT)},
             {"orders", "Barrage, OK", all({select(IDC_OR_TYPES, "Barrage"), ok})},
             {"sarge order", "close box", close_box},
             {"group orders", "Insert before Wait", pick(IDC_GO_ORDERS, "Wait (Halt)", IDC_GO_INSERT)},
             {"orders", "Cancel", cancel},
             {"group orders", "Insert before Wait", pick(IDC_GO_ORDERS, "Wait (Halt)", IDC_GO_INSERT)},
             {"orders", "Defend, OK", all({select(IDC_OR_TYPES, "Defend"), ok})},
             {"sarge order", "Hold, OK", all({type(IDC_ORDER_NAME, "Hold"), ok})},
             {"group orders", "Remove Push", pick(IDC_GO_ORDERS, "Push (Advance)", IDC_GO_REMOVE)},
             {"group orders", "Edit Duck", pick(IDC_GO_CONTINGENCIES, "Duck (Damage)", IDC_GO_C_EDIT)},
             {"contingency", "trigger Enemy Close", combo(IDC_CT_TRIGGER, "Enemy Close")},
             {"contingency", "order Advance", combo(IDC_CT_ORDER_TYPE, "Advance")},
             {"contingency", "250 m, to WP1, OK",
              all({type(IDC_CT_VALUE, "250"), combo(IDC_ORDER_DESTINATION, "WP1"), ok})},
             {"group orders", "contingency Insert before Duck",
              pick(IDC_GO_CONTINGENCIES, "Duck (Enemy Close)", IDC_GO_C_INSERT)},
             {"contingency", "Cancel", cancel},
             {"group orders", "contingency Add", press(IDC_GO_C_ADD)},
             {"contingency", "trigger Under Fire", combo(IDC_CT_TRIGGER, "Under Fire")},
             {"contingency", "OK", ok},
             {"group orders", "contingency Remove the first", pick_at(IDC_GO_CONTINGENCIES, 0, IDC_GO_C_REMOVE)},
             {"group orders", "OK", ok},
             {"composition", "OK", ok},
             {"group list", "Remove sarge1", pick(IDC_GL_GROUPS, "sarge1", IDC_GL_REMOVE)},
             {"group list", "double-click sarge0", all({select(IDC_GL_GROUPS, "sarge0"), double_click(IDC_GL_GROUPS)})},
             {"composition", "Cancel", cancel},
             {"group list", "Cancel", cancel},
         }},
        {"group composition: a group alone, every level closed unconfirmed", REQUEST_GROUP_COMPOSITION, sarge1_alone,
         {
             {"composition", "Add-> Jeep3", pick(IDC_GC_AVAILABLE, "Jeep3 (jeep)", IDC_GC_ADD)},
             {"composition", "Edit Orders", press(IDC_GC_EDIT_ORDERS)},
             {"group orders", "Add", press(IDC_GO_ADD)},
             {"orders", "close box", close_box},
             {"group orders", "contingency Add", press(IDC_GO_C_ADD)},
             {"contingency", "close box", close_box},
             {"group orders", "contingency Add", press(IDC_GO_C_ADD)},
             {"contingency", "OK", ok},
             {"group orders", "close box", close_box},
             {"composition", "Edit Orders", press(IDC_GC_EDIT_ORDERS)},
             {"group orders", "Add", press(IDC_GO_ADD)},
             {"orders", "OK", ok},
             {"sarge order", "Cancel", cancel},
             {"group orders", "Cancel", cancel},
             {"composition", "close box", close_box},
         }},
        {"heli list: a group added with a route, orders and cargo", REQUEST_LIST_HELI_GROUPS, the_heli_groups,
         {
             {"heli list", "Add", press(IDC_LHG_ADD)},
             {"heli group", "Add-> U14 and U15",
              all({select(IDC_HG_AVAILABLE, "U14"), select(IDC_HG_AVAILABLE, "U15"), press(IDC_HG_ADD)})},
             {"heli group", "double-click U16 over", all({select(IDC_HG_AVAILABLE, "U16"), double_click(IDC_HG_AVAILABLE)})},
             {"heli group", "Charlie at RP_North",
              all({type(IDC_HG_NAME, "Charlie"), combo(IDC_HG_RALLY_POINT, "RP_North")})},
             {"heli group", "Edit Waypoints", press(IDC_HG_EDIT_WAYPOINTS)},
             {"route", "Add", press(IDC_WPS_ADD)},
             {"waypoint", "WP3, High, 180 km/h",
              all({combo(IDC_WP_MARKER, "WP3"), combo(IDC_WP_HEIGHT, "High"), type(IDC_WP_SPEED, "180")})},
             {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
             {"order type", "Engage, OK", all({select_at(IDC_SOT_KINDS, HELI_ORDER_ENGAGE), ok})},
             {"engage", "SEAD at 750 m, OK",
              all({combo(IDC_ENGAGE_TARGETS, "SEAD"), type(IDC_ENGAGE_RANGE, "750"), ok})},
             {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
             {"order type", "double-click Land",
              all({select_at(IDC_SOT_KINDS, HELI_ORDER_LAND), double_click(IDC_SOT_KINDS)})},
             {"land", "first position 12, -4, OK", all({type(IDC_LAND_X0, "12"), type(IDC_LAND_Z0, "-4"), ok})},
             {"waypoint", "OK", ok},
             {"route", "Insert before WP3", pick(IDC_WPS_LIST, "WP3", IDC_WPS_INSERT)},
             {"waypoint", "OK", ok},
             {"route", "OK", ok},
             {"heli group", "in-transit sarges", press(IDC_HG_IN_TRANSIT)},
             {"deploy", "Add Tank1 at 10, 20",
              all({type(IDC_DEPLOY_NAME, "Tank1"), type(IDC_DEPLOY_X, "10"), type(IDC_DEPLOY_Z, "20"),
                   press(IDC_DEPLOY_ADD)})},
             {"deploy", "Add Grunt7 at 30, 40",
              all({type(IDC_DEPLOY_NAME, "Grunt7"), type(IDC_DEPLOY_X, "30"), type(IDC_DEPLOY_Z, "40"),
                   press(IDC_DEPLOY_ADD)})},
             {"deploy", "Delete the first", pick_at(IDC_DEPLOY_LIST, 0, IDC_DEPLOY_DELETE)},
             {"deploy", "OK", ok},
             {"heli group", "OK", ok},
             {"heli list", "OK", ok},
         }},
        {"heli list: Alpha edited down to every order dialog", REQUEST_LIST_HELI_GROUPS, the_heli_groups,
         {
             {"heli list", "Edit Alpha", pick(IDC_LHG_GROUPS, "Alpha", IDC_LHG_EDIT)},
             {"heli group", "<-Remove U11", pick(IDC_HG_MEMBERS, "U11", IDC_HG_REMOVE)},
             {"heli group", "Edit Waypoints", press(IDC_HG_EDIT_WAYPOINTS)},
             {"route", "Edit WP_North", pick(IDC_WPS_LIST, "WP_North", IDC_WPS_EDIT)},
             {"waypoint", "Edit Patrol", pick(IDC_WP_ORDERS, "Patrol", IDC_WP_ORDER_EDIT)},
             {"patrol", "Add LZ_Alpha", pick(IDC_PATROL_MARKERS, "LZ_Alpha", IDC_PATROL_ADD)},
             {"patrol", "Insert WP1 first",
              all({select_at(IDC_PATROL_POINTS, 0), pick(IDC_PATROL_MARKERS, "WP1", IDC_PATROL_INSERT)})},
             {"patrol", "Delete the second point", pick_at(IDC_PATROL_POINTS, 1, IDC_PATROL_DELETE)},
             {"patrol", "5 cycles, OK", all({combo_at(IDC_PATROL_CYCLES, 5), ok})},
             {"waypoint", "Insert before Wait", pick(IDC_WP_ORDERS, "Wait", IDC_WP_ORDER_INSERT)},
             {"order type", "Pickup, OK", all({select_at(IDC_SOT_KINDS, HELI_ORDER_PICKUP), ok})},
             {"pickup", "Add Tank2", all({type(IDC_PICKUP_NAME, "Tank2"), press(IDC_PICKUP_ADD)})},
             {"pickup", "Add Grunt7", all({type(IDC_PICKUP_NAME, "Grunt7"), press(IDC_PICKUP_ADD)})},
             {"pickup", "Grunt7 renamed sarge0",
              all({select_at(IDC_PICKUP_LIST, 1), type(IDC_PICKUP_NAME, "sarge0"), press(IDC_PICKUP_UPDATE)})},
             {"pickup", "Delete the first", pick_at(IDC_PICKUP_LIST, 0, IDC_PICKUP_DELETE)},
             {"pickup", "OK", ok},
             {"waypoint", "Edit Wait", pick(IDC_WP_ORDERS, "Wait", IDC_WP_ORDER_EDIT)},
             {"wait", "for sarge0 within 300 m, OK",
              all({combo(IDC_WAIT_MODE, "Wait For Sarge"), type(IDC_WAIT_NAME, "sarge0"),
                   type(IDC_WAIT_RANGE, "300"), ok})},
             {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
             {"order type", "Deploy, OK", all({select_at(IDC_SOT_KINDS, HELI_ORDER_DEPLOY), ok})},
             {"deploy", "Add Jeep3, unknown to the host",
              all({type(IDC_DEPLOY_NAME, "Jeep3"), type(IDC_DEPLOY_X, "1"), type(IDC_DEPLOY_Z, "2"),
                   press(IDC_DEPLOY_ADD)})},
             {"deploy", "OK", ok},
             {"waypoint", "Remove Patrol", pick(IDC_WP_ORDERS, "Patrol", IDC_WP_ORDER_REMOVE)},
             {"waypoint", "OK", ok},
             {"route", "Remove WP_South", pick(IDC_WPS_LIST, "WP_South", IDC_WPS_REMOVE)},
             {"route", "Add", press(IDC_WPS_ADD)},
             {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
             {"order type", "Wait, OK", all({select_at(IDC_SOT_KINDS, HELI_ORDER_WAIT), ok})},
             {"wait", "Cancel", cancel},
             {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
             {"order type", "Patrol, OK", all({select_at(IDC_SOT_KINDS, HELI_ORDER_PATROL), ok})},
             {"patrol", "double-click WP2", all({select(IDC_PATROL_MARKERS, "WP2"), double_click(IDC_PATROL_MARKERS)})},
             {"patrol", "OK", ok},
             {"waypoint", "OK", ok},
             {"route", "OK", ok},
             {"heli group", "OK", ok},
             {"heli list", "Cancel", cancel},
         }},
        {"heli list: Bravo removed, then edits left unconfirmed at every level", REQUEST_LIST_HELI_GROUPS,
         the_heli_groups,
         steps_of({
             {
                 {"heli list", "Remove Bravo", pick(IDC_LHG_GROUPS, "Bravo", IDC_LHG_REMOVE)},
                 {"heli list", "double-click Alpha",
                  all({select(IDC_LHG_GROUPS, "Alpha"), double_click(IDC_LHG_GROUPS)})},
                 {"heli group", "Add-> U16", pick(IDC_HG_AVAILABLE, "U16", IDC_HG_ADD)},
                 {"heli group", "Edit Waypoints", press(IDC_HG_EDIT_WAYPOINTS)},
                 {"route", "Edit WP_South", pick(IDC_WPS_LIST, "WP_South", IDC_WPS_EDIT)},
                 {"waypoint", "Edit Engage", pick(IDC_WP_ORDERS, "Engage", IDC_WP_ORDER_EDIT)},
                 {"engage", "Cancel", cancel},
                 {"waypoint", "Edit Engage", pick(IDC_WP_ORDERS, "Engage", IDC_WP_ORDER_EDIT)},
                 {"engage", "close box", close_box},
                 {"waypoint", "order Insert, nothing selected", press(IDC_WP_ORDER_INSERT)},
                 {"order type", "Cancel", cancel},
                 {"waypoint", "order Add", press(IDC_WP_ORDER_ADD)},
                 {"order type", "close box", close_box},
             },
             order_left(HELI_ORDER_DEPLOY, "deploy", "Deploy, OK"),
             order_left(HELI_ORDER_PICKUP, "pickup", "Pickup, OK",
                        {{"pickup", "Add Tank1", all({type(IDC_PICKUP_NAME, "Tank1"), press(IDC_PICKUP_ADD)})}}),
             order_left(HELI_ORDER_PATROL, "patrol", "Patrol, OK",
                        {{"patrol", "Add WP1", pick(IDC_PATROL_MARKERS, "WP1", IDC_PATROL_ADD)}}),
             order_left(HELI_ORDER_WAIT, "wait", "Wait, OK"),
             order_left(HELI_ORDER_LAND, "land", "Land, OK"),
             {
                 {"waypoint", "close box", close_box},
                 {"route", "Insert before WP_North", pick(IDC_WPS_LIST, "WP_North", IDC_WPS_INSERT)},
                 {"waypoint", "Cancel", cancel},
                 {"route", "Cancel", cancel},
                 {"heli group", "Edit Waypoints", press(IDC_HG_EDIT_WAYPOINTS)},
                 {"route", "close box", close_box},
                 {"heli group", "in-transit sarges", press(IDC_HG_IN_TRANSIT)},
                 {"deploy", "Delete Tank1", pick_at(IDC_DEPLOY_LIST, 0, IDC_DEPLOY_DELETE)},
                 {"deploy", "Cancel", cancel},
                 {"heli group", "Cancel", cancel},
                 {"heli list", "Add", press(IDC_LHG_ADD)},
                 {"heli group", "close box", close_box},
                 {"heli list", "close box", close_box},
             },
         })},
        {"edit heli group: Alpha in place, its route and cargo confirmed", REQUEST_EDIT_HELI_GROUP, alpha_and_units,
         {
             {"heli group", "Add-> U14", pick(IDC_HG_AVAILABLE, "U14", IDC_HG_ADD)},
             {"heli group", "double-click U11 back", all({select(IDC_HG_MEMBERS, "U11"), double_click(IDC_HG_MEMBERS)})},
             {"heli group", "Edit Waypoints", press(IDC_HG_EDIT_WAYPOINTS)},
             {"route", "double-click WP_North", all({select(IDC_WPS_LIST, "WP_North"), double_click(IDC_WPS_LIST)})},
             {"waypoint", "Medium, 90 km/h, NMC, fuel low Use ARSP, OK",
              all({combo(IDC_WP_HEIGHT, "Medium"), type(IDC_WP_SPEED, "90"), combo(IDC_WP_DAMAGE_LEVEL, "NMC"),
                   combo(IDC_WP_FUEL_LOW, "Use ARSP"), ok})},
             {"route", "OK", ok},
             {"heli group", "in-transit sarges", press(IDC_HG_IN_TRANSIT)},
             {"deploy", "Add Grunt7 at 7, 8",
              all({type(IDC_DEPLOY_NAME, "Grunt7"), type(IDC_DEPLOY_X, "7"), type(IDC_DEPLOY_Z, "8"),
                   press(IDC_DEPLOY_ADD)})},
             {"deploy", "double-click Grunt7", all({select_at(IDC_DEPLOY_LIST, 1), double_click(IDC_DEPLOY_LIST)})},
             {"deploy", "moved to 9, 9, Update",
              all({type(IDC_DEPLOY_X, "9"), type(IDC_DEPLOY_Z, "9"), press(IDC_DEPLOY_UPDATE)})},
             {"deploy", "OK", ok},
             {"heli group", "Alpha Two, OK", all({type(IDC_HG_NAME, "Alpha Two"), ok})},
         }},
        {"bombing run: both routes edited, OK", REQUEST_BOMBING_RUN, the_bombing_run,
         {
             {"bombing run", "<< Add WP2", pick(IDC_BR_MARKERS, "WP2", IDC_BR_INGRESS_ADD)},
             {"bombing run", "<< Insert WP3 first",
              all({select_at(IDC_BR_INGRESS, 0), pick(IDC_BR_MARKERS, "WP3", IDC_BR_INGRESS_INSERT)})},
             {"bombing run", "<< Add WP2 again, refused", pick(IDC_BR_MARKERS, "WP2", IDC_BR_INGRESS_ADD)},
             {"bombing run", "the second 120 m high",
              all({select_at(IDC_BR_INGRESS, 1), type(IDC_BR_INGRESS_HEIGHT, "120"),
                   press(IDC_BR_INGRESS_SET_HEIGHT)})},
             {"bombing run", "<< Delete the last", pick_at(IDC_BR_INGRESS, 2, IDC_BR_INGRESS_DELETE)},
             {"bombing run", "Insert >> WP1, nothing selected", pick(IDC_BR_MARKERS, "WP1", IDC_BR_EGRESS_INSERT)},
             {"bombing run", "Add >> LZ_Alpha", pick(IDC_BR_MARKERS, "LZ_Alpha", IDC_BR_EGRESS_ADD)},
             {"bombing run", "Insert >> WP3 first",
              all({select_at(IDC_BR_EGRESS, 0), pick(IDC_BR_MARKERS, "WP3", IDC_BR_EGRESS_INSERT)})},
             {"bombing run", "the second 75 m high",
              all({select_at(IDC_BR_EGRESS, 1), type(IDC_BR_EGRESS_HEIGHT, "75"), press(IDC_BR_EGRESS_SET_HEIGHT)})},
             {"bombing run", "Delete >> the first", pick_at(IDC_BR_EGRESS, 0, IDC_BR_EGRESS_DELETE)},
             {"bombing run", "Night Strike, x 1200, four Tornados, OK",
              all({type(IDC_BR_NAME, "Night Strike"), type(IDC_BR_TARGET_X, "1200"),
                   combo(IDC_BR_AIRCRAFT_TYPE, "Tornado"), combo(IDC_BR_AIRCRAFT_COUNT, "4"), ok})},
         }},
        {"bombing run: an Add, then the close box", REQUEST_BOMBING_RUN, the_bombing_run,
         {
             {"bombing run", "Add >> WP3", pick(IDC_BR_MARKERS, "WP3", IDC_BR_EGRESS_ADD)},
             {"bombing run", "close box", close_box},
         }},
        {"rally point: locations added, updated and deleted, OK", REQUEST_RALLY_POINT, the_rally_point,
         {
             {"rally point", "<< Add", press(IDC_RP_ADD)},
             {"rally point", "<< Add", press(IDC_RP_ADD)},
             {"rally point", "the second selected", select_at(IDC_RP_ARSP, 1)},
             {"rally point", "50, 60, << Update",
              all({type(IDC_RP_ARSP_X, "50"), type(IDC_RP_ARSP_Z, "60"), press(IDC_RP_UPDATE)})},
             {"rally point", "<< Delete the first", pick_at(IDC_RP_ARSP, 0, IDC_RP_DELETE)},
             {"rally point", "Rally North at 110, -30, OK",
              all({type(IDC_RP_NAME, "Rally North"), type(IDC_RP_X, "110"), type(IDC_RP_Z, "-30"), ok})},
         }},
        {"bombing run: an Insert, then Cancel", REQUEST_BOMBING_RUN, the_bombing_run,
         {
             {"bombing run", "<< Insert WP2, nothing selected", pick(IDC_BR_MARKERS, "WP2", IDC_BR_INGRESS_INSERT)},
             {"bombing run", "Cancel", cancel},
         }},
        {"rally point: a Delete, then the close box", REQUEST_RALLY_POINT, the_rally_point,
         {
             {"rally point", "<< Delete the first", pick_at(IDC_RP_ARSP, 0, IDC_RP_DELETE)},
             {"rally point", "close box", close_box},
         }},
        {"rally point: an Add, then Cancel", REQUEST_RALLY_POINT, the_rally_point,
         {
             {"rally point", "<< Add", press(IDC_RP_ADD)},
             {"rally point", "Cancel", cancel},
         }},
    };
    return flows;
}
