// The contingency order: a trigger with its one value, and an order whose
// section follows its type.
#include "ground/contingency.h"
#include "tests/ground/group_fixture.h"

namespace {
// The trigger, its value's label and value, the next order, then the order's
// type, amount label and amount, destination and formation.
std::string screen(HWND dlg) {
    return shown(dlg, {IDC_CT_TRIGGER, IDC_CT_VALUE_LABEL, IDC_CT_VALUE, IDC_CT_NEXT_ORDER, IDC_CT_ORDER_TYPE,
                       IDC_CT_AMOUNT_LABEL, IDC_CT_AMOUNT, IDC_ORDER_DESTINATION, IDC_ORDER_FORMATION});
}
}  // namespace

class contingency_test : public ground_test {
protected:
    contingency_order_record r{};
    lines seen;  // what each step saw
    int edit(std::initializer_list<ui_driver::action> acts) {
        ui_driver d;
        for (const auto &act : acts) d.then("Sarge Order", [&, act](HWND dlg) { seen.push_back(screen(dlg)); act(dlg); });
        const int result = edit_contingency_order(host.main_window, &r);
        EXPECT_DRIVER_OK(d);
        return result;
    }
    static ui_driver::action pick(int combo, const char *text) {
        return [=](HWND dlg) { ui_combo_select(dlg, combo, text); };
    }
    static ui_driver::action type_and_ok(int id, const std::string &text) {
        return [=](HWND dlg) { ui_set_text(dlg, id, text); press_ok(dlg); };
    }
};

TEST_F(contingency_test, fresh_record_opens_as_enemy_close_and_halt) {
    EXPECT_EQ(edit({[&](HWND dlg) {
        ui_set_text(dlg, IDC_CT_VALUE, "12.5m");
        ui_set_text(dlg, IDC_CT_NEXT_ORDER, "abcdefghijklmnopqrst");
        ui_combo_select(dlg, IDC_ORDER_MESSAGE_TARGET, "HQ");
        ui_set_text(dlg, IDC_ORDER_MESSAGE, "done");
        EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_MESSAGE_TARGET), (lines{"HQ", "Alpha", "NONE"}));
        press_ok(dlg);
    }}), 1);
    EXPECT_EQ(seen, lines{"Enemy Close,Distance (m),,,Halt,Duration (secs),0.000000,[],[]"});
    EXPECT_TRUE(r.trigger == TRIGGER_ENEMY_CLOSE && r.distance == 12.5f && r.order.type == SARGE_ORDER_HALT);
    EXPECT_EQ(std::string(r.next_order) + "|" + r.order.message_target + "|" + r.order.message, "abcdefghijklmno|HQ|done");
}

TEST_F(contingency_test, each_trigger_shows_and_stores_only_its_own_value) {
    r.trigger = TRIGGER_DAMAGE;
    r.survivors = 3;
    r.distance = 9;
    copy_text(r.next_order, "regroup");
    copy_text(r.trigger_string, "go");
    r.order.duration = 2;
    // Cancel keeps every byte, whatever was changed.
    const contingency_order_record before = r;
    EXPECT_EQ(edit({pick(IDC_CT_TRIGGER, "Message"), pick(IDC_CT_ORDER_TYPE, "March"), press_cancel}), 0);
    EXPECT_EQ(0, std::memcmp(&r, &before, sizeof r));
    // Switching shows another trigger's value empty and the record's own again.
    seen.clear();
    EXPECT_EQ(edit({pick(IDC_CT_TRIGGER, "Message"), pick(IDC_CT_TRIGGER, "Under Fire"), pick(IDC_CT_TRIGGER, "Damage"),
                    [&](HWND dlg) {
                        ui_set_text(dlg, IDC_CT_VALUE, "7 left");
                        ui_combo_select(dlg, IDC_CT_TRIGGER, "Under Fire");  // no value: all three stay
                        press_ok(dlg);
                    }}), 1);
    EXPECT_EQ(seen, (lines{"Damage,Survivors,3,regroup,Halt,Duration (secs),2.000000,[],[]",
                           "Message,Trigger String,,regroup,Halt,Duration (secs),2.000000,[],[]",
                           "Under Fire,[],[],regroup,Halt,Duration (secs),2.000000,[],[]",
                           "Damage,Survivors,3,regroup,Halt,Duration (secs),2.000000,[],[]"}));
    EXPECT_TRUE(r.trigger == TRIGGER_UNDER_FIRE && r.survivors == 3 && r.distance == 9.0f);
    EXPECT_STREQ(r.trigger_string, "go");
    const std::string long_text(40, 's');
    EXPECT_EQ(edit({pick(IDC_CT_TRIGGER, "Damage"), type_and_ok(IDC_CT_VALUE, "7 left")}), 1);
    EXPECT_EQ(edit({pick(IDC_CT_TRIGGER, "Enemy Close"), type_and_ok(IDC_CT_VALUE, "inf")}), 1);
    EXPECT_EQ(edit({pick(IDC_CT_TRIGGER, "Continue"), type_and_ok(IDC_CT_VALUE, long_text)}), 1);
    // No plain decimal number reads as 0, unlike the library's scans.
    EXPECT_TRUE(r.trigger == TRIGGER_CONTINUE && r.survivors == 7 && r.distance == 0.0f);
    EXPECT_EQ(std::string(r.trigger_string), std::string(31, 's'));
}

TEST_F(contingency_test, order_type_switches_reload_the_section_and_store_its_fields) {
    r.trigger = TRIGGER_UNDER_FIRE;
    r.order.type = SARGE_ORDER_BARRAGE;
    r.order.duration = 3;
    r.order.formation_rotation = 15;
    copy_text(r.order.formation, "Line");
    EXPECT_EQ(edit({[&](HWND dlg) { pick(IDC_ORDER_DESTINATION, "WP2")(dlg); type_and_ok(IDC_CT_AMOUNT, "123.456789")(dlg); }}), 1);
    EXPECT_TRUE(r.order.duration == 123.45678f && r.order.formation_rotation == 15.0f);
    EXPECT_EQ(std::string(r.order.destination) + r.order.formation, "WP2Line");
    // Advance: the rotation is editable here, the duration goes to 0.
    EXPECT_EQ(edit({[&](HWND dlg) {
        ui_set_text(dlg, IDC_ORDER_NAME, "typed and lost");
        ui_combo_select(dlg, IDC_CT_ORDER_TYPE, "Advance");
    }, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, IDC_ORDER_NAME), "");  // the section reloads from the record
        ui_combo_select(dlg, IDC_ORDER_FORMATION, "Column");
        type_and_ok(IDC_CT_AMOUNT, "90")(dlg);
    }}), 1);
    EXPECT_TRUE(r.order.type == SARGE_ORDER_ADVANCE && r.order.formation_rotation == 90.0f && r.order.duration == 0);
    EXPECT_STREQ(r.order.formation, "Column");
    // Defend: the amount is disabled and the rotation kept.
    EXPECT_EQ(edit({pick(IDC_CT_ORDER_TYPE, "Defend"), press_ok}), 1);
    EXPECT_TRUE(r.order.type == SARGE_ORDER_DEFEND && r.order.formation_rotation == 90.0f);
    EXPECT_EQ(seen, (lines{"Under Fire,[],[],,Barrage,Duration (secs),3.000000,WP1,[]",
                           "Under Fire,[],[],,Barrage,Duration (secs),123.456779,WP2,[]",
                           "Under Fire,[],[],,Advance,Formation Rotation (DEGS),15.000000,WP2,Line",
                           "Under Fire,[],[],,Advance,Formation Rotation (DEGS),90.000000,WP2,Column",
                           "Under Fire,[],[],,Defend,[Formation Rotation (DEGS)],[90.000000],[WP2],[Column]"}));
}

TEST_F(contingency_test, unknown_triggers_and_types_leave_fields_alone) {
    r.trigger = 9;
    r.survivors = 5;
    r.order.type = 1;  // no name: shown as Halt, without an amount, and kept
    EXPECT_EQ(edit({press_ok}), 1);
    EXPECT_TRUE(r.trigger == 9 && r.survivors == 5 && r.order.type == 1);
    EXPECT_EQ(seen, (lines{",[],[],,Halt,[Duration (Secs)],[],[],[]"}));
}
