// Ground groups: the Group List (request 11) and Group Composition (request 9)
// over the sample mission's groups, and a tour through Group List, Group
// Composition, Group Orders and the Orders dialog.
#include <cstdio>
#include <string>

#include "host/host_app.h"
#include "host/sample_mission.h"
#include "host/ui_driver.h"
#include "resources/ground_ids.h"

namespace {
uintptr_t arg(const void *p) { return reinterpret_cast<uintptr_t>(p); }

std::string describe(const group_record *g) {
    char line[200];
    int members = 0;
    if (g->members)
        for (dlist_node *n = g->members->next; n != g->members; n = n->next) ++members;
    std::snprintf(line, sizeof line, "  %s: status %d, %d members, %d orders, %d contingency orders, appearance 0x%X, type %d%s",
                  g->name, g->status, members, g->order_count, g->contingency_count, g->appearance, g->group_type,
                  g->target_player_only ? ", target player only" : "");
    return line;
}

void log_groups() {
    dlist_node *groups = sample_groups();
    for (dlist_node *n = groups->next; n != groups; n = n->next)
        app().log(describe(reinterpret_cast<group_record *>(n->value)));
}

// The first group that is not removed.
group_record *first_group() {
    dlist_node *groups = sample_groups();
    for (dlist_node *n = groups->next; n != groups; n = n->next) {
        auto *g = reinterpret_cast<group_record *>(n->value);
        if (g->status != GROUP_STATUS_REMOVED) return g;
    }
    return nullptr;
}

void group_list() {
    int result = app().window(REQUEST_GROUP_LIST, arg(sample_groups()), 0);
    app().log("group list: answered " + std::to_string(result));
    log_groups();
}

void edit_group(bool with_list) {
    group_record *g = first_group();
    if (!g) {
        app().log("edit group: every group is removed");
        return;
    }
    int result = app().window(REQUEST_GROUP_COMPOSITION, arg(g), with_list ? arg(sample_groups()) : 0);
    app().log(std::string("edit group") + (with_list ? "" : " (no group list)") + ": answered " +
              std::to_string(result));
    app().log(describe(g));
}

void tour() {
    ui_driver d;
    d.then("Group List", [](HWND dlg) {
        tour_screenshot(dlg, "Group List", "group_list",
                        "Ground menu, Group list (request 11) over the sample's groups: sarge0 and sarge1 (sarge2 is "
                        "removed and not listed).");
        ui_command(dlg, IDC_GL_EDIT);  // sarge0 is selected
    });
    d.then("Dialog", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_GC_AVAILABLE, 0);
        tour_screenshot(dlg, "Group Composition", "group_composition",
                        "Group List, Edit on sarge0: its members Tank1 and Tank2, the host's free units to add, "
                        "type and appearance.");
        ui_command(dlg, IDC_GC_EDIT_ORDERS);
    });
    d.then("Dialog", [](HWND dlg) {
        ui_list_select_index(dlg, IDC_GO_ORDERS, 1);
        tour_screenshot(dlg, "Group Orders", "group_orders",
                        "Group Composition, Edit Orders on sarge0: its orders Hold and Push, and its contingency "
                        "orders Dig In and Fall Back.");
        ui_command(dlg, IDC_GO_ADD);
    });
    d.then("Orders", [](HWND dlg) {
        tour_screenshot(dlg, "Orders", "orders", "Group Orders, Add after Push: the order types to choose from.");
        ui_command(dlg, IDCANCEL);
    });
    d.then("Dialog", [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then("Dialog", [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    d.then("Group List", [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    app().window(REQUEST_GROUP_LIST, arg(sample_groups()), 0);
    tour_check(d);
}
}  // namespace

HOST_FEATURE("&Ground", "Group &list...", group_list, tour, 45);
HOST_FEATURE("&Ground", "Edit &group...", [] { edit_group(true); }, nullptr, 45);
HOST_FEATURE("&Ground", "Edit group &without a group list...", [] { edit_group(false); }, nullptr, 45);
