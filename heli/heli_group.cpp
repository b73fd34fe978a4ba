// Edit Heli Group (template 142, request 14): a heli group's name, rally
// point, members, route and in-transit order. Units move between the
// available units and the members at once. The route and the in-transit
// order follow the helicopter discipline: they are edited on host copies,
// which on OK replace the record's own (destroyed at that moment) and on
// Cancel are destroyed. The name and rally point are written on OK only.
#include "heli/heli_group.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "editor/editor.h"
#include "heli/heli_group_list.h"
#include "heli/waypoints.h"
#include "heli_orders/heli_order.h"
#include "resources/heli_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/host_list.h"
#include "util/host_memory.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/scope.h"
#include "util/text.h"

namespace {
module_flag module;
heli_group_record *edited = nullptr;
dlist *available = nullptr;  // dlist of unit_entry *: units that may join

// A line per unit: its name, with its id as item data (the key by which the
// entry is found again, whatever the line's position).
void fill_units(HWND dialog, int box, const dlist *units) {
    line_batch lines(GetDlgItem(dialog, box));
    for (unit_entry *unit : dlist_values<unit_entry>(units)) {
        if (!unit) continue;
        char name[sizeof unit->name];
        copy_field(name, unit->name);
        lines.add(name, static_cast<LPARAM>(unit->id));
    }
}

void fill_unit_lists(HWND dialog) {
    fill_units(dialog, IDC_HG_AVAILABLE, available);
    fill_units(dialog, IDC_HG_MEMBERS, edited->members);
}

// The host's rally points, the group's own selected (the last line with its
// id); none selected when the list cannot be had or holds no such id.
void fill_rally_points(HWND dialog) {
    HWND combo = GetDlgItem(dialog, IDC_HG_RALLY_POINT);
    line_batch lines(combo);
    held_list rally_points(host().host_rally_point_list);
    size_t selected = SIZE_MAX;  // in the order added
    for (rally_point_entry *point : dlist_values<rally_point_entry>(rally_points.get())) {
        if (!point) continue;
        char name[sizeof point->name];
        copy_field(name, point->name);
        if (point->id == edited->rally_point_id) selected = lines.size();
        lines.add(name, static_cast<LPARAM>(point->id));
    }
    const std::vector<LRESULT> &indices = lines.commit();
    if (selected < indices.size() && indices[selected] >= 0)
        SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(indices[selected]), 0);
}

void load_dialog(HWND dialog) {
    show_field(dialog, IDC_HG_NAME, edited->name);
    fill_unit_lists(dialog);
    fill_rally_points(dialog);
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// For each selected line of `source_box`, in line order, the first entry of
// `source` with the line's id not yet taken; null when the line's unit has
// left the list since the last fill. The entries are found in one walk of
// the list, whatever the number of lines.
std::vector<dlist_node *> selected_entries(const dlist *source, const selected_lines &selection) {
    struct matches {
        std::vector<dlist_node *> nodes;  // in list order
        size_t taken = 0;
    };
    std::unordered_map<int32_t, matches> by_id;
    selection.for_each_data([&](LRESULT id) { by_id[static_cast<int32_t>(id)]; });
    for (dlist_node *node : dlist_nodes(source)) {
        auto *unit = reinterpret_cast<unit_entry *>(node->value);
        if (!unit) continue;
        auto found = by_id.find(unit->id);
        if (found != by_id.end()) found->second.nodes.push_back(node);
    }
    std::vector<dlist_node *> entries;
    selection.for_each_data([&](LRESULT id) {
        matches &m = by_id[static_cast<int32_t>(id)];
        entries.push_back(m.taken < m.nodes.size() ? m.nodes[m.taken++] : nullptr);
    });
    return entries;
}

// Add-> and <-Remove: each selected unit leaves `source` and joins the front
// of `destination` as a fresh 68-byte entry (the old one is released), so
// the last one moved comes first. Every fresh entry is made before anything
// moves: when the host runs out of memory nothing moves at all.
void move_units(HWND dialog, dlist *source, int source_box, dlist *destination) {
    if (!available || !edited->members) return;
    const uint32_t count = dlist_count(source);
    if (count == 0) return;
    selected_lines selection(GetDlgItem(dialog, source_box), count);
    auto refill = on_scope_exit([dialog] { fill_unit_lists(dialog); });
    if (!selection.allocated()) return;
    dlist *moved = dlist_create();
    if (!moved) return;
    std::vector<dlist_node *> replaced;
    for (dlist_node *node : selected_entries(source, selection)) {
        if (!node) continue;
        unit_entry *fresh = copy_unit(*reinterpret_cast<unit_entry *>(node->value));
        dlist_node *first = moved->next;
        if (fresh) dlist_push_front(moved, dlist_value(fresh));
        if (moved->next == first) {
            host_delete(fresh);
            destroy_entry_list<unit_entry>(moved);
            return;
        }
        replaced.push_back(node);
    }
    for (dlist_node *node : replaced) {
        host_delete(reinterpret_cast<unit_entry *>(node->value));
        dlist_remove_node(node);
    }
    dlist_splice(moved, destination);  // the moved units, then the destination's own
    dlist_splice(destination, moved);
    dlist_destroy(moved);
}

void destroy_route(dlist *route) {
    for (waypoint_record *waypoint : dlist_values<waypoint_record>(route))
        if (waypoint) host().host_waypoint_destroy(&waypoint);
    dlist_destroy(route);
}

// A working list of host copies of the route; null, with every copy made so
// far destroyed, when any waypoint cannot be copied or listed. A route
// confirmed without one of its waypoints would lose it for good, so the edit
// is not offered at all.
dlist *copy_route(const dlist *route) {
    dlist *working = dlist_create();
    if (!working) return nullptr;
    for (waypoint_record *waypoint : dlist_values<waypoint_record>(route)) {
        if (!waypoint) continue;
        waypoint_record *copy = nullptr;
        bool copied = host().host_waypoint_copy(waypoint, &copy) && copy;
        if (copied && dlist_push_back(working, dlist_value(copy))) continue;
        if (copy) host().host_waypoint_destroy(&copy);
        destroy_route(working);
        return nullptr;
    }
    return working;
}

// Edit Waypoints on copies: confirmed, they become the route and the old
// waypoints are destroyed; cancelled, the copies are destroyed and the
// dialog shows the record again (a name typed but not confirmed is dropped).
void edit_route(HWND dialog) {
    if (!edited->waypoints) return;
    dlist *working = copy_route(edited->waypoints);
    if (!working) return;
    if (edit_waypoints(dialog, working)) {
        destroy_route(edited->waypoints);
        edited->waypoints = working;
        return;
    }
    destroy_route(working);
    load_dialog(dialog);
}

// The in-transit order, edited on a host copy in its kind's dialog;
// confirmed, the copy replaces the order, which is destroyed.
void edit_in_transit(HWND dialog) {
    if (!edited->in_transit) return;
    heli_order_record *copy = nullptr;
    if (!host().host_order_copy(edited->in_transit, &copy) || !copy) return;
    if (!edit_heli_order(dialog, copy)) {
        host().host_order_destroy(&copy);
        return;
    }
    heli_order_record *replaced = edited->in_transit;
    host().host_order_destroy(&replaced);
    edited->in_transit = copy;
    load_dialog(dialog);
}

void add_units(HWND dialog) { move_units(dialog, available, IDC_HG_AVAILABLE, edited->members); }
void remove_units(HWND dialog) { move_units(dialog, edited->members, IDC_HG_MEMBERS, available); }

bool on_command(HWND dialog, int id, int code) {
    // A double-click moves every selected line of its list, not only the one clicked.
    if (id == IDC_HG_AVAILABLE || id == IDC_HG_MEMBERS) {
        if (code != LBN_DBLCLK) return false;
        if (id == IDC_HG_AVAILABLE) add_units(dialog);
        else remove_units(dialog);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
    case IDC_HG_ADD:
        add_units(dialog);
        return true;
    case IDC_HG_REMOVE:
        remove_units(dialog);
        return true;
    case IDC_HG_EDIT_WAYPOINTS:
        edit_route(dialog);
        return true;
    case IDC_HG_IN_TRANSIT:
        edit_in_transit(dialog);
        return true;
    default:
        return false;
    }
}

// The name as typed (cut to 31 characters, never checked) and the chosen
// rally point; with no rally point chosen the record keeps its own.
dialog_end on_ok(HWND dialog) {
    get_item_text(dialog, IDC_HG_NAME, edited->name);
    LPARAM rally_point = 0;
    if (combo_selected_data(GetDlgItem(dialog, IDC_HG_RALLY_POINT), rally_point))
        edited->rally_point_id = static_cast<uint32_t>(rally_point);
    return END_CONFIRMED;
}

const dialog_class heli_group_dialog = {load_dialog, on_command, on_ok, nullptr, FALSE};
}  // namespace

int heli_group_start() {
    if (!module.start()) return 0;
    waypoint_dialogs_start();
    heli_group_list_start();
    return 1;
}

int heli_group_tidyup() {
    if (!module.tidyup()) return 0;
    waypoint_dialogs_tidyup();
    heli_group_list_tidyup();
    return 1;
}

int edit_heli_group(HWND owner, heli_group_record *group, dlist *units) {
    modal_session session(module);
    // Every control works on the record: without one there is nothing to show.
    if (!session || !group) return 0;
    edited = group;
    available = units;
    auto forget = on_scope_exit([] {
        edited = nullptr;
        available = nullptr;
    });
    return session.run(IDD_EDIT_HELI_GROUP, owner, dialog_proc<heli_group_dialog>);
}
