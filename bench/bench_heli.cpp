// The helicopter dialogs, with N host entries: Edit Heli Group (available
// units and rally points), List Heli Groups, Edit Waypoints (a route), Edit
// Waypoint (the marker list) and the Patrol order (the marker list), the
// nested ones reached as a designer reaches them.
#include <cstdio>
#include <cstring>

#include "bench/bench.h"
#include "resources/heli_ids.h"
#include "resources/heli_order_ids.h"

namespace {
struct heli_data {
    heli_group_record *group = nullptr;   // the edited group
    dlist_node *groups = nullptr;          // heli_group_record *
    dlist_node *available = nullptr;       // unit_entry *
    std::vector<HWND> parents;             // dialogs clicked through, outermost first
} data;

unit_entry *new_unit(int32_t id) {
    auto *u = static_cast<unit_entry *>(bench().memory.alloc(sizeof(unit_entry)));
    std::memset(u, 0, sizeof *u);
    std::snprintf(u->name, sizeof u->name, "%s", scrambled_name("heli", id).c_str());
    std::snprintf(u->type_name, sizeof u->type_name, "helicopter");
    u->id = id;
    return u;
}

dlist_node *units(int n) {
    std::vector<const void *> values;
    for (int id = 1; id <= n; ++id) values.push_back(new_unit(id));
    return bench().list(values);
}

std::vector<std::string> names(const char *prefix, int n) {
    std::vector<std::string> all;
    for (int i = 0; i < n; ++i) all.push_back(scrambled_name(prefix, i));
    return all;
}

std::vector<floor_line> name_lines(const std::vector<std::string> &all) {
    std::vector<floor_line> lines;
    for (size_t i = 0; i < all.size(); ++i) lines.push_back({all[i], static_cast<LPARAM>(i + 1)});
    return lines;
}

// The edited group: `waypoints` waypoints named after markers, the first
// holding a patrol order.
void make_group(int waypoints) {
    heli_records &heli = bench().heli;
    data.group = heli.create_heli_group();
    for (int i = 0; i < waypoints; ++i) {
        waypoint_record *w = heli.create_waypoint();
        std::snprintf(w->marker_name, sizeof w->marker_name, "%s", scrambled_name("marker", i).c_str());
        if (i == 0) heli.append(w->orders, heli.create_order(HELI_ORDER_PATROL));
        heli.append(data.group->waypoints, w);
    }
    data.groups = bench().list({data.group});
}

void release() {
    bench_host &h = bench();
    if (data.groups) {
        for (dlist_node *n = data.groups->next; n != data.groups; n = n->next)
            h.heli.destroy_heli_group(reinterpret_cast<heli_group_record *>(n->value));
        h.free_list(data.groups);
    }
    h.heli.free_units(data.available);
    data = heli_data{};
}

// A group of one waypoint, with N markers offered to its dialogs.
void one_waypoint_over_markers(int n) {
    bench().markers = names("marker", n);
    data.available = units(0);
    make_group(1);
}

void open_group() {
    bench().editor.window(REQUEST_EDIT_HELI_GROUP, reinterpret_cast<uintptr_t>(data.group),
                          reinterpret_cast<uintptr_t>(data.available));
}

// One dialog on the way to the measured one: the line selected in `list`
// (0 for none) and the button clicked.
struct step {
    std::string title;
    int list;
    int button;
};

void press(HWND dialog, const step &s) {
    if (s.list) SendDlgItemMessageA(dialog, s.list, LB_SETCURSEL, 0, 0);
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(s.button, BN_CLICKED), 0);
}

// Clicks through a chain of dialogs, in order; the last click, which opens
// the measured dialog, is timed.
void chain(HWND dialog, const std::string &title, const std::vector<step> &steps) {
    const size_t i = data.parents.size();
    if (i >= steps.size() || steps[i].title != title) return;
    data.parents.push_back(dialog);
    const step s = steps[i];
    if (i + 1 < steps.size()) {
        if (s.list) SendDlgItemMessageA(dialog, s.list, LB_SETCURSEL, 0, 0);
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(s.button, BN_CLICKED), 0);
        return;
    }
    click_through(std::vector<HWND>(data.parents.rbegin(), data.parents.rend()), [dialog, s] { press(dialog, s); });
}
}  // namespace

std::vector<scenario> heli_scenarios() {
    std::vector<scenario> all;
    all.push_back({"edit_heli_group",
                   IDD_EDIT_HELI_GROUP,
                   "Edit Heli Group",
                   [](int n) {
                       bench().rally_points = names("rally", n);
                       data.available = units(n);
                       make_group(0);
                   },
                   open_group,
                   nullptr,
                   [](int n) {
                       std::vector<floor_line> available;
                       for (int id = 1; id <= n; ++id) available.push_back({scrambled_name("heli", id), id});
                       return std::vector<floor_control>{{IDC_HG_AVAILABLE, available},
                                                         {IDC_HG_RALLY_POINT, name_lines(names("rally", n))}};
                   },
                   release});
    all.push_back({"list_heli_groups",
                   IDD_LIST_HELI_GROUPS,
                   "List Heli Groups",
                   [](int n) {
                       std::vector<const void *> values;
                       for (int g = 0; g < n; ++g) {
                           heli_group_record *group = bench().heli.create_heli_group();
                           std::snprintf(group->name, sizeof group->name, "%s", scrambled_name("Group", g).c_str());
                           values.push_back(group);
                       }
                       data.groups = bench().list(values);
                       data.available = units(0);
                   },
                   [] { bench().editor.window(REQUEST_LIST_HELI_GROUPS, reinterpret_cast<uintptr_t>(data.groups),
                                             reinterpret_cast<uintptr_t>(data.available)); },
                   nullptr,
                   [](int n) { return std::vector<floor_control>{{IDC_LHG_GROUPS, name_lines(names("Group", n))}}; },
                   release});
    all.push_back({"edit_waypoints",
                   IDD_EDIT_WAYPOINTS,
                   "Edit Waypoints",
                   [](int n) {
                       data.available = units(0);
                       make_group(n);
                   },
                   open_group,
                   [](HWND dialog, const std::string &title) {
                       chain(dialog, title, {{"Edit Heli Group", 0, IDC_HG_EDIT_WAYPOINTS}});
                   },
                   [](int n) { return std::vector<floor_control>{{IDC_WPS_LIST, name_lines(names("marker", n))}}; },
                   release});
    all.push_back({"edit_waypoint",
                   IDD_EDIT_WAYPOINT,
                   "Edit Waypoint",
                   one_waypoint_over_markers,
                   open_group,
                   [](HWND dialog, const std::string &title) {
                       chain(dialog, title,
                             {{"Edit Heli Group", 0, IDC_HG_EDIT_WAYPOINTS}, {"Edit Waypoints", IDC_WPS_LIST, IDC_WPS_EDIT}});
                   },
                   [](int n) {
                       std::vector<floor_line> markers = name_lines(names("marker", n));
                       markers.insert(markers.begin(), floor_line{"None Selected", 0});
                       return std::vector<floor_control>{{IDC_WP_MARKER, markers}};
                   },
                   release});
    all.push_back({"patrol_order",
                   IDD_PATROL_ORDER,
                   "Edit Patrol Order",
                   one_waypoint_over_markers,
                   open_group,
                   [](HWND dialog, const std::string &title) {
                       chain(dialog, title,
                             {{"Edit Heli Group", 0, IDC_HG_EDIT_WAYPOINTS},
                              {"Edit Waypoints", IDC_WPS_LIST, IDC_WPS_EDIT},
                              {"Edit Waypoint", IDC_WP_ORDERS, IDC_WP_ORDER_EDIT}});
                   },
                   [](int n) { return std::vector<floor_control>{{IDC_PATROL_MARKERS, name_lines(names("marker", n))}}; },
                   release});
    return all;
}
