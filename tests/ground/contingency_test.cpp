#include "ground/contingency.h"
#include "tests/ground/group_fixture.h"
#include "util/dialogs.h"
#include "util/text.h"

namespace {
using names = std::vector<std::string>;
}  // namespace

class contingency_test : public editor_test {
protected:
    contingency_order_record r{};

    void SetUp() override {
        editor_test::SetUp();
        host.formations = {"Column", "Line"};
        host.markers = {"WP1", "WP2"};
        host.message_targets = {"HQ"};
        ASSERT_EQ(start_editor(), 1);
    }
    int edit(std::initializer_list<ui_driver::action> steps) {
        return drive("Sarge Order", steps, [&] { return edit_contingency_order(host.main_window, &r); });
    }
};

TEST_F(contingency_test, fresh_record_opens_as_enemy_close_and_halt) {
    EXPECT_EQ(1, edit({[&](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_CT_TRIGGER),
                  (names{"Enemy Close", "Under Fire", "Damage", "Message", "Continue"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_TRIGGER), "Enemy Close");
        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE_LABEL), "Distance (m)");
        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE), "");
        EXPECT_TRUE(ui_enabled(dlg, IDC_CT_VALUE) && ui_enabled(dlg, IDC_CT_NEXT_ORDER));
        EXPECT_EQ(ui_combo_items(dlg, IDC_CT_ORDER_TYPE),
                  (names{"Halt", "Defend", "Mobile Defence", "March", "Advance", "Barrage"}));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_ORDER_TYPE), "Halt");
        EXPECT_EQ(ui_text(dlg, IDC_CT_AMOUNT_LABEL), "Duration (secs)");
        EXPECT_EQ(ui_text(dlg, IDC_CT_AMOUNT), "0.000000");
        EXPECT_TRUE(ui_enabled(dlg, IDC_CT_AMOUNT));
        EXPECT_FALSE(ui_enabled(dlg, IDC_ORDER_DESTINATION) || ui_enabled(dlg, IDC_ORDER_FORMATION));
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_MESSAGE_TARGET), "NONE");
        ui_set_text(dlg, IDC_CT_VALUE, "12.5m");
        ui_set_text(dlg, IDC_CT_NEXT_ORDER, "abcdefghijklmnopqrst");
        ui_combo_select(dlg, IDC_ORDER_MESSAGE_TARGET, "HQ");
        ui_set_text(dlg, IDC_ORDER_MESSAGE, "done");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(r.trigger, TRIGGER_ENEMY_CLOSE);
    EXPECT_EQ(r.distance, 12.5f);
    EXPECT_STREQ(r.next_order, "abcdefghijklmno");
    EXPECT_EQ(r.order.type, SARGE_ORDER_HALT);
    EXPECT_STREQ(r.order.message_target, "HQ");
    EXPECT_STREQ(r.order.message, "done");
}

TEST_F(contingency_test, switching_trigger_shows_empty_value_then_the_stored_one) {
    r.trigger = TRIGGER_DAMAGE;
    r.survivors = 3;
    copy_text(r.next_order, "regroup");
    copy_text(r.trigger_string, "stale");
    EXPECT_EQ(edit({[&](HWND dlg) {
                        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_TRIGGER), "Damage");
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE_LABEL), "Survivors");
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE), "3");
                        EXPECT_EQ(ui_text(dlg, IDC_CT_NEXT_ORDER), "regroup");
                        ui_combo_select(dlg, IDC_CT_TRIGGER, "Message");
                    },
                    [&](HWND dlg) {
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE_LABEL), "Trigger String");
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE), "");
                        ui_combo_select(dlg, IDC_CT_TRIGGER, "Under Fire");
                    },
                    [&](HWND dlg) {
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE_LABEL), "");
                        EXPECT_FALSE(ui_enabled(dlg, IDC_CT_VALUE_LABEL) || ui_enabled(dlg, IDC_CT_VALUE));
                        EXPECT_TRUE(ui_enabled(dlg, IDC_CT_NEXT_ORDER_LABEL));
                        ui_combo_select(dlg, IDC_CT_TRIGGER, "Damage");
                    },
                    [&](HWND dlg) {
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE), "3");
                        EXPECT_TRUE(ui_enabled(dlg, IDC_CT_VALUE_LABEL) && ui_enabled(dlg, IDC_CT_VALUE));
                        ui_set_text(dlg, IDC_CT_VALUE, "7 left");
                        ui_command(dlg, IDOK);
                    }}),
              1);
    EXPECT_EQ(r.survivors, 7);
    EXPECT_STREQ(r.next_order, "regroup");
}

TEST_F(contingency_test, each_trigger_stores_only_its_own_value) {
    r.trigger = TRIGGER_DAMAGE;
    r.survivors = 4;
    r.distance = 9;
    copy_text(r.trigger_string, "go");
    // Under Fire has no value: all three fields stay.
    EXPECT_EQ(edit({[&](HWND dlg) { ui_combo_select(dlg, IDC_CT_TRIGGER, "Under Fire"); }, press_ok}), 1);
    EXPECT_EQ(r.trigger, TRIGGER_UNDER_FIRE);
    EXPECT_EQ(r.survivors, 4);
    EXPECT_EQ(r.distance, 9.0f);
    EXPECT_STREQ(r.trigger_string, "go");
    // No plain decimal number reads as 0, unlike the library's scans.
    EXPECT_EQ(edit({[&](HWND dlg) { ui_combo_select(dlg, IDC_CT_TRIGGER, "Enemy Close"); },
                    [&](HWND dlg) {
                        ui_set_text(dlg, IDC_CT_VALUE, "inf");
                        ui_command(dlg, IDOK);
                    }}),
              1);
    EXPECT_EQ(r.distance, 0.0f);
    EXPECT_EQ(edit({[&](HWND dlg) { ui_combo_select(dlg, IDC_CT_TRIGGER, "Continue"); },
                    [&](HWND dlg) {
                        ui_set_text(dlg, IDC_CT_VALUE, std::string(40, 's'));
                        ui_command(dlg, IDOK);
                    }}),
              1);
    EXPECT_EQ(r.trigger, TRIGGER_CONTINUE);
    EXPECT_EQ(std::string(r.trigger_string), std::string(31, 's'));
    EXPECT_EQ(r.survivors, 4);
}

TEST_F(contingency_test, order_type_switches_reload_the_section_and_store_its_fields) {
    r.order.type = SARGE_ORDER_BARRAGE;
    r.order.duration = 3;
    r.order.formation_rotation = 15;
    copy_text(r.order.formation, "Line");
    EXPECT_EQ(1, edit({[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_ORDER_TYPE), "Barrage");
        EXPECT_TRUE(ui_enabled(dlg, IDC_ORDER_DESTINATION));
        EXPECT_FALSE(ui_enabled(dlg, IDC_ORDER_FORMATION));
        EXPECT_EQ(ui_text(dlg, IDC_CT_AMOUNT), "3.000000");
        ui_set_text(dlg, IDC_CT_AMOUNT, "123.456789");
        ui_combo_select(dlg, IDC_ORDER_DESTINATION, "WP2");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(r.order.duration, 123.45678f);
    EXPECT_STREQ(r.order.destination, "WP2");
    EXPECT_STREQ(r.order.formation, "Line");
    EXPECT_EQ(r.order.formation_rotation, 15.0f);

    // Advance: the rotation is editable here, the duration goes to 0.
    EXPECT_EQ(edit({[&](HWND dlg) {
                        ui_set_text(dlg, IDC_ORDER_NAME, "typed and lost");
                        ui_combo_select(dlg, IDC_CT_ORDER_TYPE, "Advance");
                    },
                    [&](HWND dlg) {
                        EXPECT_EQ(ui_text(dlg, IDC_ORDER_NAME), "");  // the section reloads from the record
                        EXPECT_EQ(ui_text(dlg, IDC_CT_AMOUNT_LABEL), "Formation Rotation (DEGS)");
                        EXPECT_EQ(ui_text(dlg, IDC_CT_AMOUNT), "15.000000");
                        EXPECT_TRUE(ui_enabled(dlg, IDC_CT_AMOUNT) && ui_enabled(dlg, IDC_ORDER_FORMATION));
                        EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_FORMATION), (names{"Column", "Line"}));
                        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_FORMATION), "Line");
                        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_DESTINATION), "WP2");
                        ui_combo_select(dlg, IDC_ORDER_FORMATION, "Column");
                        ui_set_text(dlg, IDC_CT_AMOUNT, "90");
                        ui_command(dlg, IDOK);
                    }}),
              1);
    EXPECT_EQ(r.order.type, SARGE_ORDER_ADVANCE);
    EXPECT_STREQ(r.order.formation, "Column");
    EXPECT_EQ(r.order.formation_rotation, 90.0f);
    EXPECT_EQ(r.order.duration, 0.0f);
    EXPECT_STREQ(r.order.destination, "WP2");

    // Defend: the amount is disabled and the rotation kept.
    EXPECT_EQ(edit({[&](HWND dlg) { ui_combo_select(dlg, IDC_CT_ORDER_TYPE, "Defend"); },
                    [&](HWND dlg) {
                        EXPECT_FALSE(ui_enabled(dlg, IDC_CT_AMOUNT) || ui_enabled(dlg, IDC_CT_AMOUNT_LABEL));
                        EXPECT_FALSE(ui_enabled(dlg, IDC_ORDER_DESTINATION));
                        ui_command(dlg, IDOK);
                    }}),
              1);
    EXPECT_EQ(r.order.type, SARGE_ORDER_DEFEND);
    EXPECT_EQ(r.order.formation_rotation, 90.0f);
}

TEST_F(contingency_test, cancel_leaves_the_record_untouched) {
    r.trigger = TRIGGER_MESSAGE;
    copy_text(r.trigger_string, "alarm");
    r.order.type = SARGE_ORDER_MARCH;
    const contingency_order_record before = r;
    EXPECT_EQ(edit({[&](HWND dlg) {
                        EXPECT_EQ(ui_text(dlg, IDC_CT_VALUE), "alarm");
                        ui_combo_select(dlg, IDC_CT_TRIGGER, "Damage");
                        ui_combo_select(dlg, IDC_CT_ORDER_TYPE, "Halt");
                        ui_set_text(dlg, IDC_CT_NEXT_ORDER, "x");
                    },
                    press_cancel}),
              0);
    EXPECT_EQ(0, std::memcmp(&r, &before, sizeof r));
}

TEST_F(contingency_test, refused_lists_and_unknown_types_leave_fields_alone) {
    host.refuse_acquire = true;
    r.trigger = 9;
    r.survivors = 5;
    r.order.type = SARGE_ORDER_MARCH;
    copy_text(r.order.destination, "WP9");
    copy_text(r.order.formation, "Box");
    EXPECT_EQ(1, edit({[&](HWND dlg) {
        for (int id : {IDC_ORDER_DESTINATION, IDC_ORDER_FORMATION, IDC_ORDER_MESSAGE_TARGET}) EXPECT_TRUE(ui_combo_items(dlg, id).empty()) << id;
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_TRIGGER), "");
        EXPECT_FALSE(ui_enabled(dlg, IDC_CT_VALUE));
        ui_command(dlg, IDOK);
    }}));
    EXPECT_STREQ(r.order.destination, "WP9");
    EXPECT_STREQ(r.order.formation, "Box");
    EXPECT_EQ(r.trigger, 9);
    EXPECT_EQ(r.survivors, 5);

    host.refuse_acquire = false;
    r.order.type = 1;  // no name: shown as Halt, kept
    EXPECT_EQ(1, edit({[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CT_ORDER_TYPE), "Halt");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(r.order.type, 1);
}
