// Group Orders and the nesting above and below it: each level writes back only
// on its own OK, and every copy goes back to the host with its exact size.
#include "ground/group_composition.h"
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "tests/ground/group_fixture.h"

namespace {
std::vector<std::string> names_of(const dlist *list) {
    std::vector<std::string> names;
    for (sarge_order_record *o : dlist_values<sarge_order_record>(list)) names.push_back(o->name);
    return names;
}

enum level { AT_SARGE_ORDER, AT_ORDERS, AT_GROUP_ORDERS, AT_COMPOSITION, AT_GROUP_LIST, NOWHERE };
}  // namespace

class orders_test : public group_test {
protected:
    group_working_copy working{};
    group_record *source = nullptr;

    void SetUp() override {
        group_test::SetUp();
        host.formations = {"Column", "Line"};
        host.markers = {"WP_North", "WP_South"};
        host.message_targets = {"HQ"};
    }
    void TearDown() override {
        free_group_working_copy(working);
        group_test::TearDown();
    }
    // A working copy of a group holding these orders and contingency orders.
    void load(const std::vector<sarge_order_record> &orders, const std::vector<contingency_order_record> &cs) {
        source = loose_group("sarge0", {});
        for (const auto &o : orders) source->orders[source->order_count++] = o;
        for (const auto &c : cs) source->contingencies[source->contingency_count++] = c;
        ASSERT_TRUE(load_group(working, *source));
    }
};

// Group List -> Group Composition -> Group Orders -> Orders -> Sarge Order,
// with Cancel at one level and OK everywhere else.
class nesting_test : public orders_test, public ::testing::WithParamInterface<int> {};

TEST_P(nesting_test, each_level_commits_only_on_its_own_ok) {
    const int cancel_at = GetParam();
    group_record *g = add_group("sarge0", {1});
    g->orders[0] = order(SARGE_ORDER_HALT, "Wait");
    g->order_count = 1;
    auto close = [cancel_at](HWND dlg, int level) { ui_command(dlg, cancel_at == level ? IDCANCEL : IDOK); };
    std::vector<std::string> lines_after_add;
    ui_driver d;
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, 3); });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, GC_EDIT_ORDERS); });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, GO_ADD); });
    d.then("Orders", [&](HWND dlg) {
        if (cancel_at == AT_ORDERS) ui_command(dlg, IDCANCEL);
        else ui_command(dlg, IDOK);
    });
    if (cancel_at != AT_ORDERS) {
        d.then("Sarge Order", [&](HWND dlg) {
            ui_set_text(dlg, 1071, "Go");
            close(dlg, AT_SARGE_ORDER);
        });
    }
    d.then("Dialog", [&](HWND dlg) {
        lines_after_add = ui_list_items(dlg, GO_ORDERS);
        close(dlg, AT_GROUP_ORDERS);
    });
    d.then("Dialog", [&](HWND dlg) { close(dlg, AT_COMPOSITION); });
    d.then("Group List", [&](HWND dlg) { close(dlg, AT_GROUP_LIST); });
    EXPECT_EQ(editor_window(REQUEST_GROUP_LIST, groups_arg(), 0), cancel_at == AT_GROUP_LIST ? 0 : 1);
    EXPECT_DRIVER_OK(d);

    const bool added = cancel_at != AT_SARGE_ORDER && cancel_at != AT_ORDERS;
    const std::vector<std::string> with_go{"Wait (Halt)", "Go (Advance)"}, without{"Wait (Halt)"};
    EXPECT_EQ(lines_after_add, added ? with_go : without);
    const bool stored = added && cancel_at != AT_GROUP_ORDERS && cancel_at != AT_COMPOSITION;
    ASSERT_EQ(g->order_count, stored ? 2 : 1);
    EXPECT_STREQ(g->orders[0].name, "Wait");
    if (stored) {
        EXPECT_STREQ(g->orders[1].name, "Go");
        EXPECT_EQ(g->orders[1].type, SARGE_ORDER_ADVANCE);
        EXPECT_STREQ(g->orders[1].formation, "Column");
        EXPECT_STREQ(g->orders[1].destination, "WP_North");
    }
    EXPECT_EQ(member_ids(g), (std::vector<int32_t>{1}));
}

INSTANTIATE_TEST_SUITE_P(cancel_at, nesting_test,
                         ::testing::Values(AT_SARGE_ORDER, AT_ORDERS, AT_GROUP_ORDERS, AT_COMPOSITION, AT_GROUP_LIST,
                                           NOWHERE));

TEST_F(orders_test, insert_goes_before_the_selection_and_remove_releases) {
    load({order(SARGE_ORDER_HALT, "A"), order(SARGE_ORDER_DEFEND, "B"), order(SARGE_ORDER_BARRAGE, "C")},
         {contingency(TRIGGER_UNDER_FIRE, "X"), contingency(TRIGGER_DAMAGE, "Y")});
    std::vector<std::string> orders, contingencies;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_ORDERS, 1);
        ui_command(dlg, GO_INSERT);
    });
    d.then("Orders", [&](HWND dlg) {
        ui_list_select(dlg, 1054, "Mobile Defence");
        ui_command(dlg, IDOK);
    });
    d.then("Sarge Order", [&](HWND dlg) {
        ui_set_text(dlg, 1071, "N");
        ui_command(dlg, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_ORDERS, 3);  // C
        ui_command(dlg, GO_REMOVE);
    });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_CONTINGENCIES, 0);
        ui_command(dlg, GO_C_REMOVE);
    });
    d.then("Dialog", [&](HWND dlg) {
        orders = ui_list_items(dlg, GO_ORDERS);
        contingencies = ui_list_items(dlg, GO_CONTINGENCIES);
        ui_command(dlg, GO_REMOVE);  // nothing selected: nothing removed
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(orders, (std::vector<std::string>{"A (Halt)", "N (Mobile Defence)", "B (Defend)"}));
    EXPECT_EQ(contingencies, (std::vector<std::string>{"Y (Damage)"}));
    EXPECT_EQ(names_of(working.orders), (std::vector<std::string>{"A", "N", "B"}));
    EXPECT_EQ(dlist_count(working.contingencies), 1u);
}

TEST_F(orders_test, contingency_add_and_insert_go_through_the_contingency_dialog) {
    load({}, {contingency(TRIGGER_MESSAGE, "M")});
    std::vector<std::string> lines;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, GO_C_ADD); });
    d.then("Sarge Order", [&](HWND dlg) {
        ui_set_text(dlg, 1071, "Last");
        ui_command(dlg, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_CONTINGENCIES, 0);
        ui_command(dlg, GO_C_INSERT);
    });
    d.then("Sarge Order", [&](HWND dlg) {
        ui_set_text(dlg, 1071, "First");
        ui_command(dlg, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, GO_C_ADD); });
    d.then("Sarge Order", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });  // released, not added
    d.then("Dialog", [&](HWND dlg) {
        lines = ui_list_items(dlg, GO_CONTINGENCIES);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(lines, (std::vector<std::string>{"First (Enemy Close)", "M (Message)", "Last (Enemy Close)"}));
    EXPECT_EQ(dlist_count(working.contingencies), 3u);
}

TEST_F(orders_test, edits_are_lost_on_cancel) {
    load({order(SARGE_ORDER_DEFEND, "Hold")}, {contingency(TRIGGER_UNDER_FIRE, "Duck")});
    std::string edited_line;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_ORDERS, 0);
        ui_command(dlg, GO_EDIT);
    });
    d.then("Sarge Order", [&](HWND dlg) {
        ui_set_text(dlg, 1071, "Changed");
        ui_command(dlg, IDOK);
    });
    d.then("Dialog", [&](HWND dlg) {
        edited_line = ui_list_items(dlg, GO_ORDERS).at(0);
        ui_list_select_index(dlg, GO_CONTINGENCIES, 0);
        ui_command(dlg, GO_C_REMOVE);
    });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(edited_line, "Changed (Defend)");
    EXPECT_EQ(names_of(working.orders), (std::vector<std::string>{"Hold"}));
    EXPECT_EQ(dlist_count(working.contingencies), 1u);
}

TEST_F(orders_test, unnamed_types_are_hidden_but_kept_and_long_lines_are_whole) {
    std::string long_name(31, 'L');
    load({order(1, "Ghost"), order(SARGE_ORDER_MOBILE_DEFENCE, long_name.c_str())},
         {contingency(0, "Fresh"), contingency(6, "Odd")});
    std::vector<std::string> orders, contingencies;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        orders = ui_list_items(dlg, GO_ORDERS);
        contingencies = ui_list_items(dlg, GO_CONTINGENCIES);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(orders, (std::vector<std::string>{long_name + " (Mobile Defence)"}));
    EXPECT_EQ(contingencies, (std::vector<std::string>{"Fresh ()", "Odd ()"}));
    EXPECT_EQ(names_of(working.orders), (std::vector<std::string>{"Ghost", long_name}));
}

TEST_F(orders_test, full_lists_refuse_add_and_insert) {
    std::vector<sarge_order_record> orders(GROUP_MAX_ORDERS, order(SARGE_ORDER_HALT, "H"));
    std::vector<contingency_order_record> cs(GROUP_MAX_CONTINGENCIES, contingency(TRIGGER_UNDER_FIRE, "U"));
    load(orders, cs);
    bool any_enabled = true;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        any_enabled = ui_enabled(dlg, GO_ADD) || ui_enabled(dlg, GO_INSERT) || ui_enabled(dlg, GO_C_ADD) ||
                      ui_enabled(dlg, GO_C_INSERT);
        // Commands that arrive anyway are refused: no dialog opens, nothing is allocated.
        ui_command(dlg, GO_ADD);
        ui_command(dlg, GO_INSERT);
        ui_command(dlg, GO_C_ADD);
        ui_command(dlg, GO_C_INSERT);
    });
    d.then("Dialog", [&](HWND dlg) {
        ui_list_select_index(dlg, GO_ORDERS, 0);
        ui_command(dlg, GO_REMOVE);
    });
    bool add_again = false;
    d.then("Dialog", [&](HWND dlg) {
        add_again = ui_enabled(dlg, GO_ADD) && ui_enabled(dlg, GO_INSERT);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_FALSE(any_enabled);
    EXPECT_TRUE(add_again);
    EXPECT_EQ(dlist_count(working.orders), 24u);
    EXPECT_EQ(dlist_count(working.contingencies), 15u);
}

TEST_F(orders_test, not_started_builds_nothing_and_an_empty_group_keeps_two_empty_lists) {
    load({}, {});
    size_t blocks = host.memory.live_blocks();
    group_orders_tidyup();
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 0);
    EXPECT_EQ(host.memory.live_blocks(), blocks);
    group_orders_start();

    ui_driver d;
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit_group_orders(host.main_window, &working), 1);
    EXPECT_DRIVER_OK(d);
    ASSERT_TRUE(working.orders && working.contingencies);
    EXPECT_EQ(dlist_count(working.orders) + dlist_count(working.contingencies), 0u);
    EXPECT_EQ(host.memory.live_blocks(), blocks);
}
