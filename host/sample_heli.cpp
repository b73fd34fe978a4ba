// The sample mission's helicopters: rally points, the helicopters that may
// join a group, and heli groups with routes of waypoints, orders at the
// waypoints and in-transit orders, one group removed. The records are made
// through the host's tracked store (app().heli), so every one of them, and
// every copy the editor asks for, must be destroyed exactly once; the groups
// (those the editor added or replaced included) and the units are freed
// when the main window is destroyed, before the host reports.
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
struct sample_rally_point {
    uint32_t id;
    const char *name;
};
const sample_rally_point rally_points[] = {{201, "RP_North"}, {202, "RP_Airfield"}, {203, "RP_South"}};

struct sample_heli {
    int32_t id;
    const char *name;
    const char *type_name;
};
const sample_heli helicopters[] = {
    {301, "Cobra1", "ah1_cobra"}, {302, "Cobra2", "ah1_cobra"}, {303, "Huey1", "uh1_huey"},
    {304, "Huey2", "uh1_huey"},   {305, "Huey3", "uh1_huey"},   {306, "Chinook1", "ch47"},
    {307, "Apache1", "ah64"},
};

dlist_node *groups = nullptr;
dlist_node *available = nullptr;
WNDPROC main_proc = nullptr;

void set_text(char *field, size_t size, const char *text) { std::snprintf(field, size, "%s", text); }

void append(dlist_node *list, const void *value) { host_list_append(list, reinterpret_cast<uintptr_t>(value)); }

unit_entry *new_unit(int32_t id) {
    auto *u = static_cast<unit_entry *>(app().memory.alloc(sizeof(unit_entry)));
    std::memset(u, 0, sizeof *u);
    for (const sample_heli &h : helicopters) {
        if (h.id != id) continue;
        set_text(u->name, sizeof u->name, h.name);
        set_text(u->type_name, sizeof u->type_name, h.type_name);
    }
    u->id = id;
    return u;
}

void add_deploy(heli_order_record *order, const char *name, float x, float z) {
    auto *entry = static_cast<deploy_entry *>(app().memory.alloc(sizeof(deploy_entry)));
    std::memset(entry, 0, sizeof *entry);
    set_text(entry->name, sizeof entry->name, name);
    entry->x = x;
    entry->z = z;
    append(order->body.deploy, entry);
}

void add_pickup(heli_order_record *order, const char *name) {
    auto *entry = static_cast<pickup_entry *>(app().memory.alloc(sizeof(pickup_entry)));
    std::memset(entry, 0, sizeof *entry);
    set_text(entry->name, sizeof entry->name, name);
    append(order->body.pickup, entry);
}

heli_order_record *order(uint32_t kind) { return app().heli.create_order(kind); }

waypoint_record *waypoint(const char *marker, uint32_t height, float kmh, std::initializer_list<heli_order_record *> orders) {
    waypoint_record *w = app().heli.create_waypoint();
    set_text(w->marker_name, sizeof w->marker_name, marker);
    w->height_level = height;
    w->transit_speed = kmh / 3.6f;
    for (heli_order_record *o : orders) append(w->orders, o);
    return w;
}

heli_group_record *group(const char *name, uint32_t rally_point, uint32_t status, std::initializer_list<int32_t> members) {
    heli_group_record *g = app().heli.create_heli_group();
    set_text(g->name, sizeof g->name, name);
    g->rally_point_id = rally_point;
    g->status = status;
    for (int32_t id : members) append(g->members, new_unit(id));
    return g;
}

void build() {
    groups = host_list_create();
    available = host_list_create();
    for (int32_t id : {305, 306, 307}) append(available, new_unit(id));

    heli_group_record *attack = group("Group0", 201, 0, {301, 302});
    heli_order_record *engage = order(HELI_ORDER_ENGAGE);
    engage->body.engage->target_type = TARGETS_AFV;
    engage->body.engage->range = 1500.0f;
    heli_order_record *patrol = order(HELI_ORDER_PATROL);
    patrol->body.patrol->cycles = 3;
    for (const char *marker : {"LZ_Alpha", "LZ_Bravo"}) append(patrol->body.patrol->points, app().heli.create_patrol_point(marker));
    heli_order_record *wait = order(HELI_ORDER_WAIT);
    wait->body.wait->mode = WAIT_FOR_OBJECT;
    set_text(wait->body.wait->name, sizeof wait->body.wait->name, "Bridge1");
    wait->body.wait->range = 150.0f;
    heli_order_record *land = order(HELI_ORDER_LAND);
    for (int i = 0; i < 4; ++i) land->body.land->positions[i] = {200.0f + 15.0f * i, 1.0f, -80.0f};
    append(attack->waypoints, waypoint("WP_North", HEIGHT_LOW, 180.0f, {engage, patrol}));
    append(attack->waypoints, waypoint("", HEIGHT_NOE, 120.0f, {wait}));
    append(attack->waypoints, waypoint("WP_Bridge", HEIGHT_MEDIUM, 220.0f, {land}));
    add_deploy(attack->in_transit, "sarge0", 1200.0f, -350.0f);
    append(groups, attack);

    heli_group_record *lift = group("Group1", 202, 0, {303, 304});
    heli_order_record *drop = order(HELI_ORDER_DEPLOY);
    add_deploy(drop, "sarge1", 800.0f, 400.0f);
    add_deploy(drop, "Grunt7", 812.5f, 395.0f);
    heli_order_record *pickup = order(HELI_ORDER_PICKUP);
    for (const char *name : {"Tank1", "Tank2"}) add_pickup(pickup, name);
    append(lift->waypoints, waypoint("LZ_Alpha", HEIGHT_LOW, 150.0f, {drop}));
    append(lift->waypoints, waypoint("", HEIGHT_HIGH, 200.0f, {pickup}));
    add_deploy(lift->in_transit, "sarge1", 0.0f, 0.0f);
    append(groups, lift);

    // Removed in an earlier session: not listed; its helicopters went back.
    append(groups, group("Group2", 203, HELI_GROUP_STATUS_REMOVED, {}));
}

void free_all() {
    if (groups) {
        for (dlist_node *node = groups->next; node != groups; node = node->next)
            app().heli.destroy_heli_group(reinterpret_cast<heli_group_record *>(node->value));
        host_list_free(groups);
        groups = nullptr;
    }
    if (available) {
        for (dlist_node *node = available->next; node != available; node = node->next)
            app().memory.free(reinterpret_cast<void *>(node->value), sizeof(unit_entry));
        host_list_free(available);
        available = nullptr;
    }
    // What the host's store made, copied and destroyed over the run; any
    // record not destroyed exactly once is reported after this.
    const heli_records &h = app().heli;
    char line[200];
    std::snprintf(line, sizeof line,
                  "heli records: orders %d made, %d copied, %d destroyed; waypoints %d, %d, %d; groups %d, %d, %d",
                  h.creates, h.copies, h.destroys, h.waypoint_counts.creates, h.waypoint_counts.copies,
                  h.waypoint_counts.destroys, h.group_counts.creates, h.group_counts.copies, h.group_counts.destroys);
    app().log(line);
}

LRESULT CALLBACK watch_main_window(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) free_all();
    return CallWindowProcA(main_proc, window, message, wparam, lparam);
}

void build_once() {
    if (groups) return;
    build();
    if (!main_proc && app().main_window) {
        main_proc = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(app().main_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watch_main_window)));
    }
}
}  // namespace

int EDITOR_CDECL sample_rally_point_list(dlist_node **list, int acquire) {
    if (!list) return 0;
    if (acquire) {
        dlist_node *head = host_list_create();
        if (!head) return 0;
        for (const sample_rally_point &r : rally_points) {
            auto *entry = static_cast<rally_point_entry *>(app().memory.alloc(sizeof(rally_point_entry)));
            std::memset(entry, 0, sizeof *entry);
            set_text(entry->name, sizeof entry->name, r.name);
            entry->id = r.id;
            append(head, entry);
        }
        *list = head;
        return 1;
    }
    dlist_node *head = *list;
    if (!head) return 0;
    for (dlist_node *node = head->next; node != head; node = node->next)
        app().memory.free(reinterpret_cast<void *>(node->value), sizeof(rally_point_entry));
    host_list_free(head);
    *list = nullptr;
    return 1;
}

dlist_node *sample_heli_groups() {
    build_once();
    return groups;
}

dlist_node *sample_available_units() {
    build_once();
    return available;
}
