#include <cstring>
#include <string>
#include <vector>

#include "tests/support/test_host.h"

#include "editor/editor.h"
#include "ground/sarge_order.h"
#include "util/dialogs.h"

namespace {
constexpr const char *title = "Sarge Order";
enum {
    NAME = 1071, DURATION_LABEL = 1060, DURATION = 1056, DESTINATION_LABEL = 1061, DESTINATION = 1059,
    FORMATION_LABEL = 1064, FORMATION = 1058, ROTATION_LABEL = 1068, ROTATION = 1069,
    MESSAGE = 1057, TARGET = 1065
};

using names = std::vector<std::string>;

sarge_order_record make_order(int32_t type) {
    sarge_order_record r;
    std::memset(&r, 0, sizeof r);
    r.type = type;
    copy_text(r.name, "first");
    copy_text(r.destination, "WP2");
    copy_text(r.formation, "Wedge");
    return r;
}

bool same(const sarge_order_record &a, const sarge_order_record &b) { return std::memcmp(&a, &b, sizeof a) == 0; }
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
    // A combo box of the test's own for the fill operations.
    HWND make_combo() {
        return CreateWindowA("COMBOBOX", "", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100, host.main_window, nullptr,
                             GetModuleHandleA(nullptr), nullptr);
    }
};

TEST_F(sarge_order_test, not_started_shows_nothing) {
    editor_tidyup();
    sarge_order_record r = make_order(SARGE_ORDER_HALT);
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 0);
}

TEST_F(sarge_order_test, defend_disables_the_place_controls_and_clears_duration_and_rotation) {
    // Types without a name (1 does not exist) open the same way and are kept.
    for (int32_t type : {int32_t{SARGE_ORDER_DEFEND}, int32_t{SARGE_ORDER_MOBILE_DEFENCE}, 1, 99}) {
        sarge_order_record r = make_order(type);
        r.duration = 12;
        r.formation_rotation = 30;
        ui_driver d;
        d.then(title, [&](HWND dlg) {
            for (int id : {DURATION_LABEL, DURATION, DESTINATION_LABEL, DESTINATION, FORMATION_LABEL, FORMATION,
                           ROTATION_LABEL, ROTATION})
                EXPECT_FALSE(ui_enabled(dlg, id)) << id;
            for (int id : {NAME, MESSAGE, TARGET}) EXPECT_TRUE(ui_enabled(dlg, id)) << id;
            EXPECT_EQ(ui_text(dlg, NAME), "first");
            EXPECT_TRUE(ui_combo_items(dlg, DESTINATION).empty());
            ui_set_text(dlg, NAME, "hold the ridge");
            ui_command(dlg, IDOK);
        });
        EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
        EXPECT_DRIVER_OK(d);
        EXPECT_STREQ(r.name, "hold the ridge");
        EXPECT_EQ(r.duration, 0.0f);
        EXPECT_EQ(r.formation_rotation, 0.0f);
        EXPECT_STREQ(r.destination, "WP2");
        EXPECT_STREQ(r.formation, "Wedge");
        EXPECT_EQ(r.type, type);
    }
}

TEST_F(sarge_order_test, advance_and_march_offer_host_lists_and_reset_the_rotation) {
    for (int32_t type : {SARGE_ORDER_ADVANCE, SARGE_ORDER_MARCH}) {
        sarge_order_record r = make_order(type);
        r.formation_rotation = 45;
        r.duration = 7;
        ui_driver d;
        d.then(title, [&](HWND dlg) {
            EXPECT_EQ(ui_combo_items(dlg, FORMATION), (names{"Column", "Line", "Wedge"}));
            EXPECT_EQ(ui_combo_items(dlg, DESTINATION), (names{"WP1", "WP2", "WP3"}));
            EXPECT_EQ(ui_combo_selected(dlg, FORMATION), "Wedge");
            EXPECT_EQ(ui_combo_selected(dlg, DESTINATION), "WP2");
            EXPECT_EQ(ui_text(dlg, ROTATION), "45.000000");
            EXPECT_FALSE(ui_enabled(dlg, ROTATION));
            EXPECT_FALSE(ui_enabled(dlg, ROTATION_LABEL));
            EXPECT_FALSE(ui_enabled(dlg, DURATION));
            EXPECT_TRUE(ui_enabled(dlg, FORMATION));
            EXPECT_TRUE(ui_enabled(dlg, DESTINATION));
            ui_combo_select(dlg, FORMATION, "Line");
            ui_combo_select(dlg, DESTINATION, "WP3");
            ui_command(dlg, IDOK);
        });
        EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
        EXPECT_DRIVER_OK(d);
        EXPECT_STREQ(r.formation, "Line");
        EXPECT_STREQ(r.destination, "WP3");
        EXPECT_EQ(r.formation_rotation, 0.0f);
        EXPECT_EQ(r.duration, 0.0f);
    }
}

TEST_F(sarge_order_test, halt_reads_nine_characters_of_duration_and_keeps_it_on_no_number) {
    sarge_order_record r = make_order(SARGE_ORDER_HALT);
    r.duration = 5;
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_text(dlg, DURATION), "5.000000");
        EXPECT_TRUE(ui_enabled(dlg, DURATION));
        EXPECT_FALSE(ui_enabled(dlg, DESTINATION));
        EXPECT_FALSE(ui_enabled(dlg, FORMATION));
        ui_set_text(dlg, DURATION, "123.456789");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.duration, 123.45678f);
    EXPECT_STREQ(r.destination, "WP2");

    // Not a plain decimal number (the library scan would take "inf"): kept.
    ui_driver d2;
    d2.then(title, [&](HWND dlg) {
        ui_set_text(dlg, DURATION, "inf");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_EQ(r.duration, 123.45678f);
}

TEST_F(sarge_order_test, barrage_stores_duration_and_destination_but_not_formation) {
    sarge_order_record r = make_order(SARGE_ORDER_BARRAGE);
    copy_text(r.destination, "gone");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_TRUE(ui_enabled(dlg, DURATION));
        EXPECT_TRUE(ui_enabled(dlg, DESTINATION));
        EXPECT_FALSE(ui_enabled(dlg, FORMATION));
        EXPECT_FALSE(ui_enabled(dlg, FORMATION_LABEL));
        EXPECT_TRUE(ui_combo_items(dlg, FORMATION).empty());
        // A stored destination the host no longer lists shows the first one.
        EXPECT_EQ(ui_combo_selected(dlg, DESTINATION), "WP1");
        ui_set_text(dlg, DURATION, "60");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(r.duration, 60.0f);
    EXPECT_STREQ(r.destination, "WP1");
    EXPECT_STREQ(r.formation, "Wedge");
}

TEST_F(sarge_order_test, message_and_target_are_stored_only_together) {
    sarge_order_record r = make_order(SARGE_ORDER_DEFEND);
    // No target: "NONE" selected, message edit empty; a typed message with NONE is dropped.
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, TARGET), (names{"HQ", "Alpha", "NONE"}));
        EXPECT_EQ(ui_combo_selected(dlg, TARGET), "NONE");
        EXPECT_EQ(ui_text(dlg, MESSAGE), "");
        ui_set_text(dlg, MESSAGE, "done");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(r.message, "");
    EXPECT_STREQ(r.message_target, "");

    // A target with an empty message is dropped too.
    ui_driver d2;
    d2.then(title, [&](HWND dlg) {
        ui_combo_select(dlg, TARGET, "Alpha");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d2);
    EXPECT_STREQ(r.message_target, "");

    ui_driver d3;
    d3.then(title, [&](HWND dlg) {
        ui_combo_select(dlg, TARGET, "Alpha");
        ui_set_text(dlg, MESSAGE, "ridge taken");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d3);
    EXPECT_STREQ(r.message_target, "Alpha");
    EXPECT_STREQ(r.message, "ridge taken");

    // Stored ones are shown; choosing NONE cannot clear them.
    ui_driver d4;
    d4.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, TARGET), "Alpha");
        EXPECT_EQ(ui_text(dlg, MESSAGE), "ridge taken");
        ui_combo_select(dlg, TARGET, "NONE");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d4);
    EXPECT_STREQ(r.message_target, "Alpha");

    // A target the host no longer lists shows the first host name, stored on OK.
    copy_text(r.message_target, "Bravo");
    ui_driver d5;
    d5.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, TARGET), "HQ");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d5);
    EXPECT_STREQ(r.message_target, "HQ");
}

TEST_F(sarge_order_test, cancel_and_close_leave_the_record_untouched) {
    sarge_order_record r = make_order(SARGE_ORDER_ADVANCE);
    r.formation_rotation = 10;
    const sarge_order_record before = r;
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        ui_set_text(dlg, NAME, "changed");
        ui_combo_select(dlg, FORMATION, "Column");
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_TRUE(same(r, before));

    ui_driver d2;
    d2.then(title, [&](HWND dlg) { PostMessageA(dlg, WM_CLOSE, 0, 0); });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 0);
    EXPECT_DRIVER_OK(d2);
    EXPECT_TRUE(same(r, before));
}

TEST_F(sarge_order_test, refused_host_lists_leave_combos_empty_and_fields_alone) {
    host.refuse_acquire = true;
    sarge_order_record r = make_order(SARGE_ORDER_MARCH);
    copy_text(r.message_target, "HQ");
    copy_text(r.message, "old");
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_TRUE(ui_combo_items(dlg, FORMATION).empty());
        EXPECT_TRUE(ui_combo_items(dlg, DESTINATION).empty());
        EXPECT_TRUE(ui_combo_items(dlg, TARGET).empty());
        ui_set_text(dlg, MESSAGE, "new");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(r.formation, "Wedge");
    EXPECT_STREQ(r.destination, "WP2");
    EXPECT_STREQ(r.message, "old");
}

TEST_F(sarge_order_test, fill_operations_release_their_lists_and_fail_empty) {
    HWND combo = make_combo();
    EXPECT_EQ(fill_message_target_combo(combo), 1);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 2);
    EXPECT_EQ(SendMessageA(combo, CB_GETITEMDATA, 2, 0), 0);
    EXPECT_EQ(select_combo_string(combo, "Alpha"), 1);
    EXPECT_EQ(select_combo_string(combo, "alpha"), -1);
    EXPECT_EQ(select_combo_string(combo, "Alph"), -1);

    EXPECT_EQ(fill_formation_combo(combo), 1);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 0);

    // A failed release empties the combo even though the names were read.
    host.refuse_only = &host.markers;
    host.refuse_release = true;
    EXPECT_EQ(fill_destination_combo(combo), 0);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(select_combo_string(combo, "WP1"), -1);
    EXPECT_EQ(fill_formation_combo(combo), 1);
    EXPECT_EQ(host.lists_out, 0);
    DestroyWindow(combo);
}

TEST_F(sarge_order_test, long_host_names_are_cut_to_fit_the_record_fields) {
    const std::string long_name(40, 'm');
    host.markers = {long_name};
    sarge_order_record r = make_order(SARGE_ORDER_BARRAGE);
    ui_driver d;
    d.then(title, [&](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, DESTINATION), long_name.substr(0, 31));
        ui_set_text(dlg, NAME, std::string(45, 'n'));
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(edit_sarge_order(host.main_window, &r), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(std::string(r.destination), long_name.substr(0, 31));
    EXPECT_EQ(std::string(r.name), std::string(31, 'n'));
}
