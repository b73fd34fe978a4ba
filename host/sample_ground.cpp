// The sample mission's ground forces: the units that may join groups, and
// groups with members, orders and contingency orders, one of them removed.
// Every block is host memory from app().memory; the groups (those the editor
// added included) are freed when the main window is destroyed, before the
// host reports its allocator.
#include <cstdio>
#include <cstring>
#include <vector>

#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
struct sample_unit {
    int32_t id;
    const char *name;
    const char *type_name;
};

// Tank1 to Grunt7 match the sample objects of the same names.
const sample_unit units[] = {
    {103, "Tank1", "tank_t80"}, {104, "Tank2", "tank_t80"}, {105, "Grunt7", "infantry"},
    {106, "Mortar2", "mortar"}, {107, "Jeep3", "jeep"},     {108, "APC1", "apc_btr"},
    {109, "APC2", "apc_btr"},   {110, "Scout4", "recon"},
};

void set_text(char *field, size_t size, const char *text) { std::snprintf(field, size, "%s", text); }

unit_entry *new_unit(int32_t id) {
    auto *u = static_cast<unit_entry *>(app().memory.alloc(sizeof(unit_entry)));
    std::memset(u, 0, sizeof *u);
    for (const sample_unit &s : units) {
        if (s.id != id) continue;
        set_text(u->name, sizeof u->name, s.name);
        set_text(u->type_name, sizeof u->type_name, s.type_name);
    }
    u->id = id;
    return u;
}

int hand_out(dlist_node **list, int acquire) {
    if (!list) return 0;
    if (acquire) {
        dlist_node *head = host_list_create();
        if (!head) return 0;
        for (const sample_unit &s : units) host_list_append(head, reinterpret_cast<uintptr_t>(new_unit(s.id)));
        *list = head;
        return 1;
    }
    dlist_node *head = *list;
    if (!head) return 0;
    for (dlist_node *node = head->next; node != head; node = node->next)
        app().memory.free(reinterpret_cast<void *>(node->value), sizeof(unit_entry));
    host_list_free(head);
    *list = nullptr;
    return 1;
}

sarge_order_record make_order(int32_t type, const char *name, float duration, const char *destination,
                              const char *formation) {
    sarge_order_record o;
    std::memset(&o, 0, sizeof o);
    o.type = type;
    set_text(o.name, sizeof o.name, name);
    o.duration = duration;
    set_text(o.destination, sizeof o.destination, destination);
    set_text(o.formation, sizeof o.formation, formation);
    return o;
}

group_record *make_group(const char *name, int32_t status, uint32_t appearance, int32_t type,
                         const std::vector<int32_t> &members) {
    auto *g = static_cast<group_record *>(app().memory.alloc(sizeof(group_record)));
    std::memset(g, 0, sizeof *g);
    set_text(g->name, sizeof g->name, name);
    g->status = status;
    g->appearance = appearance;
    g->group_type = type;
    g->members = host_list_create();
    for (int32_t id : members) host_list_append(g->members, reinterpret_cast<uintptr_t>(new_unit(id)));
    return g;
}

dlist_node *groups = nullptr;
WNDPROC main_proc = nullptr;

void free_groups() {
    if (!groups) return;
    for (dlist_node *node = groups->next; node != groups; node = node->next) {
        auto *g = reinterpret_cast<group_record *>(node->value);
        if (g->members) {
            for (dlist_node *m = g->members->next; m != g->members; m = m->next)
                app().memory.free(reinterpret_cast<void *>(m->value), sizeof(unit_entry));
            host_list_free(g->members);
        }
        app().memory.free(g, sizeof(group_record));
    }
    host_list_free(groups);
    groups = nullptr;
}

LRESULT CALLBACK watch_main_window(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) free_groups();
    return CallWindowProcA(main_proc, window, message, wparam, lparam);
}

dlist_node *build_groups() {
    dlist_node *list = host_list_create();

    group_record *armour = make_group("sarge0", 0, APPEAR_BY_GROUP | 100, 2, {103, 104});
    armour->orders[0] = make_order(SARGE_ORDER_HALT, "Hold", 30.0f, "", "");
    armour->orders[1] = make_order(SARGE_ORDER_ADVANCE, "Push", 0.0f, "WP_North", "Wedge");
    set_text(armour->orders[1].message, sizeof armour->orders[1].message, "at the ridge");
    set_text(armour->orders[1].message_target, sizeof armour->orders[1].message_target, "HQ");
    armour->order_count = 2;
    armour->contingencies[0].trigger = TRIGGER_UNDER_FIRE;
    armour->contingencies[0].order = make_order(SARGE_ORDER_DEFEND, "Dig In", 0.0f, "", "");
    armour->contingencies[1].trigger = TRIGGER_DAMAGE;
    armour->contingencies[1].survivors = 1;
    armour->contingencies[1].order = make_order(SARGE_ORDER_MARCH, "Fall Back", 0.0f, "WP_South", "Column");
    set_text(armour->contingencies[1].next_order, sizeof armour->contingencies[1].next_order, "Hold");
    armour->contingency_count = 2;
    host_list_append(list, reinterpret_cast<uintptr_t>(armour));

    group_record *infantry = make_group("sarge1", 0, APPEAR_BY_UNIT | 70, 1, {105, 106});
    infantry->target_player_only = 1;
    infantry->orders[0] = make_order(SARGE_ORDER_DEFEND, "Guard", 0.0f, "", "");
    infantry->orders[1] = make_order(SARGE_ORDER_BARRAGE, "Shell Bridge", 120.0f, "WP_Bridge", "");
    infantry->order_count = 2;
    infantry->contingencies[0].trigger = TRIGGER_ENEMY_CLOSE;
    infantry->contingencies[0].distance = 250.0f;
    infantry->contingencies[0].order = make_order(SARGE_ORDER_MOBILE_DEFENCE, "Scatter", 0.0f, "", "");
    infantry->contingency_count = 1;
    host_list_append(list, reinterpret_cast<uintptr_t>(infantry));

    // Removed in an earlier Group List session: not listed, its jeep is free again.
    group_record *removed = make_group("sarge2", GROUP_STATUS_REMOVED, 50, 4, {107});
    host_list_append(list, reinterpret_cast<uintptr_t>(removed));
    return list;
}
}  // namespace

int EDITOR_CDECL sample_unit_list(dlist_node **list, int acquire) { return hand_out(list, acquire); }

// The game offers the same units when a group is edited on its own.
int EDITOR_CDECL sample_unit_list_standalone(dlist_node **list, int acquire) {
    return acquire ? hand_out(list, acquire) : 0;
}

dlist_node *sample_groups() {
    if (!groups) {
        groups = build_groups();
        if (!main_proc && app().main_window) {
            main_proc = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(
                app().main_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watch_main_window)));
        }
    }
    return groups;
}
