// Shared set-up of the ground tests: a started editor with host lists, host
// units and groups in host memory (freed at the end of each test), and the
// driving of a dialog.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "resources/ground_ids.h"
#include "tests/support/steps.h"
#include "tests/support/editor_test.h"
#include "util/dlist.h"
#include "util/text.h"

using lines = std::vector<std::string>;

inline void press_ok(HWND dialog) { ui_command(dialog, IDOK); }
inline void press_cancel(HWND dialog) { ui_command(dialog, IDCANCEL); }
inline uintptr_t arg(const void *pointer) { return reinterpret_cast<uintptr_t>(pointer); }

class ground_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        host.formations = {"Column", "Line", "Wedge"};
        host.markers = {"WP1", "WP2", "WP3"};
        host.message_targets = {"HQ", "Alpha"};
        ASSERT_EQ(start_editor(), 1);
    }
};

class group_test : public ground_test {
protected:
    dlist_node *groups = nullptr;  // freed with every group in it, those the editor added included
    std::vector<group_record *> loose;  // groups outside the list

    void SetUp() override {
        ground_test::SetUp();
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
    // A group of host units (by id) at the end of the host's group list.
    group_record *add_group(const std::string &name, const std::vector<int> &member_ids, int32_t status = 0) {
        std::vector<unit_entry> members;
        for (int id : member_ids) members.push_back(host.units[size_t(id - 1)]);
        group_record *g = host.make_group(name, members, status);
        if (!groups) groups = host.make_group_list({});
        auto *node = static_cast<dlist_node *>(host.memory.alloc(sizeof(dlist_node)));
        *node = {groups, groups->prev, arg(g)};
        groups->prev = groups->prev->next = node;
        return g;
    }
    group_record *loose_group(const std::string &name, const std::vector<unit_entry> &members = {}) {
        loose.push_back(host.make_group(name, members));
        return loose.back();
    }
    uintptr_t groups_arg() const { return arg(groups); }
    // Group Composition on `g`, with the host's group list or without one.
    int compose(group_record *g, std::initializer_list<ui_driver::action> steps, bool with_list = true) {
        return drive("Dialog", steps,
                     [&] { return editor_window(REQUEST_GROUP_COMPOSITION, arg(g), with_list ? groups_arg() : 0); });
    }

    static std::vector<int32_t> member_ids(const group_record *g) {
        std::vector<int32_t> ids;
        for (unit_entry *u : dlist_values<unit_entry>(g->members)) ids.push_back(u->id);
        return ids;
    }
    static lines group_names(dlist_node *list) {
        lines names;
        for (group_record *g : dlist_values<group_record>(list)) names.push_back(g->name);
        return names;
    }
    static sarge_order_record order(int32_t type, const char *name) {
        sarge_order_record o{};
        o.type = type;
        copy_text(o.name, name);
        return o;
    }
    static contingency_order_record contingency(int32_t trigger, const char *name) {
        contingency_order_record c{};
        c.trigger = trigger;
        c.order = order(SARGE_ORDER_HALT, name);
        return c;
    }
};
