// The Orders dialog: the type choice before the Sarge Order dialog.
#include "ground/orders_list.h"
#include "tests/ground/group_fixture.h"

namespace {
enum { ORDER_TYPES = 1054 };
}

TEST_F(group_test, ok_without_a_choice_types_the_order_as_advance) {
    sarge_order_record o{};
    std::vector<std::string> lines;
    int32_t type_seen = -2;
    ui_driver d;
    d.then("Orders", [&](HWND dlg) {
        lines = ui_list_items(dlg, ORDER_TYPES);
        ui_command(dlg, IDOK);
    });
    d.then("Sarge Order", [&](HWND dlg) {
        type_seen = o.type;
        ui_set_text(dlg, 1071, "Push");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(choose_order_type(host.main_window, &o), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(lines, (std::vector<std::string>{"Advance", "Barrage", "Defend", "Halt", "March", "Mobile Defence"}));
    EXPECT_EQ(type_seen, SARGE_ORDER_ADVANCE);
    EXPECT_STREQ(o.name, "Push");
}

TEST_F(group_test, chosen_type_is_set_and_both_dialogs_must_confirm) {
    sarge_order_record o{};
    ui_driver d;
    d.then("Orders", [&](HWND dlg) {
        ui_list_select(dlg, ORDER_TYPES, "Barrage");
        ui_command(dlg, IDOK);
    });
    d.then("Sarge Order", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(choose_order_type(host.main_window, &o), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(o.type, SARGE_ORDER_BARRAGE);

    ui_driver cancelled;
    cancelled.then("Orders", [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(choose_order_type(host.main_window, &o), 0);
    EXPECT_DRIVER_OK(cancelled);
    EXPECT_EQ(o.type, -1);

    orders_list_tidyup();
    o.type = 3;
    EXPECT_EQ(choose_order_type(host.main_window, &o), 0);
    EXPECT_EQ(o.type, 3);
    orders_list_start();
}
