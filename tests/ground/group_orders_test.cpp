// Group Orders and the Orders type choice: each writes back only on its own
// OK (the levels above are in all_or_nothing_test.cpp).
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "tests/ground/group_fixture.h"

namespace {
lines names_of(const dlist *list) {
    lines names;
    for (sarge_order_record *o : dlist_values<sarge_order_record>(list)) names.push_back(o->name);
    return names;
}
ui_driver::action name_order(const char *name) {
    return [name](HWND dlg) { ui_set_text(dlg, IDC_ORDER_NAME, name); press_ok(dlg); };
}
}  // namespace

class orders_test : public group_test {
protected:
    group_working_copy working{};

    void TearDown() override {
        free_group_working_copy(working);
        group_test::TearDown();
    }
    // A working copy of a group holding these orders and contingency orders.
    void load(const std::vector<sarge_order_record> &orders, const std::vector<contingency_order_record> &cs) {
        group_record *source = loose_group("sarge0");
        for (const auto &o : orders) source->orders[source->order_count++] = o;
        for (const auto &c : cs) source->contingencies[source->contingency_count++] = c;
        ASSERT_TRUE(load_group(working, *source));
    }
    int edit(ui_driver &d) {
        const int result = edit_group_orders(host.main_window, &working);
        EXPECT_DRIVER_OK(d);
        return result;
    }
};

TEST_F(orders_test, lines_insert_before_the_selection_remove_releases_and_unnamed_types_stay_hidden) {
    const std::string long_name(31, 'L');
    load({order(1, "Ghost"), order(SARGE_ORDER_HALT, "A"), order(SARGE_ORDER_DEFEND, "B"),
          order(SARGE_ORDER_MOBILE_DEFENCE, long_name.c_str())},
         {contingency(TRIGGER_UNDER_FIRE, "X"), contingency(TRIGGER_DAMAGE, "Y"), contingency(0, "Fresh"),
          contingency(6, "Odd")});
    lines orders_before, contingencies_before, orders, contingencies, types;
    std::string advance;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        orders_before = ui_list_items(dlg, IDC_GO_ORDERS);
        contingencies_before = ui_list_items(dlg, IDC_GO_CONTINGENCIES);
        pick_at(IDC_GO_ORDERS, 1, IDC_GO_INSERT)(dlg);  // before B
    });
    d.then("Orders", [&](HWND dlg) { ui_list_select(dlg, IDC_OR_TYPES, "Mobile Defence"); press_ok(dlg); });
    d.then("Sarge Order", name_order("N")).then("Dialog", pick_at(IDC_GO_ORDERS, 3, IDC_GO_REMOVE));
    d.then("Dialog", pick_at(IDC_GO_CONTINGENCIES, 0, IDC_GO_C_REMOVE));
    d.then("Dialog", press(IDC_GO_C_ADD)).then("Sarge Order", name_order("Last"));
    d.then("Dialog", pick_at(IDC_GO_CONTINGENCIES, 0, IDC_GO_C_INSERT)).then("Sarge Order", name_order("First"));
    d.then("Dialog", press(IDC_GO_C_ADD)).then("Sarge Order", press_cancel);  // released, not added
    // A new order needs both its type and itself confirmed; OK without a
    // choice types it as Advance, which starts at the host's first names.
    d.then("Dialog", press(IDC_GO_ADD)).then("Orders", [&](HWND dlg) { types = ui_list_items(dlg, IDC_OR_TYPES); press_cancel(dlg); });
    d.then("Dialog", press(IDC_GO_ADD)).then("Orders", press_ok).then("Sarge Order", [&](HWND dlg) {
        advance = shown(dlg, {IDC_ORDER_DESTINATION, IDC_ORDER_FORMATION});
        press_cancel(dlg);
    });
    d.then("Dialog", [&](HWND dlg) {
        orders = ui_list_items(dlg, IDC_GO_ORDERS);
        contingencies = ui_list_items(dlg, IDC_GO_CONTINGENCIES);
        ui_command(dlg, IDC_GO_REMOVE);  // nothing selected after the refill: nothing removed
    });
    d.then("Dialog", press_ok);
    EXPECT_EQ(edit(d), 1);
    EXPECT_EQ(orders_before, (lines{"A (Halt)", "B (Defend)", long_name + " (Mobile Defence)"}));
    EXPECT_EQ(contingencies_before, (lines{"X (Under Fire)", "Y (Damage)", "Fresh ()", "Odd ()"}));
    EXPECT_EQ(orders, (lines{"A (Halt)", "N (Mobile Defence)", "B (Defend)"}));
    EXPECT_EQ(contingencies, (lines{"First (Enemy Close)", "Y (Damage)", "Fresh ()", "Odd ()", "Last (Enemy Close)"}));
    EXPECT_EQ(types, (lines{"Advance", "Barrage", "Defend", "Halt", "March", "Mobile Defence"}));
    EXPECT_EQ(advance, "WP1,Column");
    EXPECT_EQ(names_of(working.orders), (lines{"Ghost", "A", "N", "B"}));
    EXPECT_EQ(dlist_count(working.contingencies), 5u);
}

// Full lists refuse Add and Insert; and edits, removals included, are lost on Cancel.
TEST_F(orders_test, full_lists_refuse_add_and_insert_and_cancel_loses_edits) {
    load(std::vector<sarge_order_record>(GROUP_MAX_ORDERS, order(SARGE_ORDER_DEFEND, "H")),
         std::vector<contingency_order_record>(GROUP_MAX_CONTINGENCIES, contingency(TRIGGER_UNDER_FIRE, "U")));
    bool any_enabled = false, add_again = false;
    std::string edited_line;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        for (int id : {IDC_GO_ADD, IDC_GO_INSERT, IDC_GO_C_ADD, IDC_GO_C_INSERT}) {
            any_enabled = any_enabled || ui_enabled(dlg, id);
            ui_command(dlg, id);  // arriving anyway: refused, no dialog opens, nothing is allocated
        }
    });
    d.then("Dialog", pick_at(IDC_GO_ORDERS, 0, IDC_GO_REMOVE));
    d.then("Dialog", pick_at(IDC_GO_CONTINGENCIES, 0, IDC_GO_C_REMOVE));
    d.then("Dialog", [&](HWND dlg) {
        add_again = ui_enabled(dlg, IDC_GO_ADD) && ui_enabled(dlg, IDC_GO_INSERT) && ui_enabled(dlg, IDC_GO_C_ADD);
        pick_at(IDC_GO_ORDERS, 0, IDC_GO_EDIT)(dlg);
    });
    d.then("Sarge Order", name_order("Changed"));
    d.then("Dialog", [&](HWND dlg) { edited_line = ui_list_items(dlg, IDC_GO_ORDERS).at(0); press_cancel(dlg); });
    EXPECT_EQ(edit(d), 0);
    EXPECT_FALSE(any_enabled);
    EXPECT_TRUE(add_again);
    EXPECT_EQ(edited_line, "Changed (Defend)");
    EXPECT_EQ(names_of(working.orders), lines(GROUP_MAX_ORDERS, "H"));
    EXPECT_EQ(dlist_count(working.contingencies), size_t(GROUP_MAX_CONTINGENCIES));
}
