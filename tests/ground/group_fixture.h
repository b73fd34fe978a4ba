// Shared set-up of the ground group tests: a started editor, host units and
// groups in host memory (freed at the end of each test).
#pragma once

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "tests/support/test_host.h"
#include "resources/ground_ids.h"
#include "util/text.h"

// Runs `open` while `steps` act in turn on the window titled `title`; every
// step must run. Answers what `open` answered.
inline void press_ok(HWND dialog) { ui_command(dialog, IDOK); }
inline void press_cancel(HWND dialog) { ui_command(dialog, IDCANCEL); }

template <class Open>
int drive(const std::string &title, std::initializer_list<ui_driver::action> steps, Open open) {
    ui_driver d;
    for (const ui_driver::action &step : steps) d.then(title, step);
    const int result = open();
    EXPECT_DRIVER_OK(d);
    return result;
}

class group_test : public editor_test {
protected:
    dlist_node *groups = nullptr;  // freed with every group in it, those the editor added included
    std::vector<group_record *> loose;  // groups outside the list

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
        host.units = {test_host::unit(1, "Tank1", "tank_t80"), test_host::unit(2, "Tank2", "tank_t80"),
                      test_host::unit(3, "Grunt7", "infantry"), test_host::unit(4, "Jeep3", "jeep"),
                      test_host::unit(5, "Mortar2", "mortar")};
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        if (groups) host.free_group_list(groups);
        for (group_record *g : loose) host.free_group(g);
        editor_test::TearDown();
    }

    group_record *add_group(const std::string &name, const std::vector<int> &member_ids, int32_t status = 0) {
        std::vector<unit_entry> members;
        for (int id : member_ids)
            for (const unit_entry &u : host.units)
                if (u.id == id) members.push_back(u);
        group_record *g = host.make_group(name, members, status);
        if (!groups) groups = host.make_group_list({});
        dlist_node *node = static_cast<dlist_node *>(host.memory.alloc(12));
        node->value = reinterpret_cast<uintptr_t>(g);
        node->next = groups;
        node->prev = groups->prev;
        groups->prev->next = node;
        groups->prev = node;
        return g;
    }
    group_record *loose_group(const std::string &name, const std::vector<unit_entry> &members) {
        loose.push_back(host.make_group(name, members));
        return loose.back();
    }

    uintptr_t groups_arg() const { return reinterpret_cast<uintptr_t>(groups); }

    static std::vector<int32_t> member_ids(const group_record *g) {
        std::vector<int32_t> ids;
        if (!g->members) return ids;
        for (dlist_node *n = g->members->next; n != g->members; n = n->next)
            ids.push_back(reinterpret_cast<unit_entry *>(n->value)->id);
        return ids;
    }
    static std::vector<std::string> group_names(dlist_node *list) {
        std::vector<std::string> names;
        for (dlist_node *n = list->next; n != list; n = n->next)
            names.push_back(reinterpret_cast<group_record *>(n->value)->name);
        return names;
    }
    static sarge_order_record order(int32_t type, const char *name) {
        sarge_order_record o{};
        o.type = type;
        std::strncpy(o.name, name, sizeof o.name - 1);
        return o;
    }
    static contingency_order_record contingency(int32_t trigger, const char *name) {
        contingency_order_record c{};
        c.trigger = trigger;
        c.order = order(SARGE_ORDER_HALT, name);
        return c;
    }
};
