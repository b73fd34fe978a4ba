// The waypoint order list of Edit Waypoint and Select New Order Type through
// the real dialogs.
#include <tuple>

#include "heli/waypoints.h"
#include "resources/heli_ids.h"
#include "tests/heli_orders/order_fixture.h"

// New orders and confirmed copies take the selected line's place; anything
// refused or cancelled on the way leaves the list as it was and destroys
// what it made, and a cancelled copy leaves its original whole.
TEST_F(heli_order_test, waypoint_orders_are_new_records_or_confirmed_copies_in_the_selected_place) {
    heli_order_record *patrol = order(HELI_ORDER_PATROL), *wait = order(HELI_ORDER_WAIT),
                      *odd = order(HELI_ORDER_ENGAGE), *engage = order(HELI_ORDER_ENGAGE);
    odd->kind = 7;  // no line, out of the list's reach
    for (const char *marker : {"WP_North", "LZ_Alpha"})
        host.heli.append(patrol->body.patrol->points, host.heli.create_patrol_point(marker));
    const std::vector<patrol_point *> points = values<patrol_point>(patrol->body.patrol->points);
    waypoint_record waypoint{};
    waypoint.orders = host.build_list({dlist_value(patrol), dlist_value(wait), dlist_value(odd), dlist_value(engage)});
    const char *const point = "Edit Waypoint", *const chooser = "Select New Order Type";
    const auto line = [](int index, int button) { return picking(IDC_WP_ORDERS, index, button ? press(button) : nullptr); };
    const auto kind = [](int chosen) { return picking(IDC_SOT_KINDS, chosen, press(IDOK)); };
    const auto refusing = [](bool &refuse, step next) { return [&refuse, next](HWND dlg) { refuse = !refuse, next(dlg); }; };
    lines seen;
    const auto look = [](HWND dlg) { return listed(dlg, IDC_WP_ORDERS); };
    EXPECT_EQ(0, drive({
        {point, noting(seen, look, line(2, IDC_WP_ORDER_INSERT))},  // Engage, the fourth node
        {chooser, kind(HELI_ORDER_DEPLOY)}, {"Edit Deploy Order", press(IDOK)},
        {point, noting(seen, look, line(1, 0))},
        {"Edit Wait Order", choosing(IDC_WAIT_MODE, "Wait Until Time", press(IDOK))},
        {point, line(0, IDC_WP_ORDER_EDIT)},
        {"Edit Patrol Order", picking(IDC_PATROL_POINTS, 0, press(IDC_PATROL_DELETE))},
        {"Edit Patrol Order", picking(IDC_PATROL_MARKERS, 1, press(IDC_PATROL_ADD))},
        {"Edit Patrol Order", press(IDCANCEL)},
        {point, line(3, IDC_WP_ORDER_REMOVE)},
        {point, line(-1, IDC_WP_ORDER_INSERT)},  // no line: at the end
        {chooser, noting(seen, [](HWND dlg) { return listed(dlg, IDC_SOT_KINDS); }, picking(IDC_SOT_KINDS, HELI_ORDER_LAND))},
        {"Edit Land Order", press(IDCANCEL)},  // the new order is destroyed
        {point, press(IDC_WP_ORDER_ADD)}, {chooser, press(IDOK)},  // no kind chosen: nothing made
        {point, press(IDC_WP_ORDER_ADD)}, {chooser, press(IDCANCEL)},
        {point, refusing(host.heli.refuse_create, press(IDC_WP_ORDER_ADD))}, {chooser, kind(HELI_ORDER_ENGAGE)},
        {point, refusing(host.heli.refuse_create, refusing(host.heli.refuse_copy, line(0, IDC_WP_ORDER_EDIT)))},
        {point, refusing(host.heli.refuse_copy, press(IDC_WP_ORDER_ADD))},
        {chooser, kind(HELI_ORDER_PICKUP)}, {"Edit Pickup Order", press(IDOK)},
        {point, noting(seen, look, press(IDCANCEL))},
    }, [&] { return edit_waypoint(host.main_window, &waypoint); }));
    // The orders left in the list are the test's to destroy; the editor
    // destroyed the others.
    made = values<heli_order_record>(waypoint.orders);
    host.free_list(waypoint.orders);
    EXPECT_EQ(seen, (lines{"Patrol/Wait/Engage", "Patrol/Wait/Deploy/Engage", "Engage/Deploy/Pickup/Patrol/Wait/Land",
                           "Patrol/Wait/Deploy/Pickup"}));
    ASSERT_EQ(made.size(), 5u);
    EXPECT_TRUE(made[0] == patrol && made[1] != wait && made[2] == odd);
    EXPECT_EQ(values<patrol_point>(patrol->body.patrol->points), points);
    EXPECT_EQ(std::make_pair(made[3]->kind, made[4]->kind), std::make_pair(1u, 2u));  // Deploy, Pickup
    EXPECT_EQ(made[1]->body.wait->mode, uint32_t(WAIT_UNTIL_TIME));  // the confirmed copy
    EXPECT_EQ(std::make_tuple(host.heli.creates, host.heli.copies, host.heli.destroys), std::make_tuple(7, 2, 4));
    odd->kind = HELI_ORDER_ENGAGE;  // so that the host frees its body
}
