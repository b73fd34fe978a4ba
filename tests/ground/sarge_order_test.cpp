#include <cstring>

#include "ground/sarge_order.h"
#include "tests/ground/group_fixture.h"
#include "util/dialogs.h"
#include "util/controls.h"
#include "util/text.h"

namespace {
using names = std::vector<std::string>;

sarge_order_record make_order(int32_t type) {
    sarge_order_record r{};
    r.type = type;
    r.duration = 5;
    r.formation_rotation = 45;
    copy_text(r.name, "first");
    copy_text(r.destination, "WP2");
    copy_text(r.formation, "Wedge");
    return r;
}
}  // namespace

class sarge_order_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        host.formations = {"Column", "Line", "Wedge"};
        host.markers = {"WP1", "WP2", "WP3"};
        host.message_targets = {"HQ", "Alpha"};
        ASSERT_EQ(start_editor(), 1);
    }
    int edit(sarge_order_record &r, std::initializer_list<ui_driver::action> steps) {
        return drive("Sarge Order", steps, [&] { return edit_sarge_order(host.main_window, &r); });
    }
};

TEST_F(sarge_order_test, each_type_enables_and_stores_its_own_fields) {
    struct type_case {
        int32_t type;
        bool duration, destination, formation;
    };
    // 1 and 99 have no name: they open like Defend and keep their type.
    const type_case cases[] = {
        {SARGE_ORDER_HALT, true, false, false},    {SARGE_ORDER_BARRAGE, true, true, false},
        {SARGE_ORDER_ADVANCE, false, true, true},  {SARGE_ORDER_MARCH, false, true, true},
        {SARGE_ORDER_DEFEND, false, false, false}, {SARGE_ORDER_MOBILE_DEFENCE, false, false, false},
        {1, false, false, false},                  {99, false, false, false},
    };
    for (const type_case &c : cases) {
        SCOPED_TRACE(c.type);
        sarge_order_record r = make_order(c.type);
        EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
            EXPECT_EQ(ui_enabled(dlg, IDC_SO_DURATION), c.duration);
            EXPECT_EQ(ui_enabled(dlg, IDC_SO_DURATION_LABEL), c.duration);
            EXPECT_EQ(ui_enabled(dlg, IDC_ORDER_DESTINATION), c.destination);
            EXPECT_EQ(ui_enabled(dlg, IDC_ORDER_DESTINATION_LABEL), c.destination);
            EXPECT_EQ(ui_enabled(dlg, IDC_ORDER_FORMATION), c.formation);
            EXPECT_EQ(ui_enabled(dlg, IDC_ORDER_FORMATION_LABEL), c.formation);
            EXPECT_FALSE(ui_enabled(dlg, IDC_SO_ROTATION) || ui_enabled(dlg, IDC_SO_ROTATION_LABEL));
            EXPECT_TRUE(ui_enabled(dlg, IDC_ORDER_NAME) && ui_enabled(dlg, IDC_ORDER_MESSAGE) && ui_enabled(dlg, IDC_ORDER_MESSAGE_TARGET));
            EXPECT_EQ(ui_text(dlg, IDC_ORDER_NAME), "first");
            EXPECT_EQ(ui_text(dlg, IDC_SO_DURATION), c.duration ? "5.000000" : "");
            EXPECT_EQ(ui_text(dlg, IDC_SO_ROTATION), c.formation ? "45.000000" : "");
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_DESTINATION), (c.destination ? names{"WP1", "WP2", "WP3"} : names{}));
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_FORMATION), (c.formation ? names{"Column", "Line", "Wedge"} : names{}));
            EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_DESTINATION), c.destination ? "WP2" : "");
            EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_FORMATION), c.formation ? "Wedge" : "");
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_MESSAGE_TARGET), (names{"HQ", "Alpha", "NONE"}));
            ui_set_text(dlg, IDC_ORDER_NAME, "hold the ridge");
            ui_set_text(dlg, IDC_SO_DURATION, "123.456789");  // nine characters are read
            ui_combo_select(dlg, IDC_ORDER_DESTINATION, "WP3");
            ui_combo_select(dlg, IDC_ORDER_FORMATION, "Line");
            ui_command(dlg, IDOK);
        }}));
        EXPECT_EQ(r.type, c.type);
        EXPECT_STREQ(r.name, "hold the ridge");
        EXPECT_EQ(r.duration, c.duration ? 123.45678f : 0.0f);
        EXPECT_EQ(r.formation_rotation, 0.0f);
        EXPECT_STREQ(r.destination, c.destination ? "WP3" : "WP2");
        EXPECT_STREQ(r.formation, c.formation ? "Line" : "Wedge");
    }
}

TEST_F(sarge_order_test, stale_long_and_unreadable_inputs) {
    const std::string long_marker(40, 'm');
    host.markers = {long_marker, "WP1"};
    sarge_order_record r = make_order(SARGE_ORDER_BARRAGE);
    copy_text(r.destination, "gone");
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        // A destination the host no longer lists shows the first one, cut to the field.
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_DESTINATION), long_marker.substr(0, 31));
        ui_set_text(dlg, IDC_ORDER_NAME, std::string(45, 'n'));
        ui_set_text(dlg, IDC_SO_DURATION, "inf");  // not a plain decimal number: kept
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(std::string(r.destination), long_marker.substr(0, 31));
    EXPECT_EQ(std::string(r.name), std::string(31, 'n'));
    EXPECT_EQ(r.duration, 5.0f);

    // A shorter name writes only its text and terminator: the rest of the
    // field (here unterminated host bytes) stays as it was.
    std::memset(r.name, 'x', sizeof r.name);
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        ui_set_text(dlg, IDC_ORDER_NAME, "ab");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_EQ(std::string(r.name, sizeof r.name), std::string("ab") + '\0' + std::string(29, 'x'));
}

TEST_F(sarge_order_test, message_and_target_are_stored_only_together) {
    sarge_order_record r = make_order(SARGE_ORDER_DEFEND);
    struct step {
        const char *select, *message, *stored_target, *stored_message;
    };
    const step steps[] = {
        {"NONE", "done", "", ""},  // a message without a target is dropped
        {"Alpha", "", "", ""},     // and a target without a message
        {"Alpha", "ridge taken", "Alpha", "ridge taken"},
        {"NONE", "ridge taken", "Alpha", "ridge taken"},  // NONE cannot clear stored ones
    };
    for (const step &s : steps) {
        EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
            EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_MESSAGE_TARGET), r.message_target[0] ? r.message_target : "NONE");
            EXPECT_EQ(ui_text(dlg, IDC_ORDER_MESSAGE), r.message);
            ui_combo_select(dlg, IDC_ORDER_MESSAGE_TARGET, s.select);
            ui_set_text(dlg, IDC_ORDER_MESSAGE, s.message);
            ui_command(dlg, IDOK);
        }}));
        EXPECT_STREQ(r.message_target, s.stored_target);
        EXPECT_STREQ(r.message, s.stored_message);
    }
    // A target the host no longer lists shows the first host name, stored on OK.
    copy_text(r.message_target, "Bravo");
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_MESSAGE_TARGET), "HQ");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_STREQ(r.message_target, "HQ");
}

TEST_F(sarge_order_test, cancel_and_close_leave_the_record_untouched) {
    sarge_order_record r = make_order(SARGE_ORDER_ADVANCE);
    const sarge_order_record before = r;
    EXPECT_EQ(0, edit(r, {[&](HWND dlg) {
        ui_set_text(dlg, IDC_ORDER_NAME, "changed");
        ui_combo_select(dlg, IDC_ORDER_FORMATION, "Column");
        ui_command(dlg, IDCANCEL);
    }}));
    EXPECT_EQ(edit(r, {[&](HWND dlg) { PostMessageA(dlg, WM_CLOSE, 0, 0); }}), 0);
    EXPECT_EQ(0, std::memcmp(&r, &before, sizeof r));
}

TEST_F(sarge_order_test, refused_host_lists_leave_combos_empty_and_fields_alone) {
    host.refuse_acquire = true;
    sarge_order_record r = make_order(SARGE_ORDER_MARCH);
    copy_text(r.message_target, "HQ");
    copy_text(r.message, "old");
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        for (int id : {IDC_ORDER_FORMATION, IDC_ORDER_DESTINATION, IDC_ORDER_MESSAGE_TARGET}) EXPECT_TRUE(ui_combo_items(dlg, id).empty()) << id;
        ui_set_text(dlg, IDC_ORDER_MESSAGE, "new");
        ui_command(dlg, IDOK);
    }}));
    EXPECT_STREQ(r.formation, "Wedge");
    EXPECT_STREQ(r.destination, "WP2");
    EXPECT_STREQ(r.message, "old");

    // A failed release empties the combo even though the names were read.
    HWND combo = CreateWindowA("COMBOBOX", "", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100, host.main_window,
                               nullptr, GetModuleHandleA(nullptr), nullptr);
    host.refuse_acquire = false;
    host.refuse_only = &host.markers;
    host.refuse_release = true;
    EXPECT_EQ(fill_message_target_combo(combo), 1);
    EXPECT_EQ(select_combo_string(combo, "Alpha"), 1);
    EXPECT_EQ(select_combo_string(combo, "alpha"), -1);  // whole, case-sensitive matches only
    EXPECT_EQ(select_combo_string(combo, "Alph"), -1);
    EXPECT_EQ(fill_destination_combo(combo), 0);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(host.lists_out, 0);
    DestroyWindow(combo);
}
