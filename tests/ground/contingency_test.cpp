#include <cstring>
#include <string>
#include <vector>

#include "tests/support/test_host.h"

#include "ground/contingency.h"
#include "util/dialogs.h"

namespace {
constexpr const char *title = "Sarge Order";
enum {
    TRIGGER = 1067, NEXT_ORDER_LABEL = 1082, NEXT_ORDER = 1083, VALUE_LABEL = 1084, VALUE = 1085,
    ORDER_TYPE = 1075, NAME = 1071, DESTINATION = 1059, FORMATION = 1058, AMOUNT_LABEL = 1100, AMOUNT = 1101,
    MESSAGE = 1057, TARGET = 1065
};
using names = std::vector<std::string>;

contingency_order_record fresh() {
    contingency_order_record r;
    std::memset(&r, 0, sizeof r);
    return r;
}
bool same(const contingency_order_record &a, const contingency_order_record &b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}
}  // namespace

class contingency_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        host.formations = {"Column", "Line"};
        host.markers = {"WP1", "WP2"};
        host.message_targets = {"HQ"};
        ASSERT_EQ(start_editor(), 1);
    }
    int edit(contingency_order_record &r) { return edit_contingency_order(host.main_window, &r); }
};

TEST_F(contingency_test, fresh_record_opens_as_enemy_close_and_halt) {
    contingency_order_record r = fresh();
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, TRIGGER), (names{"Enemy Close", "Under Fire", "Damage", "Message", "Continue"}));
        EXPECT_EQ(ui_combo_selected(dlg, TRIGGER), "Enemy Close");
        EXPECT_EQ(ui_text(dlg, VALUE_LABEL), "Distance (m)");
        EXPECT_EQ(ui_text(dlg, VALUE), "");
        EXPECT_TRUE(ui_enabled(dlg, VALUE));
        EXPECT_TRUE(ui_enabled(dlg, NEXT_ORDER));
        EXPECT_EQ(ui_combo_items(dlg, ORDER_TYPE),
                  (names{"Halt", "Defend", "Mobile Defence", "March", "Advance", "Barrage"}));
        EXPECT_EQ(ui_combo_selected(dlg, ORDER_TYPE), "Halt");
        EXPECT_EQ(ui_text(dlg, AMOUNT_LABEL), "Duration (secs)");
        EXPECT_EQ(ui_text(dlg, AMOUNT), "0.000000");
        EXPECT_TRUE(ui_enabled(dlg, AMOUNT));
        EXPECT_FALSE(ui_enabled(dlg, DESTINATION));
        EXPECT_FALSE(ui_enabled(dlg, FORMATION));
        EXPECT_EQ(ui_combo_selected(dlg, TARGET), "NONE");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.trigger, TRIGGER_ENEMY_CLOSE);
    EXPECT_EQ(r.distance, 0.0f);
    EXPECT_EQ(r.order.type, SARGE_ORDER_HALT);
}

TEST_F(contingency_test, switching_trigger_shows_empty_value_then_the_stored_one) {
    contingency_order_record r = fresh();
    r.trigger = TRIGGER_DAMAGE;
    r.survivors = 3;
    copy_text(r.next_order, "regroup");
    copy_text(r.trigger_string, "stale");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, TRIGGER), "Damage");
        EXPECT_EQ(ui_text(dlg, VALUE_LABEL), "Survivors");
        EXPECT_EQ(ui_text(dlg, VALUE), "3");
        EXPECT_EQ(ui_text(dlg, NEXT_ORDER), "regroup");
        ui_combo_select(dlg, TRIGGER, "Message");
    });
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, TRIGGER), "Message");
        EXPECT_EQ(ui_text(dlg, VALUE_LABEL), "Trigger String");
        EXPECT_EQ(ui_text(dlg, VALUE), "");
        ui_combo_select(dlg, TRIGGER, "Under Fire");
    });
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, VALUE_LABEL), "");
        EXPECT_FALSE(ui_enabled(dlg, VALUE_LABEL));
        EXPECT_FALSE(ui_enabled(dlg, VALUE));
        EXPECT_TRUE(ui_enabled(dlg, NEXT_ORDER_LABEL));
        ui_combo_select(dlg, TRIGGER, "Damage");
    });
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, VALUE), "3");
        EXPECT_TRUE(ui_enabled(dlg, VALUE_LABEL));
        EXPECT_TRUE(ui_enabled(dlg, VALUE));
        ui_set_text(dlg, VALUE, "7 left");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.survivors, 7);
    EXPECT_STREQ(r.next_order, "regroup");
}

TEST_F(contingency_test, value_reads_by_trigger_type) {
    contingency_order_record r = fresh();
    r.trigger = TRIGGER_ENEMY_CLOSE;
    r.distance = 250;
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, VALUE), "250.000000");
        ui_set_text(dlg, VALUE, "12.5m");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.distance, 12.5f);

    // No plain decimal number reads as 0, unlike the "%f" scans.
    ui_driver d2;
    d2.then(title, [&](HWND dlg) {
        ui_set_text(dlg, VALUE, "inf");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_EQ(r.distance, 0.0f);

    ui_driver d3;
    d3.then(title, [&](HWND dlg) {
        ui_combo_select(dlg, TRIGGER, "Continue");
    });
    d3.then(title, [&](HWND dlg) {
        ui_set_text(dlg, VALUE, std::string(40, 's'));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d3);
    EXPECT_EQ(r.trigger, TRIGGER_CONTINUE);
    EXPECT_EQ(std::string(r.trigger_string), std::string(31, 's'));
    EXPECT_EQ(r.distance, 0.0f);
}

TEST_F(contingency_test, under_fire_leaves_the_value_fields_alone) {
    contingency_order_record r = fresh();
    r.trigger = TRIGGER_DAMAGE;
    r.survivors = 4;
    r.distance = 9;
    copy_text(r.trigger_string, "go");
    ui_driver d;
    d.then(title, [&](HWND dlg) { ui_combo_select(dlg, TRIGGER, "Under Fire"); });
    d.then(title, [&](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.trigger, TRIGGER_UNDER_FIRE);
    EXPECT_EQ(r.survivors, 4);
    EXPECT_EQ(r.distance, 9.0f);
    EXPECT_STREQ(r.trigger_string, "go");
}

TEST_F(contingency_test, barrage_and_advance_store_their_fields) {
    contingency_order_record r = fresh();
    r.order.type = SARGE_ORDER_BARRAGE;
    r.order.duration = 3;
    r.order.formation_rotation = 15;
    copy_text(r.order.formation, "Line");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, ORDER_TYPE), "Barrage");
        EXPECT_TRUE(ui_enabled(dlg, DESTINATION));
        EXPECT_FALSE(ui_enabled(dlg, FORMATION));
        EXPECT_EQ(ui_text(dlg, AMOUNT), "3.000000");
        ui_set_text(dlg, AMOUNT, "123.456789");
        ui_combo_select(dlg, DESTINATION, "WP2");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.order.duration, 123.45678f);
    EXPECT_STREQ(r.order.destination, "WP2");
    EXPECT_STREQ(r.order.formation, "Line");
    EXPECT_EQ(r.order.formation_rotation, 15.0f);

    // Advance: the rotation is editable here, the duration goes to 0.
    ui_driver d2;
    d2.then(title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, "typed and lost");
        ui_combo_select(dlg, ORDER_TYPE, "Advance");
    });
    d2.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, NAME), "");  // the section reloads from the record
        EXPECT_EQ(ui_text(dlg, AMOUNT_LABEL), "Formation Rotation (DEGS)");
        EXPECT_EQ(ui_text(dlg, AMOUNT), "15.000000");
        EXPECT_TRUE(ui_enabled(dlg, AMOUNT));
        EXPECT_TRUE(ui_enabled(dlg, FORMATION));
        EXPECT_EQ(ui_combo_items(dlg, FORMATION), (names{"Column", "Line"}));
        EXPECT_EQ(ui_combo_selected(dlg, FORMATION), "Line");
        EXPECT_EQ(ui_combo_selected(dlg, DESTINATION), "WP2");
        ui_combo_select(dlg, FORMATION, "Column");
        ui_set_text(dlg, AMOUNT, "90");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_EQ(r.order.type, SARGE_ORDER_ADVANCE);
    EXPECT_STREQ(r.order.formation, "Column");
    EXPECT_EQ(r.order.formation_rotation, 90.0f);
    EXPECT_EQ(r.order.duration, 0.0f);
    EXPECT_STREQ(r.order.destination, "WP2");

    // Defend: label and edit 1101 disabled; the rotation is kept.
    ui_driver d3;
    d3.then(title, [&](HWND dlg) { ui_combo_select(dlg, ORDER_TYPE, "Defend"); });
    d3.then(title, [&](HWND dlg) {
        EXPECT_FALSE(ui_enabled(dlg, AMOUNT));
        EXPECT_FALSE(ui_enabled(dlg, AMOUNT_LABEL));
        EXPECT_FALSE(ui_enabled(dlg, DESTINATION));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d3);
    EXPECT_EQ(r.order.type, SARGE_ORDER_DEFEND);
    EXPECT_EQ(r.order.formation_rotation, 90.0f);
}

TEST_F(contingency_test, next_order_and_message_rules) {
    contingency_order_record r = fresh();
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        ui_set_text(dlg, NEXT_ORDER, "abcdefghijklmnopqrst");
        ui_set_text(dlg, MESSAGE, "no target");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(r.next_order, "abcdefghijklmno");
    EXPECT_STREQ(r.order.message, "");

    ui_driver d2;
    d2.then(title, [&](HWND dlg) {
        ui_combo_select(dlg, TARGET, "HQ");
        ui_set_text(dlg, MESSAGE, "done");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_STREQ(r.order.message_target, "HQ");
    EXPECT_STREQ(r.order.message, "done");
}

TEST_F(contingency_test, cancel_leaves_the_record_untouched) {
    contingency_order_record r = fresh();
    r.trigger = TRIGGER_MESSAGE;
    copy_text(r.trigger_string, "alarm");
    r.order.type = SARGE_ORDER_MARCH;
    const contingency_order_record before = r;
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, VALUE), "alarm");
        ui_combo_select(dlg, TRIGGER, "Damage");
        ui_combo_select(dlg, ORDER_TYPE, "Halt");
        ui_set_text(dlg, NEXT_ORDER, "x");
    });
    d.then(title, [&](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(edit(r), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_TRUE(same(r, before));
}

TEST_F(contingency_test, refused_lists_leave_combos_empty_and_fields_alone) {
    host.refuse_acquire = true;
    contingency_order_record r = fresh();
    r.order.type = SARGE_ORDER_MARCH;
    copy_text(r.order.destination, "WP9");
    copy_text(r.order.formation, "Box");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_TRUE(ui_combo_items(dlg, DESTINATION).empty());
        EXPECT_TRUE(ui_combo_items(dlg, FORMATION).empty());
        EXPECT_TRUE(ui_combo_items(dlg, TARGET).empty());
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(r.order.destination, "WP9");
    EXPECT_STREQ(r.order.formation, "Box");
}

TEST_F(contingency_test, unknown_types_open_and_are_kept) {
    contingency_order_record r = fresh();
    r.trigger = 9;
    r.order.type = 1;
    r.survivors = 5;
    copy_text(r.next_order, "keep");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, TRIGGER), "");
        EXPECT_EQ(ui_combo_selected(dlg, ORDER_TYPE), "Halt");
        EXPECT_FALSE(ui_enabled(dlg, VALUE));
        EXPECT_EQ(ui_text(dlg, NEXT_ORDER), "keep");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit(r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.trigger, 9);
    EXPECT_EQ(r.order.type, 1);
    EXPECT_EQ(r.survivors, 5);
    EXPECT_STREQ(r.next_order, "keep");
}
