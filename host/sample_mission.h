// The host's in-memory sample mission: what its host operations hand to the
// editor. Every block the editor sees comes from app().memory.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "editor_api.h"

struct sample_object {
    uint32_t id;
    std::string name;   // empty: unnamed
    std::string group;  // empty: unattached
    std::string shape;
};

struct sample_mission {
    std::vector<sample_object> objects;
    // Reference objects offered per Create New Objects type (0 to 8).
    std::array<std::vector<std::string>, 9> reference_names;
    std::vector<std::string> message_targets;
    std::vector<std::string> formations;
    std::vector<std::string> markers;

    const sample_object *find(uint32_t id) const;
    const sample_object *find(const std::string &name) const;
};

sample_mission &mission();

// The full host operation table over the sample mission.
host_ops sample_host_ops();

// Lists in host memory: a head and nodes of 12 bytes, texts copied in.
dlist_node *host_list_create();
void host_list_append(dlist_node *head, uintptr_t value);
void host_list_free(dlist_node *head);
char *host_text_copy(const std::string &text);
void host_text_free(char *text);

// Ground forces (sample_ground.cpp). Slots 22 and 26 hand out fresh 68-byte
// unit copies in a host list; a release through slot 22 frees them.
int EDITOR_CDECL sample_unit_list(dlist_node **list, int acquire);
int EDITOR_CDECL sample_unit_list_standalone(dlist_node **list, int acquire);
// The mission's groups (a dlist of group_record *), built on first use and
// freed, with every group the editor added, when the main window goes away.
dlist_node *sample_groups();

// Helicopter groups (sample_heli.cpp). Slot 27 hands out the mission's rally
// points as fresh 68-byte entries, freed on release. The heli groups (a
// dlist of heli_group_record *) and the units that may join them are built
// on first use and freed, with whatever the editor put there, when the main
// window goes away.
int EDITOR_CDECL sample_rally_point_list(dlist_node **list, int acquire);
dlist_node *sample_heli_groups();
dlist_node *sample_available_units();

// Air support (sample_air.cpp): bombing runs with routes and aircraft types,
// and rally points with ARSP locations, built on first use and freed, with
// every waypoint and location the editor added, when the main window goes.
struct sample_air {
    std::vector<bombing_run_record *> bombing_runs;
    std::vector<rally_point_record *> rally_points;
};
sample_air &air_sample();
