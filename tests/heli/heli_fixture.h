// Shared set-up of the helicopter tests: a started editor, a host list of
// heli groups and a host list of available units (each destroyed or freed
// at the end, whatever the editor put in them), markers and rally points.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "resources/heli_ids.h"
#include "tests/support/steps.h"
#include "util/dlist.h"

using lines = std::vector<std::string>;

class heli_test : public editor_test {
protected:
    dlist_node *groups = nullptr;     // heli_group_record *
    dlist_node *available = nullptr;  // unit_entry *, "U<id>"
    heli_records &heli = host.heli;

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
        host.markers = {"WP_North", "WP_South", "LZ_Alpha"};
        host.rally_points = {test_host::rally_point(201, "RP_North"), test_host::rally_point(202, "RP_South")};
        groups = heli.new_list();
        available = unit_list({1, 2, 3, 4});
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (heli_group_record *group : values<heli_group_record>(groups)) heli.destroy_heli_group(group);
        heli.free_list(groups);
        heli.free_units(available);
        editor_test::TearDown();
    }
    dlist_node *unit_list(const std::vector<int> &ids) {
        dlist_node *list = heli.new_list();
        for (int id : ids) {
            unit_entry u = test_host::unit(id, "U" + std::to_string(id), "heli");
            heli.append(list, std::memcpy(host.memory.alloc(sizeof u), &u, sizeof u));
        }
        return list;
    }
    heli_group_record *add_group(const char *name, const std::vector<int> &member_ids, uint32_t status = 0) {
        heli_group_record *g = heli.create_heli_group();
        std::strncpy(g->name, name, sizeof g->name - 1);
        g->status = status;
        g->rally_point_id = 202;
        heli.free_list(g->members);
        g->members = unit_list(member_ids);
        heli.append(groups, g);
        return g;
    }
    // A waypoint at the end of a route; its speed survives the km/h round trip.
    waypoint_record *add_waypoint(dlist_node *route, const char *marker, uint32_t seed) {
        waypoint_record *w = heli.create_waypoint();
        std::strncpy(w->marker_name, marker, sizeof w->marker_name - 1);
        w->height_level = seed % 4;
        w->transit_speed = static_cast<float>(10 * seed) * 0.277777f;
        w->carried_a = 0xA000 + seed;
        w->carried_b = 0xB000 + seed;
        w->threat_action = seed % 2;
        w->damage_level = 1 + seed % 2;
        w->damage_action = seed % 3;
        heli.append(route, w);
        return w;
    }

    template <class T = void>
    static std::vector<T *> values(const dlist_node *list) {
        std::vector<T *> out;
        for (T *value : dlist_values<T>(list)) out.push_back(value);
        return out;
    }
    // The unit ids of a list, "1,2,3".
    static std::string ids(const dlist_node *units) {
        std::string out;
        for (unit_entry *u : dlist_values<unit_entry>(units)) out += (out.empty() ? "" : ",") + std::to_string(u->id);
        return out;
    }
    bool live(const void *record) const { return host.heli.live.count(record) != 0; }
};

// The ten setting words of a waypoint, as bytes.
inline std::string settings_of(const waypoint_record *w) {
    const char *bytes = reinterpret_cast<const char *>(w);
    return std::string(bytes + 32, 24) + std::string(bytes + 60, 16);
}
