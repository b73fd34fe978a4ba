// Air support: requests 12 (Edit Bombing Run Details) and 13 (Edit Rally
// Point Details) on the sample records; the host logs each record as it came
// back, routes and ARSP locations included.
#include <cstdio>
#include <string>

#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
std::string waypoints(const dlist_node *route) {
    std::string text;
    char item[64];
    for (dlist_node *n = route->next; n != route; n = n->next) {
        const auto *w = reinterpret_cast<const bombing_waypoint *>(n->value);
        std::snprintf(item, sizeof item, " %.31s@%.1f", w->name, static_cast<double>(w->height));
        text += item;
    }
    return text.empty() ? " none" : text;
}

void edit_run(size_t index) {
    bombing_run_record *run = air_sample().bombing_runs[index];
    int result = app().window(REQUEST_BOMBING_RUN, reinterpret_cast<uintptr_t>(run), 0);
    char line[256];
    std::snprintf(line, sizeof line,
                  "bombing run: answered %d, cancelled %u: \"%.31s\" at %.3f, %.3f, release %.3f m, radius %.3f m, "
                  "time %.3f s, %u x \"%.31s\"",
                  result, run->cancelled, run->name, static_cast<double>(run->target_x),
                  static_cast<double>(run->target_z), static_cast<double>(run->release_height),
                  static_cast<double>(run->attack_radius), static_cast<double>(run->attack_time),
                  run->aircraft_count, run->aircraft_type);
    app().log(line);
    app().log("  ingress:" + waypoints(run->ingress) + "; egress:" + waypoints(run->egress));
}

void edit_point(size_t index) {
    rally_point_record *point = air_sample().rally_points[index];
    int result = app().window(REQUEST_RALLY_POINT, reinterpret_cast<uintptr_t>(point), 0);
    char line[160];
    std::snprintf(line, sizeof line, "rally point: answered %d, cancelled %u: \"%.31s\" at %.3f, %.3f", result,
                  point->cancelled, point->name, static_cast<double>(point->x), static_cast<double>(point->z));
    std::string text = line + std::string("; ARSP:");
    for (dlist_node *n = point->arsp_locations->next; n != point->arsp_locations; n = n->next) {
        const auto *l = reinterpret_cast<const arsp_location *>(n->value);
        std::snprintf(line, sizeof line, " (%.1f, %.1f)", static_cast<double>(l->x), static_cast<double>(l->z));
        text += line;
    }
    app().log(text);
}

void tour() {
    tour_modal("Edit Bombing Run Details", "Edit Bombing Run Details", "bombing_run",
               "Air menu, Bombing run (request 12) on Bridge Strike: its target, Tornado GR1 aircraft, and "
               "ingress and egress routes over the sample's waypoint markers.",
               [] {
                   edit_run(0);
                   return 0;
               });
    tour_modal("Edit Rally Point Details", "Edit Rally Point Details", "rally_point",
               "Air menu, Rally point (request 13) on RP Alpha with its two ARSP locations.", [] {
                   edit_point(0);
                   return 0;
               });
}
}  // namespace

HOST_FEATURE("&Air", "&Bombing run (Bridge Strike)...", [] { edit_run(0); }, tour, 60);
HOST_FEATURE("&Air", "Bombing run (&Depot Raid)...", [] { edit_run(1); }, nullptr, 60);
HOST_FEATURE("&Air", "&Rally point (RP Alpha)...", [] { edit_point(0); }, nullptr, 60);
HOST_FEATURE("&Air", "Rally point (RP B&ravo)...", [] { edit_point(1); }, nullptr, 60);
