// The waypoint order list of Edit Waypoint and Select New Order Type through
// the real dialogs.
#include "heli/waypoints.h"
#include "resources/heli_ids.h"
#include "tests/heli_orders/order_fixture.h"

namespace {
const char *const waypoint_title = "Edit Waypoint";
const char *const chooser_title = "Select New Order Type";
}  // namespace

class waypoint_orders_test : public heli_order_test {
protected:
    waypoint_record waypoint{};

    // The orders left in the list are the test's to destroy; the editor
    // destroyed the others.
    void TearDown() override {
        ui_driver::close_all_dialogs();
        made = values<heli_order_record>(waypoint.orders);
        host.free_list(waypoint.orders);
        heli_order_test::TearDown();
    }
    void set_orders(const std::vector<heli_order_record *> &orders) {
        std::vector<uintptr_t> list;
        for (heli_order_record *o : orders) list.push_back(reinterpret_cast<uintptr_t>(o));
        waypoint.orders = host.build_list(list);
        made.clear();
    }
    static ui_driver::action on_line(int index, int button) { return pick(IDC_WP_ORDERS, index, button); }
    static ui_driver::action choose(int kind) { return pick(IDC_SOT_KINDS, kind, IDOK); }
};

TEST_F(waypoint_orders_test, new_orders_and_confirmed_copies_take_the_place_of_the_selected_line) {
    heli_order_record *patrol = order(HELI_ORDER_PATROL), *wait = order(HELI_ORDER_WAIT),
                      *odd = order(HELI_ORDER_ENGAGE), *engage = order(HELI_ORDER_ENGAGE);
    odd->kind = 7;  // no line, out of the list's reach
    set_orders({patrol, wait, odd, engage});
    ui_driver d;
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WP_ORDERS), (names{"Patrol", "Wait", "Engage"}));
        on_line(2, IDC_WP_ORDER_INSERT)(dlg);  // Engage, the fourth node
    });
    d.then(chooser_title, choose(HELI_ORDER_DEPLOY));
    d.then("Edit Deploy Order", type({}, IDOK));
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WP_ORDERS), (names{"Patrol", "Wait", "Deploy", "Engage"}));
        EXPECT_TRUE(ui_list_selected(dlg, IDC_WP_ORDERS).empty());
        on_line(1, 0)(dlg);
    });
    d.then("Edit Wait Order", [](HWND dlg) {
        ui_combo_select(dlg, IDC_WAIT_MODE, "Wait Until Time");
        ui_command(dlg, IDOK);
    });
    d.then(waypoint_title, on_line(3, IDC_WP_ORDER_REMOVE));
    d.then(waypoint_title, on_line(-1, IDC_WP_ORDER_INSERT));  // no line: at the end
    d.then(chooser_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_SOT_KINDS), (names{"Engage", "Deploy", "Pickup", "Patrol", "Wait", "Land"}));
        pick(IDC_SOT_KINDS, HELI_ORDER_LAND, 0)(dlg);
    });
    d.then("Edit Land Order", type({}, IDCANCEL));  // the new order is destroyed
    d.then(waypoint_title, type({}, IDC_WP_ORDER_ADD));
    d.then(chooser_title, type({}, IDOK));  // no kind chosen: nothing made
    d.then(waypoint_title, type({}, IDC_WP_ORDER_ADD));
    d.then(chooser_title, type({}, IDCANCEL));
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = true;
        type({}, IDC_WP_ORDER_ADD)(dlg);
    });
    d.then(chooser_title, choose(HELI_ORDER_ENGAGE));
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_create = false;
        host.heli.refuse_copy = true;
        on_line(0, IDC_WP_ORDER_EDIT)(dlg);
    });
    d.then(waypoint_title, [&](HWND dlg) {
        host.heli.refuse_copy = false;
        type({}, IDC_WP_ORDER_ADD)(dlg);
    });
    d.then(chooser_title, choose(HELI_ORDER_PICKUP));
    d.then("Edit Pickup Order", type({}, IDOK));
    d.then(waypoint_title, [](HWND dlg) {
        EXPECT_EQ(ui_list_items(dlg, IDC_WP_ORDERS), (names{"Patrol", "Wait", "Deploy", "Pickup"}));
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(edit_waypoint(host.main_window, &waypoint), 0);
    EXPECT_DRIVER_OK(d);
    std::vector<heli_order_record *> orders = values<heli_order_record>(waypoint.orders);
    ASSERT_EQ(orders.size(), 5u);
    EXPECT_TRUE(orders[0] == patrol && orders[1] != wait && orders[2] == odd);
    EXPECT_EQ(std::make_pair(orders[3]->kind, orders[4]->kind), std::make_pair(1u, 2u));  // Deploy, Pickup
    EXPECT_EQ(orders[1]->body.wait->mode, uint32_t(WAIT_UNTIL_TIME));  // the confirmed copy
    // Only the listed orders are left: the replaced, removed and cancelled ones are gone.
    EXPECT_EQ(host.heli.live.size(), 5u);
    EXPECT_EQ(std::make_tuple(host.heli.creates, host.heli.copies, host.heli.destroys), std::make_tuple(7, 1, 3));
    odd->kind = HELI_ORDER_ENGAGE;  // so that the host frees its body
}

TEST_F(waypoint_orders_test, cancelled_list_edits_on_copies_leave_every_original_whole) {
    heli_order_record *deploy = order(HELI_ORDER_DEPLOY), *pickup = order(HELI_ORDER_PICKUP),
                      *patrol = order(HELI_ORDER_PATROL);
    for (const char *name : {"Tank1", "Grunt7"}) {
        auto *d = static_cast<deploy_entry *>(host.memory.alloc(sizeof(deploy_entry)));
        auto *p = static_cast<pickup_entry *>(host.memory.alloc(sizeof(pickup_entry)));
        std::strcpy(d->name, name);
        std::strcpy(p->name, name);
        host.heli.append(deploy->body.deploy, d);
        host.heli.append(pickup->body.pickup, p);
        host.heli.append(patrol->body.patrol->points, host.heli.create_patrol_point("WP_North"));
    }
    set_orders({deploy, pickup, patrol});
    const std::string before = snapshot(deploy) + snapshot(pickup) + snapshot(patrol);
    // In each dialog: delete the first entry, add one, cancel.
    const struct {
        const char *title;
        int list, del, add, name;
    } dialogs[] = {{"Edit Deploy Order", IDC_DEPLOY_LIST, IDC_DEPLOY_DELETE, IDC_DEPLOY_ADD, IDC_DEPLOY_NAME},
                   {"Edit Pickup Order", IDC_PICKUP_LIST, IDC_PICKUP_DELETE, IDC_PICKUP_ADD, IDC_PICKUP_NAME},
                   {"Edit Patrol Order", IDC_PATROL_POINTS, IDC_PATROL_DELETE, IDC_PATROL_ADD, 0}};
    ui_driver d;
    for (int line = 0; line < 3; ++line) {
        const auto &dialog = dialogs[line];
        d.then(waypoint_title, on_line(line, IDC_WP_ORDER_EDIT));
        d.then(dialog.title, [&dialog](HWND dlg) {
            ui_list_select_index(dlg, dialog.list, 0);
            ui_command(dlg, dialog.del);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            ui_set_text(dlg, dialog.name, "Tank2");
            ui_set_text(dlg, IDC_DEPLOY_X, "1");
            ui_set_text(dlg, IDC_DEPLOY_Z, "2");
            ui_list_select_index(dlg, IDC_PATROL_MARKERS, 1);
            ui_command(dlg, dialog.add);
        });
        d.then(dialog.title, [&dialog](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, dialog.list).size(), 2u) << dialog.title;
            ui_command(dlg, IDCANCEL);
        });
    }
    d.then(waypoint_title, type({}, IDOK));
    EXPECT_EQ(edit_waypoint(host.main_window, &waypoint), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(snapshot(deploy) + snapshot(pickup) + snapshot(patrol), before);
    EXPECT_EQ(std::make_pair(host.heli.copies, host.heli.destroys), std::make_pair(3, 3));
}
