// Bombing Run (N markers, N aircraft types, an ingress route of N
// waypoints) and Rally Point (N ARSP locations).
#include <cstdio>
#include <cstring>

#include "bench/bench.h"
#include "resources/air_ids.h"

namespace {
struct air_data {
    bombing_run_record run{};
    rally_point_record point{};
    std::vector<std::string> aircraft;
} data;

std::vector<std::string> names(const char *prefix, int n) {
    std::vector<std::string> all;
    for (int i = 0; i < n; ++i) all.push_back(scrambled_name(prefix, i));
    return all;
}

template <class T>
T *block() {
    auto *b = static_cast<T *>(bench().memory.alloc(sizeof(T)));
    std::memset(b, 0, sizeof(T));
    return b;
}

template <class T>
void free_entries(dlist_node *list) {
    for (dlist_node *n = list->next; n != list; n = n->next) bench().memory.free(reinterpret_cast<void *>(n->value), sizeof(T));
    bench().free_list(list);
}

// "%10s %.3f": the marker name right-aligned in ten characters, then the height.
std::string route_line(const std::string &name, float height) {
    char line[64];
    std::snprintf(line, sizeof line, "%10s %.3f", name.c_str(), static_cast<double>(height));
    return line;
}
}  // namespace

std::vector<scenario> air_scenarios() {
    std::vector<scenario> all;
    all.push_back({"bombing_run",
                   IDD_BOMBING_RUN,
                   "Edit Bombing Run Details",
                   [](int n) {
                       bench().markers = names("marker", n);
                       data.aircraft = names("aircraft", n);
                       data.run = bombing_run_record{};
                       data.run.aircraft_count = 2;
                       std::vector<const void *> route, types;
                       for (int i = 0; i < n; ++i) {
                           auto *w = block<bombing_waypoint>();
                           std::snprintf(w->name, sizeof w->name, "%s", scrambled_name("marker", i).c_str());
                           w->height = 50.0f;
                           route.push_back(w);
                           types.push_back(data.aircraft[static_cast<size_t>(i)].c_str());
                       }
                       data.run.ingress = bench().list(route);
                       data.run.egress = bench().list({});
                       data.run.aircraft_types = bench().list(types);
                   },
                   [] { bench().editor.window(REQUEST_BOMBING_RUN, reinterpret_cast<uintptr_t>(&data.run), 0); },
                   nullptr,
                   [](int n) {
                       std::vector<floor_line> markers, route, types;
                       for (const std::string &name : names("marker", n)) {
                           markers.push_back({name, 0});
                           route.push_back({route_line(name, 50.0f), 0});
                       }
                       for (const std::string &name : names("aircraft", n)) types.push_back({name, 0});
                       return std::vector<floor_control>{
                           {IDC_BR_MARKERS, markers}, {IDC_BR_INGRESS, route}, {IDC_BR_AIRCRAFT_TYPE, types}};
                   },
                   [] {
                       free_entries<bombing_waypoint>(data.run.ingress);
                       free_entries<bombing_waypoint>(data.run.egress);
                       bench().free_list(data.run.aircraft_types);
                   }});
    all.push_back({"rally_point",
                   IDD_RALLY_POINT,
                   "Edit Rally Point Details",
                   [](int n) {
                       data.point = rally_point_record{};
                       std::vector<const void *> locations;
                       for (int i = 0; i < n; ++i) {
                           auto *l = block<arsp_location>();
                           l->x = static_cast<float>(i);
                           l->z = static_cast<float>(-i);
                           locations.push_back(l);
                       }
                       data.point.arsp_locations = bench().list(locations);
                   },
                   [] { bench().editor.window(REQUEST_RALLY_POINT, reinterpret_cast<uintptr_t>(&data.point), 0); },
                   nullptr,
                   [](int n) {
                       std::vector<floor_line> lines;
                       for (int i = 0; i < n; ++i) {
                           char line[64];
                           std::snprintf(line, sizeof line, "%6.1f %6.1f", static_cast<double>(i),
                                         static_cast<double>(-i));
                           lines.push_back({line, 0});
                       }
                       return std::vector<floor_control>{{IDC_RP_ARSP, lines}};
                   },
                   [] { free_entries<arsp_location>(data.point.arsp_locations); }});
    return all;
}
