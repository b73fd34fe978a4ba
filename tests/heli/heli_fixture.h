// Shared set-up of the helicopter tests: a started editor, a host list of
// heli groups and a host list of available units (each destroyed or freed
// at the end, whatever the editor put in them), markers and rally points.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "resources/heli_ids.h"
#include "tests/support/test_host.h"

using lines = std::vector<std::string>;

inline void press_ok(HWND dialog) { ui_command(dialog, IDOK); }
inline void press_cancel(HWND dialog) { ui_command(dialog, IDCANCEL); }

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
        for (void *group : values(groups)) heli.destroy_heli_group(static_cast<heli_group_record *>(group));
        heli.free_list(groups);
        heli.free_units(available);
        editor_test::TearDown();
    }

    dlist_node *unit_list(const std::vector<int> &ids) {
        dlist_node *list = heli.new_list();
        for (int id : ids) {
            unit_entry u = test_host::unit(id, "U" + std::to_string(id), "heli");
            auto *entry = static_cast<unit_entry *>(host.memory.alloc(sizeof u));
            *entry = u;
            heli.append(list, entry);
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

    static std::vector<void *> values(const dlist_node *list) {
        std::vector<void *> out;
        if (list)
            for (dlist_node *n = list->next; n != list; n = n->next) out.push_back(reinterpret_cast<void *>(n->value));
        return out;
    }
    static std::vector<int32_t> ids(const dlist_node *units) {
        std::vector<int32_t> out;
        for (void *u : values(units)) out.push_back(static_cast<unit_entry *>(u)->id);
        return out;
    }
    bool live(const void *record) const { return host.heli.live.count(record) != 0; }
    uintptr_t arg(const void *p) const { return reinterpret_cast<uintptr_t>(p); }
};

// The ten setting words of a waypoint, as bytes.
inline std::string settings_of(const waypoint_record *w) {
    const char *bytes = reinterpret_cast<const char *>(w);
    return std::string(bytes + 32, 24) + std::string(bytes + 60, 16);
}
