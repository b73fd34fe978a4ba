// The sample mission's air support: two bombing runs over the sample
// markers, and two rally points. Every record, list, waypoint, location and
// type name is host memory from app().memory; the editor adds and frees
// waypoints (48 bytes) and locations (12 bytes) in these lists itself.
#include <cstring>

#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
template <class T>
T *new_block() {
    auto *block = static_cast<T *>(app().memory.alloc(sizeof(T)));
    std::memset(block, 0, sizeof(T));
    return block;
}

void set_name(char (&field)[32], const char *text) { std::strncpy(field, text, sizeof field - 1); }

struct waypoint_spec {
    const char *marker;
    float height;
};

dlist_node *route(std::initializer_list<waypoint_spec> waypoints) {
    dlist_node *list = host_list_create();
    for (const waypoint_spec &w : waypoints) {
        auto *waypoint = new_block<bombing_waypoint>();
        set_name(waypoint->name, w.marker);
        waypoint->height = w.height;
        host_list_append(list, reinterpret_cast<uintptr_t>(waypoint));
    }
    return list;
}

bombing_run_record *bombing_run(const char *name, float x, float z, const char *type, uint32_t count,
                                std::initializer_list<waypoint_spec> ingress, std::initializer_list<waypoint_spec> egress) {
    auto *run = new_block<bombing_run_record>();
    set_name(run->name, name);
    run->target_x = x;
    run->target_y = 35.0f;
    run->target_z = z;
    run->release_height = 300.0f;
    run->attack_radius = 150.0f;
    run->attack_time = 120.0f;
    set_name(run->aircraft_type, type);
    run->aircraft_count = count;
    run->ingress = route(ingress);
    run->egress = route(egress);
    run->aircraft_types = host_list_create();
    for (const char *t : {"Tornado GR1", "A-10", "F-111", "Harrier GR3", "Jaguar"})
        host_list_append(run->aircraft_types, reinterpret_cast<uintptr_t>(host_text_copy(t)));
    return run;
}

rally_point_record *rally_point(const char *name, float x, float y, float z, int locations) {
    auto *point = new_block<rally_point_record>();
    set_name(point->name, name);
    point->x = x;
    point->y = y;
    point->z = z;
    point->arsp_locations = host_list_create();
    for (int i = 1; i <= locations; ++i) {
        auto *location = new_block<arsp_location>();
        *location = {x + 2.0f * static_cast<float>(i), y, z};
        host_list_append(point->arsp_locations, reinterpret_cast<uintptr_t>(location));
    }
    return point;
}

// Frees a list with its entries of `size` bytes (a size of 0: texts).
void free_list(dlist_node *list, uint32_t size) {
    for (dlist_node *node = list->next; node != list; node = node->next) {
        if (size) app().memory.free(reinterpret_cast<void *>(node->value), size);
        else host_text_free(reinterpret_cast<char *>(node->value));
    }
    host_list_free(list);
}

sample_air *built = nullptr;
WNDPROC main_proc = nullptr;

void free_air() {
    if (!built) return;
    for (bombing_run_record *run : built->bombing_runs) {
        free_list(run->ingress, sizeof(bombing_waypoint));
        free_list(run->egress, sizeof(bombing_waypoint));
        free_list(run->aircraft_types, 0);
        app().memory.free(run, sizeof *run);
    }
    for (rally_point_record *point : built->rally_points) {
        free_list(point->arsp_locations, sizeof(arsp_location));
        app().memory.free(point, sizeof *point);
    }
    delete built;
    built = nullptr;
}

LRESULT CALLBACK watch_main_window(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) free_air();
    return CallWindowProcA(main_proc, window, message, wparam, lparam);
}
}  // namespace

sample_air &air_sample() {
    if (!built) {
        built = new sample_air;
        built->bombing_runs = {
            bombing_run("Bridge Strike", 1200.0f, -340.5f, "Tornado GR1", 2,
                        {{"WP_North", 120.0f}, {"WP_Bridge", 80.0f}}, {{"LZ_Alpha", 150.0f}}),
            bombing_run("Depot Raid", -850.0f, 2210.0f, "a-10", 4, {{"WP_South", 60.0f}}, {}),
        };
        built->rally_points = {rally_point("RP Alpha", 400.0f, 12.0f, 900.0f, 2),
                               rally_point("RP Bravo", -1500.0f, 40.0f, 75.25f, 0)};
        if (!main_proc && app().main_window) {
            main_proc = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(
                app().main_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watch_main_window)));
        }
    }
    return *built;
}
