// Shared set-up of the helicopter order tests: a started editor over a host
// that knows a few objects and waypoint markers, orders made by the host's
// own store (destroyed at the end), and the message boxes answered on the way.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "heli_orders/heli_order.h"
#include "resources/heli_order_ids.h"
#include "tests/support/steps.h"

using lines = std::vector<std::string>;

class heli_order_test : public editor_test {
protected:
    std::vector<heli_order_record *> made;
    lines boxes;  // the texts of the message boxes answered, in order

    void SetUp() override {
        editor_test::SetUp();
        host.existing_names = {"Tank1", "Tank2", "Grunt7", "sarge0"};
        host.markers = {"WP_North", "WP_South", "LZ_Alpha"};
        ASSERT_EQ(start_editor(), 1);
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (heli_order_record *order : made) host.heli.destroy_order(order);
        editor_test::TearDown();
    }
    heli_order_record *order(uint32_t kind) {
        made.push_back(host.heli.create_order(kind));
        return made.back();
    }
    // edit_heli_order on `o` while the steps run.
    int edit(heli_order_record *o, const std::vector<std::pair<std::string, step>> &steps) {
        return drive(steps, [&] { return edit_heli_order(host.main_window, o); });
    }
    // Answers a message box with `button`, keeping its text.
    step answer(int button) { return noting(boxes, ui_message_text, press(button)); }

    template <class T>
    static std::vector<T *> values(const dlist_node *list) {
        std::vector<T *> out;
        for (T *value : dlist_values<T>(list)) out.push_back(value);
        return out;
    }
    static std::string bytes(const void *block, size_t size) { return std::string(static_cast<const char *>(block), size); }
};
