// Edit Rally Point Details through the real dialog: ARSP locations change at
// once, the name and position on OK, and the record reaches the host byte by
// byte.
#include "air/rally_point.h"
#include "tests/air/air_fixture.h"

namespace {
std::string edits(HWND dlg) { return ui_text(dlg, IDC_RP_ARSP_X) + "|" + ui_text(dlg, IDC_RP_ARSP_Z); }
ui_driver::action click(int button) {
    return [=](HWND dlg) { ui_command(dlg, button); };
}
ui_driver::action type_and_click(const char *x, const char *z, int button) {
    return [=](HWND dlg) {
        ui_set_text(dlg, IDC_RP_ARSP_X, x);
        ui_set_text(dlg, IDC_RP_ARSP_Z, z);
        ui_command(dlg, button);
    };
}
}  // namespace

class rally_point_test : public air_test {
protected:
    rally_point_record point;

    void SetUp() override {
        air_test::SetUp();
        std::memset(&point, 0xEE, sizeof point);
        std::strcpy(point.name, "RP North");
        point.x = 100, point.y = 7, point.z = -5;
        point.arsp_locations = list_of<arsp_location>({});
    }
    int edit(std::initializer_list<ui_driver::action> steps) {
        return drive("Edit Rally Point Details", steps,
                     [&] { return editor_window(REQUEST_RALLY_POINT, reinterpret_cast<uintptr_t>(&point), 0); });
    }
};

TEST_F(rally_point_test, a_designers_whole_edit_reaches_the_record_byte_by_byte) {
    rally_point_record expected = point;
    EXPECT_EQ(1, edit({
        [](HWND dlg) {
            EXPECT_EQ(ui_text(dlg, IDC_RP_NAME) + "|" + ui_text(dlg, IDC_RP_X) + "|" + ui_text(dlg, IDC_RP_Z), "RP North|100.000|-5.000");
            EXPECT_EQ(edits(dlg), "|");
            ui_set_text(dlg, IDC_RP_X, "500");  // not stored yet: Add starts from the record
            ui_command(dlg, IDC_RP_ADD);
        },
        [](HWND dlg) {
            EXPECT_EQ(edits(dlg), " 102.0|  -5.0");
            ui_command(dlg, IDC_RP_ADD);
        },
        click(IDC_RP_ADD),
        [](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_RP_ARSP), (names{" 102.0   -5.0", " 104.0   -5.0", " 106.0   -5.0"}));
            EXPECT_EQ(ui_list_selected(dlg, IDC_RP_ARSP), std::vector<int>{2});
            ui_list_select_index(dlg, IDC_RP_ARSP, 1);
            ui_command(dlg, IDC_RP_DELETE);
        },
        [](HWND dlg) {
            // Line 0 selected again; the edits keep the deleted location's text.
            EXPECT_EQ(ui_list_selected(dlg, IDC_RP_ARSP), std::vector<int>{0});
            EXPECT_EQ(edits(dlg), " 104.0|  -5.0");
            ui_command(dlg, IDC_RP_ADD);  // three in the list again: x + 6, like the third
        },
        [](HWND dlg) { ui_list_select_index(dlg, IDC_RP_ARSP, 0); },
        type_and_click("12.5m", " -3", IDC_RP_UPDATE),
        [](HWND dlg) {
            EXPECT_EQ(ui_list_items(dlg, IDC_RP_ARSP), (names{"  12.5   -3.0", " 106.0   -5.0", " 106.0   -5.0"}));
            EXPECT_EQ(ui_list_selected(dlg, IDC_RP_ARSP), std::vector<int>{});
            type_and_click("1", "1", IDC_RP_UPDATE)(dlg);  // no line selected: stores nothing
        },
        click(IDC_RP_DELETE),  // no line selected: nothing
        [](HWND dlg) {
            // Any notification of the list loads the selection, a double click too.
            SendDlgItemMessageA(dlg, IDC_RP_ARSP, LB_SETCURSEL, 1, 0);
            ui_list_double_click(dlg, IDC_RP_ARSP);
        },
        [](HWND dlg) {
            EXPECT_EQ(edits(dlg), " 106.0|  -5.0");
            ui_set_text(dlg, IDC_RP_NAME, "RP South");
            ui_set_text(dlg, IDC_RP_X, "250.5");
            ui_set_text(dlg, IDC_RP_Z, "abc");
            ui_command(dlg, IDOK);
        },
    }));
    std::memcpy(expected.name, "RP South", 9);
    expected.x = 250.5f;
    expected.cancelled = 0;
    EXPECT_EQ(bytes_of(point), bytes_of(expected));
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations),
              entries_of<arsp_location>(list_of<arsp_location>({{12.5f, 7, -3}, {106, 7, -5}, {106, 7, -5}})));
}

TEST_F(rally_point_test, cancel_keeps_added_locations_summed_in_single_precision) {
    // From 2^25 a step of 2 rounds back each time in single precision; summed
    // wider it would land on 2^25 + 4.
    point.x = 33554432.0f;
    point.arsp_locations = list_of<arsp_location>({{1, 2, 3}});
    rally_point_record before = point;
    before.cancelled = 1;
    EXPECT_EQ(0, edit({[](HWND dlg) {
                           ui_set_text(dlg, IDC_RP_NAME, "changed");
                           ui_command(dlg, IDC_RP_ADD);
                       },
                       click(IDCANCEL)}));
    EXPECT_EQ(bytes_of(point), bytes_of(before));
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations), entries_of<arsp_location>(list_of<arsp_location>({{1, 2, 3}, {33554432.0f, 7, -5}})));
    point.cancelled = 0;
    EXPECT_EQ(0, edit({[](HWND dlg) { PostMessageA(dlg, WM_CLOSE, 0, 0); }}));
    EXPECT_EQ(point.cancelled, 1u);
}

TEST_F(rally_point_test, refused_numbers_and_failing_hosts_change_nothing) {
    point.arsp_locations = list_of<arsp_location>({{1, 2, 3}});
    const names locations = entries_of<arsp_location>(point.arsp_locations);
    EXPECT_EQ(1, edit({failing(0, click(IDC_RP_ADD)),  // no location
                       failing(1, click(IDC_RP_ADD)),  // a location, but no node for it
                       failing(-1, type_and_click("5", "nan", IDC_RP_UPDATE)),
                       [](HWND dlg) {
                           EXPECT_EQ(ui_list_selected(dlg, IDC_RP_ARSP), std::vector<int>{0});  // not even refilled
                           type_and_click("", "5", IDC_RP_UPDATE)(dlg);
                       },
                       [&](HWND dlg) {
                           EXPECT_EQ(ui_list_items(dlg, IDC_RP_ARSP), names{"   1.0    3.0"});
                           EXPECT_EQ(nested_call([&] { return edit_rally_point(&point); }), 0);
                           ui_set_text(dlg, IDC_RP_X, "1e39");
                           ui_set_text(dlg, IDC_RP_Z, "0x10");  // its leading 0
                           ui_command(dlg, IDOK);
                       }}));
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations), locations);
    EXPECT_EQ(point.x, 100.0f);
    EXPECT_EQ(point.z, 0.0f);
    expect_refused(REQUEST_RALLY_POINT, edit_rally_point, rally_point_tidyup, rally_point_start, point);
}
