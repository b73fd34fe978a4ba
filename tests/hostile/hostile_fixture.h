// Shared set-up of the hostile tests: a started editor over a host with a
// few names in each list, and records and lists the host holds (whose blocks
// end at untouchable pages) until the end of each test.
#pragma once

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "tests/support/editor_test.h"

class hostile_test : public editor_test {
protected:
    std::vector<std::function<void()>> cleanup;  // run at the end, in order

    void SetUp() override {
        editor_test::SetUp();
        host.formations = {"Column", "Line"};
        host.markers = {"WP1", "WP2"};
        host.message_targets = {"HQ"};
        host.reference_names[0] = {"Bridge1", "Church"};
        host.existing_names = {"Tank1"};
        ASSERT_EQ(start_editor(), 1);
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (auto &step : cleanup) step();
        editor_test::TearDown();
    }

    heli_order_record *order(uint32_t kind) {
        heli_order_record *o = host.heli.create_order(kind);
        cleanup.push_back([this, o] { host.heli.destroy_order(o); });
        return o;
    }
    // Bombing waypoints of these marker names at height 75.5.
    dlist_node *waypoints(std::initializer_list<const char *> markers) {
        std::vector<bombing_waypoint> made;
        for (const char *m : markers) {
            bombing_waypoint w;
            std::memset(&w, 0xCD, sizeof w);
            std::strcpy(w.name, m);
            w.height = 75.5f;
            made.push_back(w);
        }
        std::vector<const bombing_waypoint *> pointers;
        for (const bombing_waypoint &w : made) pointers.push_back(&w);
        return host.held_entries(pointers);
    }
    template <class T>
    static std::vector<T *> values(const dlist_node *list) {
        std::vector<T *> out;
        for (const dlist_node *n = list->next; n != list; n = n->next) out.push_back(reinterpret_cast<T *>(n->value));
        return out;
    }
};
