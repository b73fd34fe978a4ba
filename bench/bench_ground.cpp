// Create New Objects and the ground dialogs, with N host entries.
#include <cstdio>
#include <cstring>

#include "bench/bench.h"
#include "resources/ground_ids.h"
#include "resources/placement_ids.h"

namespace {
unit_entry make_unit(int32_t id) {
    unit_entry u{};
    std::snprintf(u.name, sizeof u.name, "%s", scrambled_name("unit", id).c_str());
    std::snprintf(u.type_name, sizeof u.type_name, "tank_t80");
    u.id = id;
    return u;
}

std::vector<std::string> names(const char *prefix, int n) {
    std::vector<std::string> all;
    all.reserve(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) all.push_back(scrambled_name(prefix, i));
    return all;
}

std::vector<floor_line> name_lines(const std::vector<std::string> &all, bool with_data) {
    std::vector<floor_line> lines;
    for (size_t i = 0; i < all.size(); ++i) lines.push_back({all[i], with_data ? static_cast<LPARAM>(i + 1) : 0});
    return lines;
}

std::vector<floor_line> unit_lines(int n) {
    std::vector<floor_line> lines;
    for (int id = 1; id <= n; ++id) {
        unit_entry u = make_unit(id);
        lines.push_back({std::string(u.name) + " (" + u.type_name + ")", id});
    }
    return lines;
}

// Groups and their member lists in host memory.
group_record *new_group(const char *name, int32_t first_member, int members) {
    bench_host &h = bench();
    auto *g = static_cast<group_record *>(h.memory.alloc(sizeof(group_record)));
    std::memset(g, 0, sizeof *g);
    std::snprintf(g->name, sizeof g->name, "%s", name);
    std::vector<const void *> values;
    for (int i = 0; i < members; ++i) {
        auto *u = static_cast<unit_entry *>(h.memory.alloc(sizeof(unit_entry)));
        *u = make_unit(first_member + i);
        values.push_back(u);
    }
    g->members = h.list(values);
    return g;
}

void free_group(group_record *g) {
    bench_host &h = bench();
    for (dlist_node *n = g->members->next; n != g->members; n = n->next)
        h.memory.free(reinterpret_cast<void *>(n->value), sizeof(unit_entry));
    h.free_list(g->members);
    h.memory.free(g, sizeof(group_record));
}

struct ground_data {
    dlist_node *groups = nullptr;  // group_record *
    group_record *edited = nullptr;
    dlist_node *objects = nullptr;  // unit_entry * of the object name list
    create_objects_record create{};
    HWND composition = nullptr;
} data;

void free_groups() {
    bench_host &h = bench();
    if (data.groups) {
        for (dlist_node *n = data.groups->next; n != data.groups; n = n->next)
            free_group(reinterpret_cast<group_record *>(n->value));
        h.free_list(data.groups);
    }
    data = ground_data{};
}

// The group list: the edited group first (no members), then `others` groups
// of ten members each whose ids the unit list does not hold.
void make_groups(int others, int first_id) {
    std::vector<const void *> values;
    data.edited = new_group("edited", 0, 0);
    values.push_back(data.edited);
    for (int g = 0; g < others; ++g) {
        char name[32];
        std::snprintf(name, sizeof name, "sarge%d", g);
        values.push_back(new_group(name, first_id + g * 10, 10));
    }
    data.groups = bench().list(values);
}

void open_request(int request, uintptr_t arg1, uintptr_t arg2) { bench().editor.window(request, arg1, arg2); }

scenario composition(const char *name, bool with_groups) {
    return {name,
            IDD_GROUP_COMPOSITION,
            "Dialog",
            [with_groups](int n) {
                bench_host &h = bench();
                for (int id = 1; id <= n; ++id) h.units.push_back(make_unit(id));
                make_groups(with_groups ? n / 10 : 0, n + 1);
            },
            [] { open_request(REQUEST_GROUP_COMPOSITION, reinterpret_cast<uintptr_t>(data.edited),
                              reinterpret_cast<uintptr_t>(data.groups)); },
            nullptr,
            [](int n) { return std::vector<floor_control>{{IDC_GC_AVAILABLE, unit_lines(n)}}; },
            free_groups};
}
}  // namespace

std::vector<scenario> ground_scenarios() {
    std::vector<scenario> all;
    all.push_back({"create_objects",
                   IDD_CREATE_OBJECTS,
                   "Create New Objects",
                   [](int n) {
                       bench().reference_names = names("ref", n);
                       data.create = create_objects_record{};
                       data.create.preset = data.create.enabled = CO_TYPE | CO_REF_OBJ;
                   },
                   [] { open_request(REQUEST_CREATE_OBJECTS, reinterpret_cast<uintptr_t>(&data.create), 0); },
                   nullptr,
                   [](int n) { return std::vector<floor_control>{{IDC_CO_REF_OBJ, name_lines(names("ref", n), false)}}; },
                   [] {}});
    all.push_back(composition("group_composition", false));
    all.push_back(composition("group_composition_groups", true));
    all.push_back({"group_list",
                   IDD_GROUP_LIST,
                   "Group List",
                   [](int n) {
                       std::vector<const void *> values;
                       for (int g = 0; g < n; ++g) values.push_back(new_group(scrambled_name("sarge", g).c_str(), 0, 0));
                       data.groups = bench().list(values);
                   },
                   [] { open_request(REQUEST_GROUP_LIST, reinterpret_cast<uintptr_t>(data.groups), 0); },
                   nullptr,
                   [](int n) { return std::vector<floor_control>{{IDC_GL_GROUPS, name_lines(names("sarge", n), true)}}; },
                   free_groups});
    all.push_back({"object_names",
                   IDD_OBJECT_NAMES,
                   "Dialog",
                   [](int n) {
                       bench_host &h = bench();
                       std::vector<const void *> values;
                       for (int id = 1; id <= n; ++id) {
                           auto *u = static_cast<unit_entry *>(h.memory.alloc(sizeof(unit_entry)));
                           *u = make_unit(id);
                           values.push_back(u);
                       }
                       data.objects = h.list(values);
                   },
                   [] { open_request(REQUEST_OBJECT_NAMES, reinterpret_cast<uintptr_t>(data.objects), 0); },
                   nullptr,
                   [](int n) {
                       std::vector<floor_line> lines;
                       for (int id = 1; id <= n; ++id) {
                           unit_entry u = make_unit(id);
                           char line[96];
                           std::snprintf(line, sizeof line, "%d : %s  (%s)", id, u.name, u.type_name);
                           lines.push_back({line, id});
                       }
                       return std::vector<floor_control>{{IDC_ON_LIST, lines}};
                   },
                   [] {
                       bench_host &h = bench();
                       for (dlist_node *n = data.objects->next; n != data.objects; n = n->next)
                           h.memory.free(reinterpret_cast<void *>(n->value), sizeof(unit_entry));
                       h.free_list(data.objects);
                       data = ground_data{};
                   }});
    // Sarge Order, reached as a designer reaches it: request 9, Edit Orders,
    // Edit on the group's one order, an Advance (all three combos filled).
    all.push_back({"sarge_order",
                   IDD_SARGE_ORDER,
                   "Sarge Order",
                   [](int n) {
                       bench_host &h = bench();
                       h.markers = names("marker", n);
                       h.formations = names("formation", n);
                       h.message_targets = names("target", n);
                       make_groups(0, 1);
                       sarge_order_record &order = data.edited->orders[0];
                       order.type = SARGE_ORDER_ADVANCE;
                       std::snprintf(order.name, sizeof order.name, "advance");
                       data.edited->order_count = 1;
                   },
                   [] { open_request(REQUEST_GROUP_COMPOSITION, reinterpret_cast<uintptr_t>(data.edited),
                                     reinterpret_cast<uintptr_t>(data.groups)); },
                   [](HWND dialog, const std::string &) {
                       if (!data.composition) {
                           data.composition = dialog;
                           PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_GC_EDIT_ORDERS, BN_CLICKED), 0);
                           return;
                       }
                       HWND composition = data.composition;
                       click_through({dialog, composition}, [dialog] {
                           SendDlgItemMessageA(dialog, IDC_GO_ORDERS, LB_SETCURSEL, 0, 0);
                           SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_GO_EDIT, BN_CLICKED), 0);
                       });
                   },
                   [](int n) {
                       std::vector<floor_line> targets = name_lines(names("target", n), true);
                       targets.push_back({"NONE", 0});
                       return std::vector<floor_control>{{IDC_ORDER_DESTINATION, name_lines(names("marker", n), true)},
                                                         {IDC_ORDER_FORMATION, name_lines(names("formation", n), true)},
                                                         {IDC_ORDER_MESSAGE_TARGET, targets}};
                   },
                   free_groups});
    return all;
}
