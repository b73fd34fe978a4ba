#include "host/test_host.h"

#include <cstring>


test_host *current_host = nullptr;

namespace {
int EDITOR_CDECL op_notify(int code, uintptr_t argument) {
    notification n{code, argument, {0, 0, 0}};
    if (code == NOTIFY_POSITION || code == NOTIFY_ORIENTATION) {
        std::memcpy(n.values, reinterpret_cast<const void *>(argument), sizeof n.values);
    }
    current_host->notifications.push_back(n);
    if (current_host->on_notify) current_host->on_notify(n);
    return 0;
}

int acquire_names(const std::vector<std::string> &names, dlist_node **list, int acquire) {
    test_host &h = *current_host;
    const bool refusing = !h.refuse_only || h.refuse_only == &names;
    if (acquire) {
        if (h.refuse_acquire && refusing) return 0;
        std::vector<uintptr_t> values;
        for (const std::string &name : names) values.push_back(reinterpret_cast<uintptr_t>(h.host_text(name)));
        *list = h.build_list(values);
        ++h.lists_out;
        return 1;
    }
    if (h.refuse_release && refusing) {
        h.refused_releases.push_back(*list);
        --h.lists_out;
        return 0;
    }
    h.free_list(*list);
    *list = nullptr;
    --h.lists_out;
    return 1;
}

int EDITOR_CDECL op_reference_list(int type, dlist_node **list, int acquire) {
    static const std::vector<std::string> none;
    const auto &names = type >= 0 && type < 9 ? current_host->reference_names[type] : none;
    return acquire_names(names, list, acquire);
}
int EDITOR_CDECL op_message_targets(dlist_node **list, int acquire) {
    return acquire_names(current_host->message_targets, list, acquire);
}
int EDITOR_CDECL op_formations(dlist_node **list, int acquire) {
    return acquire_names(current_host->formations, list, acquire);
}
int EDITOR_CDECL op_markers(dlist_node **list, int acquire) {
    return acquire_names(current_host->markers, list, acquire);
}

// A fresh list of host copies of the entries.
template <class T>
dlist_node *copies(const std::vector<T> &entries) {
    std::vector<uintptr_t> values;
    for (const T &e : entries) values.push_back(reinterpret_cast<uintptr_t>(current_host->copy_block(e)));
    return current_host->build_list(values);
}

int units_out(const std::vector<unit_entry> &units, dlist_node **list) {
    test_host &h = *current_host;
    if (h.refuse_unit_acquire) return 0;
    *list = copies(units);
    ++h.lists_out;
    return 1;
}

int EDITOR_CDECL op_unit_list(dlist_node **list, int acquire) {
    test_host &h = *current_host;
    if (acquire) {
        ++h.unit_acquires;
        return units_out(h.units, list);
    }
    h.heli.free_units(*list);
    *list = nullptr;
    --h.lists_out;
    return h.refuse_unit_release ? 0 : 1;
}

int EDITOR_CDECL op_unit_list_standalone(dlist_node **list, int acquire) {
    if (!acquire) return 0;  // released through slot 22
    ++current_host->standalone_acquires;
    return units_out(current_host->standalone_units, list);
}

void *EDITOR_CDECL op_alloc(uint32_t size) { return current_host->memory.alloc(size); }
int EDITOR_CDECL op_free(void *block, uint32_t size) {
    current_host->memory.free(block, size);
    return 0;
}

int EDITOR_CDECL op_object_name(uint32_t id, int by_name, char *names) {
    test_host &h = *current_host;
    if (by_name) return h.existing_names.count(names) ? 1 : 0;
    auto found = h.objects.find(id);
    std::memset(names, 0, 64);
    if (found == h.objects.end()) return 0;
    // A name of 32 characters or more fills its half with no terminator.
    std::strncpy(names, found->second.first.c_str(), 32);
    std::strncpy(names + 32, found->second.second.c_str(), 32);
    return 1;
}

int EDITOR_CDECL op_object_exists(const char *name) {
    return name && current_host->existing_names.count(name) ? 1 : 0;
}

int EDITOR_CDECL op_order_create(uint32_t kind, heli_order_record **order) {
    heli_order_record *made = current_host->heli.create_order(kind);
    if (made) *order = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_order_copy(heli_order_record *source, heli_order_record **copy) {
    heli_order_record *made = source ? current_host->heli.copy_order(*source) : nullptr;
    if (made) *copy = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_order_destroy(heli_order_record **order) {
    current_host->heli.destroy_order(*order);
    return 0;
}
int EDITOR_CDECL op_patrol_point_create(const char *marker, patrol_point **point) {
    patrol_point *made = current_host->heli.create_patrol_point(marker);
    if (made) *point = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_patrol_point_destroy(patrol_point **point) {
    current_host->heli.destroy_patrol_point(*point);
    return 0;
}

int EDITOR_CDECL op_rally_points(dlist_node **list, int acquire) {
    test_host &h = *current_host;
    if (acquire) {
        if (h.refuse_rally_points) return 0;
        *list = copies(h.rally_points);
        ++h.lists_out;
        return 1;
    }
    for (dlist_node *node = (*list)->next; node != *list; node = node->next)
        h.memory.free(reinterpret_cast<void *>(node->value), sizeof(rally_point_entry));
    h.free_list(*list);
    *list = nullptr;
    --h.lists_out;
    return 1;
}

// Records made by the host's store, handed out through a pointer variable.
template <class T>
int hand_out(T *made, T **out) {
    if (made) *out = made;
    return made ? 1 : 0;
}
int EDITOR_CDECL op_waypoint_create(waypoint_record **out) { return hand_out(current_host->heli.create_waypoint(), out); }
int EDITOR_CDECL op_waypoint_copy(waypoint_record *source, waypoint_record **out) {
    return hand_out(source ? current_host->heli.copy_waypoint(*source) : nullptr, out);
}
int EDITOR_CDECL op_waypoint_destroy(waypoint_record **waypoint) {
    current_host->heli.destroy_waypoint(*waypoint);
    return 0;
}
int EDITOR_CDECL op_group_create(heli_group_record **out) { return hand_out(current_host->heli.create_heli_group(), out); }
int EDITOR_CDECL op_group_copy(heli_group_record *source, heli_group_record **out) {
    return hand_out(source ? current_host->heli.copy_heli_group(*source) : nullptr, out);
}
int EDITOR_CDECL op_group_destroy(heli_group_record **group) {
    current_host->heli.destroy_heli_group(*group);
    return 0;
}

LRESULT CALLBACK main_window_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return DefWindowProcA(window, message, wparam, lparam);
}

HWND test_main_window() {
    static HWND window = nullptr;
    if (!window) {
        WNDCLASSA wc{};
        wc.lpfnWndProc = main_window_proc;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "editor_test_host";
        wc.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        RegisterClassA(&wc);
        window = CreateWindowA("editor_test_host", "Test Host", WS_OVERLAPPEDWINDOW, 50, 50, 400, 300,
                               nullptr, nullptr, wc.hInstance, nullptr);
    }
    return window;
}
}  // namespace

dlist_node *test_host::build_list(const std::vector<uintptr_t> &values) {
    dlist_node *head = heli.new_list();
    for (uintptr_t value : values) heli.append(head, reinterpret_cast<const void *>(value));
    return head;
}

void test_host::free_list(dlist_node *head) { heli.free_list(head); }

char *test_host::host_text(const std::string &text) {
    texts_.emplace_back(new char[text.size() + 1]);
    std::memcpy(texts_.back().get(), text.c_str(), text.size() + 1);
    return texts_.back().get();
}

unit_entry test_host::unit(int32_t id, const std::string &name, const std::string &type_name) {
    unit_entry u{};
    std::strncpy(u.name, name.c_str(), sizeof u.name - 1);
    std::strncpy(u.type_name, type_name.c_str(), sizeof u.type_name - 1);
    u.id = id;
    return u;
}

rally_point_entry test_host::rally_point(uint32_t id, const std::string &name) {
    rally_point_entry r{};
    std::strncpy(r.name, name.c_str(), sizeof r.name - 1);
    r.id = id;
    return r;
}

group_record *test_host::make_group(const std::string &name, const std::vector<unit_entry> &members, int32_t status) {
    auto *group = static_cast<group_record *>(memory.alloc(sizeof(group_record)));
    std::memset(group, 0, sizeof *group);
    std::strncpy(group->name, name.c_str(), sizeof group->name - 1);
    group->status = status;
    group->members = copies(members);
    return group;
}

void test_host::free_group(group_record *group) {
    heli.free_units(group->members);
    memory.free(group, sizeof(group_record));
}

dlist_node *test_host::make_group_list(const std::vector<group_record *> &groups) {
    std::vector<uintptr_t> values;
    for (group_record *g : groups) values.push_back(reinterpret_cast<uintptr_t>(g));
    return build_list(values);
}

void test_host::free_group_list(dlist_node *groups) {
    for (dlist_node *node = groups->next; node != groups; node = node->next)
        free_group(reinterpret_cast<group_record *>(node->value));
    free_list(groups);
}

editor_setup test_host::setup() {
    current_host = this;
    main_window = test_main_window();
    editor_setup s{};
    s.state.edit_mode = 0;
    s.state.edit_submode = 1;
    s.main_window = main_window;
    s.settings_file = settings_file.c_str();
    s.settings_folder = settings_folder.c_str();
    s.ops.host_notify = op_notify;
    s.ops.host_reference_list = op_reference_list;
    s.ops.host_message_target_list = op_message_targets;
    s.ops.host_formation_list = op_formations;
    s.ops.host_marker_list = op_markers;
    s.ops.host_unit_list = op_unit_list;
    s.ops.host_unit_list_standalone = op_unit_list_standalone;
    s.ops.host_alloc = op_alloc;
    s.ops.host_free = op_free;
    s.ops.host_object_name = op_object_name;
    s.ops.host_object_exists = op_object_exists;
    s.ops.host_order_create = op_order_create;
    s.ops.host_order_copy = op_order_copy;
    s.ops.host_order_destroy = op_order_destroy;
    s.ops.host_patrol_point_create = op_patrol_point_create;
    s.ops.host_patrol_point_destroy = op_patrol_point_destroy;
    s.ops.host_rally_point_list = op_rally_points;
    s.ops.host_waypoint_create = op_waypoint_create;
    s.ops.host_waypoint_copy = op_waypoint_copy;
    s.ops.host_waypoint_destroy = op_waypoint_destroy;
    s.ops.host_heli_group_create = op_group_create;
    s.ops.host_heli_group_copy = op_group_copy;
    s.ops.host_heli_group_destroy = op_group_destroy;
    return s;
}

std::string test_host::read_setting(const char *section, const char *key) const {
    char value[512] = "";
    GetPrivateProfileStringA(section, key, "<absent>", value, sizeof value, settings_path().c_str());
    return value;
}

void test_host::write_setting(const char *section, const char *key, const char *value) const {
    WritePrivateProfileStringA(section, key, value, settings_path().c_str());
}

void test_host::clear_settings() const { DeleteFileA(settings_path().c_str()); }

dlist_node *test_host::hold_list(dlist_node *list, uint32_t entry_size) {
    held_.push_back({list, entry_size, true});
    return list;
}

dlist_node *test_host::held_names(const std::vector<std::string> &texts) {
    std::vector<uintptr_t> values;
    for (const std::string &text : texts) values.push_back(reinterpret_cast<uintptr_t>(host_text(text)));
    return hold_list(build_list(values), 0);
}

std::vector<std::string> test_host::finish() {
    for (const held_block &h : held_) {
        if (!h.list) {
            memory.free(h.block, h.size);
            continue;
        }
        auto *list = static_cast<dlist_node *>(h.block);
        for (dlist_node *node = list->next; node != list; node = node->next)
            if (node->value && h.size) memory.free(reinterpret_cast<void *>(node->value), h.size);
        free_list(list);
    }
    held_.clear();
    std::vector<std::string> problems;
    if (lists_out) problems.push_back(std::to_string(lists_out) + " host lists acquired and never released");
    lists_out = 0;
    for (dlist_node *list : refused_releases) free_list(list);
    refused_releases.clear();
    for (const std::string &p : heli.report()) problems.push_back(p);
    heli.forget();
    for (const std::string &p : memory.problems()) problems.push_back(p);
    memory.reset();
    return problems;
}
