// Edit Rally Point Details through the real dialog: ARSP locations change at
// once, the name and position on OK, and the record reaches the host byte by
// byte.
#include "air/rally_point.h"
#include "tests/air/air_fixture.h"

namespace {
// The ARSP list with its selection, and the two ARSP edits.
std::string arsp(HWND dlg) { return listed(dlg, IDC_RP_ARSP) + "|" + shown(dlg, {IDC_RP_ARSP_X, IDC_RP_ARSP_Z}); }
// Update on a line selected quietly: its notification would load the edits after the typing.
step update(const char *x, const char *z, int line) {
    return [=](HWND dlg) {
        SendDlgItemMessageA(dlg, IDC_RP_ARSP, LB_SETCURSEL, static_cast<WPARAM>(line), 0);
        typing({{IDC_RP_ARSP_X, x}, {IDC_RP_ARSP_Z, z}}, press(IDC_RP_UPDATE))(dlg);
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
        point.arsp_locations = host.held_entries<arsp_location>({});
    }
    int edit(std::initializer_list<step> steps) {
        return drive("Edit Rally Point Details", steps, [&] { return editor_window(REQUEST_RALLY_POINT, dlist_value(&point), 0); });
    }
};

TEST_F(rally_point_test, a_designers_whole_edit_reaches_the_record_byte_by_byte) {
    rally_point_record expected = point;
    lines seen;
    EXPECT_EQ(1, edit({
        [](HWND dlg) { EXPECT_EQ(shown(dlg, {IDC_RP_NAME, IDC_RP_X, IDC_RP_Z}), "RP North,100.000,-5.000"); },
        typing({{IDC_RP_X, "500"}}, press(IDC_RP_ADD)),  // not stored yet: Add starts from the record
        press(IDC_RP_ADD),
        press(IDC_RP_ADD),
        noting(seen, arsp, picking(IDC_RP_ARSP, 1, press(IDC_RP_DELETE))),
        noting(seen, arsp, press(IDC_RP_ADD)),  // three in the list again: x + 6, like the third
        update("12.5m", " -3", 0),
        noting(seen, arsp, update("1", "1", -1)),  // no line selected: stores nothing, but refills
        picking(IDC_RP_ARSP, -1, press(IDC_RP_DELETE)),
        // Any notification of the list loads the selection, a double click too.
        [](HWND dlg) { SendDlgItemMessageA(dlg, IDC_RP_ARSP, LB_SETCURSEL, 1, 0), ui_list_double_click(dlg, IDC_RP_ARSP); },
        noting(seen, arsp, typing({{IDC_RP_NAME, "RP South"}, {IDC_RP_X, "250.5"}, {IDC_RP_Z, "abc"}}, press(IDOK))),
    }));
    // Add selects the new line; Delete selects line 0 and leaves the edits
    // as they were; Update leaves no line selected.
    EXPECT_EQ(seen, (lines{" 102.0   -5.0/ 104.0   -5.0/> 106.0   -5.0| 106.0,  -5.0",
                           "> 102.0   -5.0/ 106.0   -5.0| 104.0,  -5.0",
                           "  12.5   -3.0/ 106.0   -5.0/ 106.0   -5.0|12.5m, -3",
                           "  12.5   -3.0/> 106.0   -5.0/ 106.0   -5.0| 106.0,  -5.0"}));
    std::memcpy(expected.name, "RP South", 9);
    expected.x = 250.5f;
    expected.cancelled = 0;
    EXPECT_EQ(bytes_of({point}), bytes_of({expected}));
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations),
              bytes_of<arsp_location>({{12.5f, 7, -3}, {106, 7, -5}, {106, 7, -5}}));
}

// Cancel and the close box only mark the record; added locations stay, their
// x summed in single precision: from 2^25 a step of 2 rounds back each time,
// while a wider sum would land further on.
TEST_F(rally_point_test, cancel_keeps_added_locations_summed_in_single_precision) {
    point.x = 33554432.0f;
    point.arsp_locations = host.held_entries<arsp_location>({{1, 2, 3}});
    rally_point_record before = point;
    before.cancelled = 1;
    for (bool close : {false, true}) {
        point.cancelled = 0;
        EXPECT_EQ(0, edit({typing({{IDC_RP_NAME, "changed"}}, press(IDC_RP_ADD)), [=](HWND dlg) {
                               close ? close_box(dlg) : ui_command(dlg, IDCANCEL);
                           }}));
        EXPECT_EQ(bytes_of({point}), bytes_of({before}));
    }
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations),
              bytes_of<arsp_location>({{1, 2, 3}, {33554432.0f, 7, -5}, {33554432.0f, 7, -5}}));
}

// Update takes both numbers or neither; no dialog opens without a record.
TEST_F(rally_point_test, update_needs_both_numbers_and_nothing_opens_without_a_record) {
    point.arsp_locations = host.held_entries<arsp_location>({{1, 2, 3}});
    lines seen;
    EXPECT_EQ(1, edit({noting(seen, arsp, update("5", "nan", 0)),
                       noting(seen, arsp, update("", "5", 0)),  // the list not even refilled
                       noting(seen, arsp, press(IDOK))}));
    EXPECT_EQ(seen, (lines{">   1.0    3.0|   1.0,   3.0", ">   1.0    3.0|5,nan", ">   1.0    3.0|,5"}));
    EXPECT_EQ(entries_of<arsp_location>(point.arsp_locations), bytes_of<arsp_location>({{1, 2, 3}}));
    expect_refused(REQUEST_RALLY_POINT, edit_rally_point, rally_point_tidyup, rally_point_start, point);
}
