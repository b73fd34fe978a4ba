#include "host/sample_mission.h"

#include <cstring>

#include "host/host_app.h"

sample_mission &mission() {
    static sample_mission m = [] {
        sample_mission s;
        s.objects = {
            {101, "", "", "tree_oak"},
            {102, "Bridge1", "", "bridge_steel"},
            {103, "Tank1", "sarge0", "tank_t80"},
            {104, "Tank2", "sarge0", "tank_t80"},
            {105, "Grunt7", "", "infantry"},
        };
        s.reference_names[0] = {"Bridge1", "Church", "Crossroads"};
        s.reference_names[1] = {"Farmhouse", "Water Tower"};
        s.reference_names[2] = {"Tank1", "Tank2"};
        s.reference_names[3] = {"WP_North", "WP_South"};
        s.reference_names[4] = {"Bridge1", "Crossroads"};
        s.reference_names[5] = {};  // a type with nothing to refer to
        s.reference_names[6] = {"Airfield", "Helipad"};
        s.reference_names[7] = {"Grunt7", "Tank1"};
        s.reference_names[8] = {"Grunt7"};
        s.message_targets = {"sarge0", "sarge1", "HQ"};
        s.formations = {"Column", "Line", "Wedge", "Echelon Left", "Echelon Right"};
        s.markers = {"WP_North", "WP_South", "WP_Bridge", "LZ_Alpha", "LZ_Bravo"};
        return s;
    }();
    return m;
}

const sample_object *sample_mission::find(uint32_t id) const {
    for (const sample_object &o : objects)
        if (o.id == id) return &o;
    return nullptr;
}

const sample_object *sample_mission::find(const std::string &name) const {
    for (const sample_object &o : objects)
        if (!o.name.empty() && o.name == name) return &o;
    return nullptr;
}

dlist_node *host_list_create() {
    auto *head = static_cast<dlist_node *>(app().memory.alloc(12));
    if (!head) return nullptr;
    head->next = head->prev = head;
    head->value = reinterpret_cast<uintptr_t>(head);
    return head;
}

void host_list_append(dlist_node *head, uintptr_t value) {
    auto *node = static_cast<dlist_node *>(app().memory.alloc(12));
    if (!node) return;
    node->value = value;
    node->next = head;
    node->prev = head->prev;
    head->prev->next = node;
    head->prev = node;
}

void host_list_free(dlist_node *head) {
    if (!head) return;
    for (dlist_node *node = head->next; node != head;) {
        dlist_node *next = node->next;
        app().memory.free(node, 12);
        node = next;
    }
    app().memory.free(head, 12);
}

char *host_text_copy(const std::string &text) {
    auto size = static_cast<uint32_t>(text.size() + 1);
    auto *copy = static_cast<char *>(app().memory.alloc(size));
    if (copy) std::memcpy(copy, text.c_str(), size);
    return copy;
}

void host_text_free(char *text) {
    if (text) app().memory.free(text, static_cast<uint32_t>(std::strlen(text) + 1));
}

namespace {
// A list of names for a combo box: built on acquire, freed with its texts on release.
int name_list(const std::vector<std::string> &names, dlist_node **list, int acquire) {
    if (!list) return 0;
    if (acquire) {
        dlist_node *head = host_list_create();
        if (!head) return 0;
        for (const std::string &name : names) host_list_append(head, reinterpret_cast<uintptr_t>(host_text_copy(name)));
        *list = head;
        return 1;
    }
    dlist_node *head = *list;
    if (!head) return 0;
    for (dlist_node *node = head->next; node != head; node = node->next) {
        host_text_free(reinterpret_cast<char *>(node->value));
    }
    host_list_free(head);
    *list = nullptr;
    return 1;
}

int EDITOR_CDECL op_notify(int code, uintptr_t argument) {
    host_app &a = app();
    char line[160];
    if (code == NOTIFY_MODE) {
        std::snprintf(line, sizeof line, "notify: mode %u", static_cast<unsigned>(argument));
        a.log(line);
        // A real host adopts the chosen mode and reports it back.
        a.state.edit_mode = static_cast<int32_t>(argument);
        a.send_state();
    } else if (code == NOTIFY_POSITION || code == NOTIFY_ORIENTATION) {
        float v[3];
        std::memcpy(v, reinterpret_cast<const void *>(argument), sizeof v);
        std::snprintf(line, sizeof line, "notify: %s %.3f, %.3f, %.3f",
                      code == NOTIFY_POSITION ? "position" : "orientation", v[0], v[1], v[2]);
        a.log(line);
        std::memcpy(code == NOTIFY_POSITION ? a.state.position : a.state.orientation, v, sizeof v);
        a.send_state();
    } else {
        std::snprintf(line, sizeof line, "notify: unknown code %d", code);
        a.log(line);
    }
    return 0;
}

int EDITOR_CDECL op_reference_list(int type, dlist_node **list, int acquire) {
    static const std::vector<std::string> none;
    return name_list(type >= 0 && type < 9 ? mission().reference_names[type] : none, list, acquire);
}
int EDITOR_CDECL op_message_targets(dlist_node **list, int acquire) {
    return name_list(mission().message_targets, list, acquire);
}
int EDITOR_CDECL op_formations(dlist_node **list, int acquire) {
    return name_list(mission().formations, list, acquire);
}
int EDITOR_CDECL op_markers(dlist_node **list, int acquire) {
    return name_list(mission().markers, list, acquire);
}

int EDITOR_CDECL op_object_exists(const char *name) { return name && mission().find(std::string(name)) ? 1 : 0; }

void *EDITOR_CDECL op_alloc(uint32_t size) { return app().memory.alloc(size); }
int EDITOR_CDECL op_free(void *block, uint32_t size) {
    app().memory.free(block, size);
    return 0;
}

int EDITOR_CDECL op_object_name(uint32_t id, int by_name, char *names) {
    if (!names) return 0;
    if (by_name) {
        char name[33];
        std::memcpy(name, names, 32);
        name[32] = '\0';
        return mission().find(std::string(name)) ? 1 : 0;
    }
    std::memset(names, 0, 64);
    const sample_object *o = mission().find(id);
    if (!o) return 0;
    std::strncpy(names, o->name.c_str(), 31);
    std::strncpy(names + 32, o->group.c_str(), 31);
    return 1;
}
}  // namespace

namespace {
int EDITOR_CDECL op_order_create(uint32_t kind, heli_order_record **order) {
    heli_order_record *made = app().heli.create_order(kind);
    if (made) *order = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_order_copy(heli_order_record *source, heli_order_record **copy) {
    heli_order_record *made = source ? app().heli.copy_order(*source) : nullptr;
    if (made) *copy = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_order_destroy(heli_order_record **order) {
    app().heli.destroy_order(*order);
    return 0;
}
int EDITOR_CDECL op_patrol_point_create(const char *marker, patrol_point **point) {
    patrol_point *made = app().heli.create_patrol_point(marker);
    if (made) *point = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_patrol_point_destroy(patrol_point **point) {
    app().heli.destroy_patrol_point(*point);
    return 0;
}

template <class T>
int hand_out(T *made, T **out) {
    if (made) *out = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_waypoint_create(waypoint_record **out) { return hand_out(app().heli.create_waypoint(), out); }
int EDITOR_CDECL op_waypoint_copy(waypoint_record *source, waypoint_record **out) {
    return hand_out(source ? app().heli.copy_waypoint(*source) : nullptr, out);
}
int EDITOR_CDECL op_waypoint_destroy(waypoint_record **waypoint) {
    app().heli.destroy_waypoint(*waypoint);
    return 0;
}
int EDITOR_CDECL op_heli_group_create(heli_group_record **out) { return hand_out(app().heli.create_heli_group(), out); }
int EDITOR_CDECL op_heli_group_copy(heli_group_record *source, heli_group_record **out) {
    return hand_out(source ? app().heli.copy_heli_group(*source) : nullptr, out);
}
int EDITOR_CDECL op_heli_group_destroy(heli_group_record **group) {
    app().heli.destroy_heli_group(*group);
    return 0;
}
}  // namespace

host_ops sample_host_ops() {
    host_ops ops{};
    ops.host_notify = op_notify;
    ops.host_reference_list = op_reference_list;
    ops.host_message_target_list = op_message_targets;
    ops.host_formation_list = op_formations;
    ops.host_marker_list = op_markers;
    ops.host_object_exists = op_object_exists;
    ops.host_unit_list = sample_unit_list;
    ops.host_unit_list_standalone = sample_unit_list_standalone;
    ops.host_alloc = op_alloc;
    ops.host_free = op_free;
    ops.host_object_name = op_object_name;
    ops.host_order_create = op_order_create;
    ops.host_order_copy = op_order_copy;
    ops.host_order_destroy = op_order_destroy;
    ops.host_patrol_point_create = op_patrol_point_create;
    ops.host_patrol_point_destroy = op_patrol_point_destroy;
    ops.host_rally_point_list = sample_rally_point_list;
    ops.host_waypoint_create = op_waypoint_create;
    ops.host_waypoint_copy = op_waypoint_copy;
    ops.host_waypoint_destroy = op_waypoint_destroy;
    ops.host_heli_group_create = op_heli_group_create;
    ops.host_heli_group_copy = op_heli_group_copy;
    ops.host_heli_group_destroy = op_heli_group_destroy;
    return ops;
}
