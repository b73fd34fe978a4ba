// Sarge Order: the fields each type offers and stores, the message pair, and
// host lists that hold stale names or are not taken back. (How each field
// reads overlong and malformed text is the hostile text table's.)
#include "ground/sarge_order.h"
#include "tests/ground/group_fixture.h"

namespace {
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

class sarge_order_test : public ground_test {
protected:
    int edit(sarge_order_record &r, std::initializer_list<ui_driver::action> steps) {
        return drive("Sarge Order", steps, [&] { return edit_sarge_order(host.main_window, &r); });
    }
};

TEST_F(sarge_order_test, each_type_enables_and_stores_its_own_fields) {
    const struct {
        int32_t type;
        const char *shown;  // name, duration, rotation, destination, formation, message target and message
        bool duration, destination, formation;
    } cases[] = {
        {SARGE_ORDER_HALT, "first,5.000000,[],[],[],NONE,", true, false, false},
        {SARGE_ORDER_BARRAGE, "first,5.000000,[],WP2,[],NONE,", true, true, false},
        {SARGE_ORDER_ADVANCE, "first,[],[45.000000],WP2,Wedge,NONE,", false, true, true},
        {SARGE_ORDER_MARCH, "first,[],[45.000000],WP2,Wedge,NONE,", false, true, true},
        {SARGE_ORDER_DEFEND, "first,[],[],[],[],NONE,", false, false, false},
        {SARGE_ORDER_MOBILE_DEFENCE, "first,[],[],[],[],NONE,", false, false, false},
        {1, "first,[],[],[],[],NONE,", false, false, false},  // no name: like Defend, the type kept
        {99, "first,[],[],[],[],NONE,", false, false, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.type);
        sarge_order_record r = make_order(c.type);
        EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
            EXPECT_EQ(shown(dlg, {IDC_ORDER_NAME, IDC_SO_DURATION, IDC_SO_ROTATION, IDC_ORDER_DESTINATION,
                                  IDC_ORDER_FORMATION, IDC_ORDER_MESSAGE_TARGET, IDC_ORDER_MESSAGE}), c.shown);
            EXPECT_EQ(ui_enabled(dlg, IDC_SO_DURATION_LABEL) + 2 * ui_enabled(dlg, IDC_ORDER_DESTINATION_LABEL) +
                          4 * ui_enabled(dlg, IDC_ORDER_FORMATION_LABEL) + 8 * ui_enabled(dlg, IDC_SO_ROTATION_LABEL),
                      c.duration + 2 * c.destination + 4 * c.formation);
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_DESTINATION), (c.destination ? lines{"WP1", "WP2", "WP3"} : lines{}));
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_FORMATION), (c.formation ? lines{"Column", "Line", "Wedge"} : lines{}));
            EXPECT_EQ(ui_combo_items(dlg, IDC_ORDER_MESSAGE_TARGET), (lines{"HQ", "Alpha", "NONE"}));
            ui_set_text(dlg, IDC_ORDER_NAME, "hold the ridge");
            ui_set_text(dlg, IDC_SO_DURATION, "123.456789");  // nine characters are read
            ui_combo_select(dlg, IDC_ORDER_DESTINATION, "WP3");
            ui_combo_select(dlg, IDC_ORDER_FORMATION, "Line");
            press_ok(dlg);
        }}));
        EXPECT_TRUE(r.type == c.type && r.duration == (c.duration ? 123.45678f : 0.0f) && r.formation_rotation == 0);
        EXPECT_EQ(std::string(r.name) + "," + r.destination + "," + r.formation,
                  std::string("hold the ridge,") + (c.destination ? "WP3," : "WP2,") + (c.formation ? "Line" : "Wedge"));
    }
}

// A destination the host does not list (whole) shows the first one, cut to
// the field, and OK stores it.
TEST_F(sarge_order_test, a_stale_destination_shows_and_stores_the_first_host_marker) {
    const std::string long_marker(40, 'm');
    host.markers = {long_marker, "WP1"};
    sarge_order_record r = make_order(SARGE_ORDER_BARRAGE);
    copy_text(r.destination, "WP");
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_DESTINATION), long_marker.substr(0, 31));
        press_ok(dlg);
    }}));
    EXPECT_EQ(std::string(r.destination), long_marker.substr(0, 31));
}

TEST_F(sarge_order_test, message_and_target_are_stored_only_together_and_cancel_stores_nothing) {
    sarge_order_record r = make_order(SARGE_ORDER_DEFEND);
    const struct {
        const char *select, *message, *stored_target, *stored_message;
    } steps[] = {
        {"NONE", "done", "", ""},  // a message without a target is dropped
        {"Alpha", "", "", ""},     // and a target without a message
        {"Alpha", "ridge taken", "Alpha", "ridge taken"},
        {"NONE", "ridge taken", "Alpha", "ridge taken"},  // NONE cannot clear stored ones
    };
    for (const auto &s : steps) {
        EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
            EXPECT_EQ(shown(dlg, {IDC_ORDER_MESSAGE_TARGET, IDC_ORDER_MESSAGE}),
                      std::string(r.message_target[0] ? r.message_target : "NONE") + "," + r.message);
            ui_combo_select(dlg, IDC_ORDER_MESSAGE_TARGET, s.select);
            ui_set_text(dlg, IDC_ORDER_MESSAGE, s.message);
            press_ok(dlg);
        }}));
        EXPECT_EQ(std::string(r.message_target) + "|" + r.message, std::string(s.stored_target) + "|" + s.stored_message);
    }
    const sarge_order_record before = r;
    EXPECT_EQ(0, edit(r, {[&](HWND dlg) { ui_set_text(dlg, IDC_ORDER_NAME, "changed"); press_cancel(dlg); }}));
    EXPECT_EQ(0, std::memcmp(&r, &before, sizeof r));
    // A target the host does not list (matched case and all) shows the first host name, stored on OK.
    copy_text(r.message_target, "alpha");
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_ORDER_MESSAGE_TARGET), "HQ");
        press_ok(dlg);
    }}));
    EXPECT_STREQ(r.message_target, "HQ");
}

// A list the host will not take back is shown empty although its names were read.
TEST_F(sarge_order_test, a_refused_release_empties_its_combo_and_keeps_the_field) {
    sarge_order_record r = make_order(SARGE_ORDER_MARCH);
    host.refuse_only = &host.markers;
    host.refuse_release = true;
    lines targets{"x"};
    EXPECT_EQ(1, edit(r, {[&](HWND dlg) {
        EXPECT_EQ(shown(dlg, {IDC_ORDER_DESTINATION, IDC_ORDER_FORMATION}), ",Wedge");
        EXPECT_TRUE(ui_combo_items(dlg, IDC_ORDER_DESTINATION).empty());
        targets = ui_combo_items(dlg, IDC_ORDER_MESSAGE_TARGET);
        press_ok(dlg);
    }}));
    EXPECT_EQ(targets, (lines{"HQ", "Alpha", "NONE"}));
    EXPECT_STREQ(r.destination, "WP2");
}
