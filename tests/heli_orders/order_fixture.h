// Shared set-up of the helicopter order tests: a started editor over a host
// that knows a few objects and waypoint markers, orders made by the host's
// own store (destroyed again at the end), and a byte view of an order.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "heli_orders/heli_order.h"
#include "resources/heli_order_ids.h"
#include "tests/support/test_host.h"

using names = std::vector<std::string>;

// Texts the strict rule refuses: trailing text or blanks, blanks, empty, no
// plain decimal number, or one no float holds.
inline const std::vector<std::string> &strict_refused() {
    static const std::vector<std::string> texts = {"12.5 ", "12m", "   ", "", "nan", "inf", "0x1A", "1e39"};
    return texts;
}

class heli_order_test : public editor_test {
protected:
    std::vector<heli_order_record *> made;

    void SetUp() override {
        editor_test::SetUp();
        host.existing_names = {"Tank1", "Tank2", "Grunt7", "sarge0"};
        host.markers = {"WP_North", "WP_South", "LZ_Alpha"};
        ASSERT_EQ(start_editor(), 1);
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (heli_order_record *order : made) host.heli.destroy_order(order);
        made.clear();
        editor_test::TearDown();
    }

    // A new order of the host's making, destroyed at the end of the test.
    heli_order_record *order(uint32_t kind) {
        made.push_back(host.heli.create_order(kind));
        return made.back();
    }
    // edit_heli_order while the driver's steps run; every step must run.
    int edit(heli_order_record *order, ui_driver &driver) {
        const int result = edit_heli_order(host.main_window, order);
        EXPECT_DRIVER_OK(driver);
        return result;
    }
    int edit(heli_order_record *order, const std::string &title, std::initializer_list<ui_driver::action> steps) {
        ui_driver driver;
        for (const ui_driver::action &step : steps) driver.then(title, step);
        return edit(order, driver);
    }

    template <class T>
    static std::vector<T *> values(const dlist_node *list) {
        std::vector<T *> out;
        for (const dlist_node *n = list->next; n != list; n = n->next) out.push_back(reinterpret_cast<T *>(n->value));
        return out;
    }
    static std::string bytes(const void *block, size_t size) {
        return std::string(static_cast<const char *>(block), size);
    }
    // Everything of an order the editor may touch, entries' addresses included.
    static std::string snapshot(const heli_order_record *o) {
        std::string out = bytes(o, sizeof *o);
        auto entries = [&](const dlist_node *list, size_t size) {
            for (void *entry : values<void>(list)) out += bytes(&entry, 4) + bytes(entry, size);
        };
        switch (o->kind) {
        case HELI_ORDER_ENGAGE: return out + bytes(o->body.engage, sizeof(engage_order));
        case HELI_ORDER_DEPLOY: entries(o->body.deploy, sizeof(deploy_entry)); return out;
        case HELI_ORDER_PICKUP: entries(o->body.pickup, sizeof(pickup_entry)); return out;
        case HELI_ORDER_PATROL:
            out += bytes(o->body.patrol, sizeof(patrol_order));
            entries(o->body.patrol->points, sizeof(patrol_point));
            return out;
        case HELI_ORDER_WAIT: return out + bytes(o->body.wait, sizeof(wait_order));
        case HELI_ORDER_LAND: return out + bytes(o->body.land, sizeof(land_order));
        default: return out;
        }
    }
    // The sizes the host was asked for since the start of the test.
    std::vector<uint32_t> sizes_asked() const {
        std::vector<uint32_t> sizes = host.memory.requested_sizes();
        std::sort(sizes.begin(), sizes.end());
        sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
        return sizes;
    }
};
