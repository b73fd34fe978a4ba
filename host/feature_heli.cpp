// Helicopter groups: List Heli Groups (request 15) and Edit Heli Group
// (request 14) over the sample mission's heli groups and available
// helicopters, and a tour down the nesting List Heli Groups, Edit Heli
// Group, Edit Waypoints, Edit Waypoint.
#include <cstdio>
#include <string>

#include "host/host_app.h"
#include "host/sample_mission.h"
#include "host/ui_driver.h"
#include "resources/heli_ids.h"

namespace {
uintptr_t arg(const void *p) { return reinterpret_cast<uintptr_t>(p); }

int count(const dlist_node *list) {
    int n = 0;
    if (list)
        for (const dlist_node *node = list->next; node != list; node = node->next) ++n;
    return n;
}

void log_groups() {
    dlist_node *groups = sample_heli_groups();
    for (dlist_node *n = groups->next; n != groups; n = n->next) {
        auto *g = reinterpret_cast<const heli_group_record *>(n->value);
        char line[200];
        std::snprintf(line, sizeof line, "  %.32s: status %u, %d members, rally point %u, %d waypoints%s", g->name,
                      g->status, count(g->members), g->rally_point_id, count(g->waypoints),
                      g->in_transit ? ", in-transit order" : "");
        app().log(line);
    }
    app().log("  available units: " + std::to_string(count(sample_available_units())));
}

void list_groups() {
    int result = app().window(REQUEST_LIST_HELI_GROUPS, arg(sample_heli_groups()), arg(sample_available_units()));
    app().log("list heli groups: answered " + std::to_string(result));
    log_groups();
}

void edit_first_group() {
    dlist_node *groups = sample_heli_groups();
    for (dlist_node *n = groups->next; n != groups; n = n->next) {
        auto *g = reinterpret_cast<heli_group_record *>(n->value);
        if (g->status == HELI_GROUP_STATUS_REMOVED) continue;
        int result = app().window(REQUEST_EDIT_HELI_GROUP, arg(g), arg(sample_available_units()));
        app().log("edit heli group: answered " + std::to_string(result));
        log_groups();
        return;
    }
    app().log("edit heli group: every group is removed");
}

void tour() {
    ui_driver d;
    d.then("List Heli Groups", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_LHG_GROUPS, 0);
        tour_screenshot(dlg, "List Heli Groups", "list_heli_groups",
                        "Heli menu, List heli groups (request 15) over the sample's heli groups (the removed one is "
                        "not listed).");
        ui_command(dlg, IDC_LHG_EDIT);
    });
    d.then("Edit Heli Group", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_HG_AVAILABLE, 1);
        tour_screenshot(dlg, "Edit Heli Group", "edit_heli_group",
                        "List Heli Groups, Edit on the first group (a copy): its members, the available "
                        "helicopters and its rally point.");
        ui_command(dlg, IDC_HG_EDIT_WAYPOINTS);
    });
    d.then("Edit Waypoints", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_WPS_LIST, 0);
        tour_screenshot(dlg, "Edit Waypoints", "edit_waypoints",
                        "Edit Heli Group, Edit Waypoints: the group's route, copied.");
        ui_command(dlg, IDC_WPS_EDIT);
    });
    d.then("Edit Waypoint", [](HWND dlg) {
        tour_screenshot(dlg, "Edit Waypoint", "edit_waypoint",
                        "Edit Waypoints, Edit on the first waypoint (a copy): marker, height, speed in km/h, "
                        "behaviour and its orders.");
        ui_command(dlg, IDCANCEL);
    });
    for (const char *title : {"Edit Waypoints", "Edit Heli Group", "List Heli Groups"})
        d.then(title, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    app().window(REQUEST_LIST_HELI_GROUPS, arg(sample_heli_groups()), arg(sample_available_units()));
    tour_check(d);
}
}  // namespace

HOST_FEATURE("&Heli", "&List heli groups...", list_groups, tour, 55);
HOST_FEATURE("&Heli", "&Edit heli group...", edit_first_group, nullptr, 55);
