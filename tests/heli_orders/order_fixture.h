// Shared set-up of the helicopter order tests: a started editor over a host
// that knows a few objects and waypoint markers, orders made by the host's
// own store (destroyed at the end), and a byte view of an order.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "heli_orders/heli_order.h"
#include "resources/heli_order_ids.h"
#include "tests/support/test_host.h"

using names = std::vector<std::string>;

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
        editor_test::TearDown();
    }
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
    int edit(heli_order_record *order, const std::string &title, const ui_driver::action &step) {
        ui_driver driver;
        driver.then(title, step);
        return edit(order, driver);
    }

    // Answers the next message box titled `title` with `button`, keeping its text in `boxes`.
    names boxes;
    void answer(ui_driver &driver, const char *title, int button) {
        driver.then(title, [this, button](HWND box) {
            boxes.push_back(ui_message_text(box));
            ui_command(box, button);
        });
    }
    // Selects a line of a list box (-1: none) and clicks `button` (0: double-clicks the list).
    static ui_driver::action pick(int list, int line, int button) {
        return [=](HWND dlg) {
            ui_list_select_index(dlg, list, line);
            button ? ui_command(dlg, button) : ui_list_double_click(dlg, list);
        };
    }
    // Types into edits, then clicks `button`.
    static ui_driver::action type(const std::vector<std::pair<int, std::string>> &texts, int button) {
        return [=](HWND dlg) {
            for (const auto &t : texts) ui_set_text(dlg, t.first, t.second);
            ui_command(dlg, button);
        };
    }

    template <class T>
    static std::vector<T *> values(const dlist_node *list) {
        std::vector<T *> out;
        for (const dlist_node *n = list->next; n != list; n = n->next) out.push_back(reinterpret_cast<T *>(n->value));
        return out;
    }
    static std::string bytes(const void *block, size_t size) { return std::string(static_cast<const char *>(block), size); }
    // The record, its body and its entries (with their addresses), byte by byte.
    static std::string snapshot(const heli_order_record *o) {
        static const size_t body_sizes[] = {sizeof(engage_order), 0, 0, sizeof(patrol_order), sizeof(wait_order),
                                            sizeof(land_order)};
        std::string out = bytes(o, sizeof *o) + bytes(o->body.word, body_sizes[o->kind]);
        const dlist_node *list = o->kind == HELI_ORDER_PATROL ? o->body.patrol->points : o->body.deploy;
        const size_t size = o->kind == HELI_ORDER_DEPLOY ? 44 : o->kind == HELI_ORDER_PICKUP ? 25 : 32;
        if (o->kind == HELI_ORDER_DEPLOY || o->kind == HELI_ORDER_PICKUP || o->kind == HELI_ORDER_PATROL)
            for (void *entry : values<void>(list)) out += bytes(&entry, 4) + bytes(entry, size);
        return out;
    }
};
