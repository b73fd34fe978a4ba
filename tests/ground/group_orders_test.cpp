// Group Orders, the Orders type choice and the nesting above and below them:
// each level writes back only on its own OK, and every copy goes back to the
// host with its exact size.
#include "ground/group_composition.h"
#include "ground/group_orders.h"
#include "ground/group_record.h"
#include "ground/orders_list.h"
#include "tests/ground/group_fixture.h"

namespace {
using lines = std::vector<std::string>;
lines names_of(const dlist *list) {
    lines names;
    for (sarge_order_record *o : dlist_values<sarge_order_record>(list)) names.push_back(o->name);
    return names;
}
void name_order(HWND dlg, const char *name) {
    ui_set_text(dlg, IDC_ORDER_NAME, name);
    ui_command(dlg, IDOK);
}
enum level { AT_SARGE_ORDER, AT_ORDERS, AT_GROUP_ORDERS, AT_COMPOSITION, AT_GROUP_LIST, NOWHERE };
}  // namespace

class orders_test : public group_test {
protected:
    group_working_copy working{};

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
        group_record *source = loose_group("sarge0", {});
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

// Group List -> Group Composition -> Group Orders -> Orders -> Sarge Order,
// with Cancel at one level and OK everywhere else; the host's record after.
class nesting_test : public orders_test, public ::testing::WithParamInterface<int> {};

TEST_P(nesting_test, each_level_commits_only_on_its_own_ok) {
    const int cancel_at = GetParam();
    group_record *g = add_group("sarge0", {1});
    g->orders[0] = order(SARGE_ORDER_HALT, "Wait");
    g->order_count = 1;
    auto close = [cancel_at](HWND dlg, int level) { ui_command(dlg, cancel_at == level ? IDCANCEL : IDOK); };
    lines types, lines_after_add;
    ui_driver d;
    d.then("Group List", [&](HWND dlg) { ui_command(dlg, 3); });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDC_GC_EDIT_ORDERS); });
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDC_GO_ADD); });
    d.then("Orders", [&](HWND dlg) {
        types = ui_list_items(dlg, IDC_OR_TYPES);
        close(dlg, AT_ORDERS);  // OK without a choice types the order as Advance
    });
    if (cancel_at != AT_ORDERS) {
        d.then("Sarge Order", [&](HWND dlg) {
            ui_set_text(dlg, IDC_ORDER_NAME, "Go");
            close(dlg, AT_SARGE_ORDER);
        });
    }
    d.then("Dialog", [&](HWND dlg) {
        lines_after_add = ui_list_items(dlg, IDC_GO_ORDERS);
        close(dlg, AT_GROUP_ORDERS);
    });
    d.then("Dialog", [&](HWND dlg) { close(dlg, AT_COMPOSITION); });
    d.then("Group List", [&](HWND dlg) { close(dlg, AT_GROUP_LIST); });
    EXPECT_EQ(editor_window(REQUEST_GROUP_LIST, groups_arg(), 0), cancel_at == AT_GROUP_LIST ? 0 : 1);
    EXPECT_DRIVER_OK(d);

    EXPECT_EQ(types, (lines{"Advance", "Barrage", "Defend", "Halt", "March", "Mobile Defence"}));
    const bool added = cancel_at != AT_SARGE_ORDER && cancel_at != AT_ORDERS;
    EXPECT_EQ(lines_after_add, added ? (lines{"Wait (Halt)", "Go (Advance)"}) : lines{"Wait (Halt)"});
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
    lines orders, contingencies;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
         ui_list_select_index(dlg, IDC_GO_ORDERS, 1);
         ui_command(dlg, IDC_GO_INSERT);
     })
        .then("Orders", [&](HWND dlg) {
            ui_list_select(dlg, IDC_OR_TYPES, "Mobile Defence");
            ui_command(dlg, IDOK);
        })
        .then("Sarge Order", [&](HWND dlg) { name_order(dlg, "N"); })
        .then("Dialog", [&](HWND dlg) {
            ui_list_select_index(dlg, IDC_GO_ORDERS, 3);  // C
            ui_command(dlg, IDC_GO_REMOVE);
        })
        .then("Dialog", [&](HWND dlg) {
            ui_list_select_index(dlg, IDC_GO_CONTINGENCIES, 0);
            ui_command(dlg, IDC_GO_C_REMOVE);
        })
        .then("Dialog", [&](HWND dlg) {
            orders = ui_list_items(dlg, IDC_GO_ORDERS);
            contingencies = ui_list_items(dlg, IDC_GO_CONTINGENCIES);
            ui_command(dlg, IDC_GO_REMOVE);  // nothing selected: nothing removed
        })
        .then("Dialog", press_ok);
    EXPECT_EQ(edit(d), 1);
    EXPECT_EQ(orders, (lines{"A (Halt)", "N (Mobile Defence)", "B (Defend)"}));
    EXPECT_EQ(contingencies, (lines{"Y (Damage)"}));
    EXPECT_EQ(names_of(working.orders), (lines{"A", "N", "B"}));
    EXPECT_EQ(dlist_count(working.contingencies), 1u);
}

TEST_F(orders_test, contingency_add_and_insert_go_through_the_contingency_dialog) {
    load({}, {contingency(TRIGGER_MESSAGE, "M")});
    lines shown;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) { ui_command(dlg, IDC_GO_C_ADD); })
        .then("Sarge Order", [&](HWND dlg) { name_order(dlg, "Last"); })
        .then("Dialog", [&](HWND dlg) {
            ui_list_select_index(dlg, IDC_GO_CONTINGENCIES, 0);
            ui_command(dlg, IDC_GO_C_INSERT);
        })
        .then("Sarge Order", [&](HWND dlg) { name_order(dlg, "First"); })
        .then("Dialog", [&](HWND dlg) { ui_command(dlg, IDC_GO_C_ADD); })
        .then("Sarge Order", press_cancel)  // released, not added
        .then("Dialog", [&](HWND dlg) {
            shown = ui_list_items(dlg, IDC_GO_CONTINGENCIES);
            ui_command(dlg, IDOK);
        });
    EXPECT_EQ(edit(d), 1);
    EXPECT_EQ(shown, (lines{"First (Enemy Close)", "M (Message)", "Last (Enemy Close)"}));
    EXPECT_EQ(dlist_count(working.contingencies), 3u);
}

TEST_F(orders_test, edits_are_lost_on_cancel) {
    load({order(SARGE_ORDER_DEFEND, "Hold")}, {contingency(TRIGGER_UNDER_FIRE, "Duck")});
    std::string edited_line;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
         ui_list_select_index(dlg, IDC_GO_ORDERS, 0);
         ui_command(dlg, IDC_GO_EDIT);
     })
        .then("Sarge Order", [&](HWND dlg) { name_order(dlg, "Changed"); })
        .then("Dialog", [&](HWND dlg) {
            edited_line = ui_list_items(dlg, IDC_GO_ORDERS).at(0);
            ui_list_select_index(dlg, IDC_GO_CONTINGENCIES, 0);
            ui_command(dlg, IDC_GO_C_REMOVE);
        })
        .then("Dialog", press_cancel);
    EXPECT_EQ(edit(d), 0);
    EXPECT_EQ(edited_line, "Changed (Defend)");
    EXPECT_EQ(names_of(working.orders), (lines{"Hold"}));
    EXPECT_EQ(dlist_count(working.contingencies), 1u);
}

TEST_F(orders_test, unnamed_types_are_hidden_but_kept_and_long_lines_are_whole) {
    std::string long_name(31, 'L');
    load({order(1, "Ghost"), order(SARGE_ORDER_MOBILE_DEFENCE, long_name.c_str())},
         {contingency(0, "Fresh"), contingency(6, "Odd")});
    lines orders, contingencies;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
        orders = ui_list_items(dlg, IDC_GO_ORDERS);
        contingencies = ui_list_items(dlg, IDC_GO_CONTINGENCIES);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(d), 1);
    EXPECT_EQ(orders, (lines{long_name + " (Mobile Defence)"}));
    EXPECT_EQ(contingencies, (lines{"Fresh ()", "Odd ()"}));
    EXPECT_EQ(names_of(working.orders), (lines{"Ghost", long_name}));
}

TEST_F(orders_test, full_lists_refuse_add_and_insert) {
    load(std::vector<sarge_order_record>(GROUP_MAX_ORDERS, order(SARGE_ORDER_HALT, "H")),
         std::vector<contingency_order_record>(GROUP_MAX_CONTINGENCIES, contingency(TRIGGER_UNDER_FIRE, "U")));
    bool any_enabled = true, add_again = false;
    ui_driver d;
    d.then("Dialog", [&](HWND dlg) {
         any_enabled = ui_enabled(dlg, IDC_GO_ADD) || ui_enabled(dlg, IDC_GO_INSERT) || ui_enabled(dlg, IDC_GO_C_ADD) ||
                       ui_enabled(dlg, IDC_GO_C_INSERT);
         // Commands that arrive anyway are refused: no dialog opens, nothing is allocated.
         for (int id : {IDC_GO_ADD, IDC_GO_INSERT, IDC_GO_C_ADD, IDC_GO_C_INSERT}) ui_command(dlg, id);
     })
        .then("Dialog", [&](HWND dlg) {
            ui_list_select_index(dlg, IDC_GO_ORDERS, 0);
            ui_command(dlg, IDC_GO_REMOVE);
        })
        .then("Dialog", [&](HWND dlg) {
            add_again = ui_enabled(dlg, IDC_GO_ADD) && ui_enabled(dlg, IDC_GO_INSERT);
            ui_command(dlg, IDOK);
        });
    EXPECT_EQ(edit(d), 1);
    EXPECT_FALSE(any_enabled);
    EXPECT_TRUE(add_again);
    EXPECT_EQ(dlist_count(working.orders), 24u);
    EXPECT_EQ(dlist_count(working.contingencies), 15u);
}

TEST_F(orders_test, an_empty_group_keeps_two_empty_lists_and_a_cancelled_choice_has_no_type) {
    load({}, {});
    ui_driver d;
    d.then("Dialog", press_ok);
    EXPECT_EQ(edit(d), 1);
    ASSERT_TRUE(working.orders && working.contingencies);
    EXPECT_EQ(dlist_count(working.orders) + dlist_count(working.contingencies), 0u);

    sarge_order_record o{};
    ui_driver chosen;
    chosen.then("Orders", [&](HWND dlg) {
        ui_list_select(dlg, IDC_OR_TYPES, "Barrage");
        ui_command(dlg, IDOK);
    }).then("Sarge Order", press_cancel);
    EXPECT_EQ(choose_order_type(host.main_window, &o), 0);  // both dialogs must confirm
    EXPECT_DRIVER_OK(chosen);
    EXPECT_EQ(o.type, SARGE_ORDER_BARRAGE);
    EXPECT_EQ(drive("Orders", {press_cancel}, [&] { return choose_order_type(host.main_window, &o); }), 0);
    EXPECT_EQ(o.type, -1);
}
