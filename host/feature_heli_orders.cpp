// Helicopter orders. A game reaches the order dialogs through its heli groups
// only: Edit Heli Group (request 14), Edit Waypoints, Edit Waypoint, and
// there the waypoint's order list. The developer entry goes down that way to
// the first waypoint of the first sample group and leaves the designer in
// Edit Waypoint; the tour opens each sample order and Select New Order Type.
#include <string>
#include <utility>
#include <vector>

#include "host/host_app.h"
#include "host/sample_mission.h"
#include "host/ui_driver.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"

namespace {
using step = std::pair<std::string, ui_driver::action>;

// Request 14 on a listed sample group, down to Edit Waypoint on one of its
// waypoints (a copy); `at_waypoint` runs there, then everything above is
// closed with `close`.
int through_waypoint(int group, int waypoint, const std::vector<step> &at_waypoint, int close, unsigned timeout_ms) {
    dlist_node *groups = sample_heli_groups();
    dlist_node *node = groups->next;
    for (int i = 0; i < group && node != groups; ++i) node = node->next;
    if (node == groups) return 0;
    ui_driver d(timeout_ms);
    d.then("Edit Heli Group", [](HWND dlg) { ui_command(dlg, IDC_HG_EDIT_WAYPOINTS); });
    d.then("Edit Waypoints", [waypoint](HWND dlg) {
        ui_list_select_index(dlg, IDC_WPS_LIST, waypoint);
        ui_command(dlg, IDC_WPS_EDIT);
    });
    for (const step &s : at_waypoint) d.then(s.first, s.second);
    for (const char *title : {"Edit Waypoint", "Edit Waypoints", "Edit Heli Group"})
        d.then(title, [close](HWND dlg) { ui_command(dlg, close); });
    int result = app().window(REQUEST_EDIT_HELI_GROUP, node->value, reinterpret_cast<uintptr_t>(sample_available_units()));
    tour_check(d);
    return result;
}

// The designer works in Edit Waypoint; once it is closed, the levels above
// are confirmed.
void edit_waypoint_orders() {
    int result = through_waypoint(0, 0, {}, IDOK, 3600 * 1000);
    app().log("waypoint orders: edit heli group answered " + std::to_string(result));
}

// Opens the order on a line of the waypoint's list (a copy), pictures its
// dialog and cancels it.
std::vector<step> order_shot(int line, const char *title, const char *name, const char *caption) {
    return {{"Edit Waypoint",
             [line](HWND dlg) {
                 ui_list_select_index(dlg, IDC_WP_ORDERS, line);
                 ui_command(dlg, IDC_WP_ORDER_EDIT);
             }},
            {title, [=](HWND dlg) {
                 tour_screenshot(dlg, title, name, caption);
                 ui_command(dlg, IDCANCEL);
             }}};
}

void tour() {
    std::vector<step> first = order_shot(0, "Edit Engage Order", "edit_engage_order",
                                         "Edit Waypoint of Group0's first waypoint, << Edit on its Engage order.");
    for (step &s : order_shot(1, "Edit Patrol Order", "edit_patrol_order",
                              "The same waypoint, << Edit on its Patrol order: points on two markers, three cycles."))
        first.push_back(s);
    first.push_back({"Edit Waypoint", [](HWND dlg) { ui_command(dlg, IDC_WP_ORDER_ADD); }});
    first.push_back({"Select New Order Type", [](HWND dlg) {
                         ui_list_select_index(dlg, IDC_SOT_KINDS, HELI_ORDER_PATROL);
                         tour_screenshot(dlg, "Select New Order Type", "select_new_order_type",
                                         "The same waypoint, << Add: the six kinds in kind order.");
                         ui_command(dlg, IDCANCEL);
                     }});
    through_waypoint(0, 0, first, IDCANCEL, 8000);
    // One order on the first line of each other sample waypoint.
    const struct {
        int group, waypoint;
        const char *title, *name, *caption;
    } others[] = {
        {0, 1, "Edit Wait Order", "edit_wait_order", "Group0's second waypoint, << Edit on its Wait order: for Bridge1."},
        {0, 2, "Edit Land Order", "edit_land_order", "Group0's third waypoint, << Edit on its Land order."},
        {1, 0, "Edit Deploy Order", "edit_deploy_order", "Group1's first waypoint, << Edit on its Deploy order."},
        {1, 1, "Edit Pickup Order", "edit_pickup_order", "Group1's second waypoint, << Edit on its Pickup order."},
    };
    for (const auto &o : others)
        through_waypoint(o.group, o.waypoint, order_shot(0, o.title, o.name, o.caption), IDCANCEL, 8000);
}
}  // namespace

HOST_FEATURE("&Heli", "Edit &waypoint orders (Group0, first waypoint)...", edit_waypoint_orders, tour, 56);
