#include <algorithm>

#include "resources/window_ids.h"
#include "tests/windows/windows_test_util.h"
#include "windows/cursor.h"
#include "windows/status.h"
#include "windows/toolbar.h"

namespace {
const int button_of_mode[5] = {IDC_TB_MODE0, IDC_TB_MODE1, IDC_TB_MODE2, IDC_TB_MODE3, IDC_TB_MODE4};

HWND toolbar() { return find_thread_window(is_toolbar_window); }

// The one mode whose button is down; -1 for none, -2 for several.
int pressed_mode() {
    int found = -1;
    for (int mode = 0; mode < 5; ++mode)
        if (SendDlgItemMessageA(toolbar(), button_of_mode[mode], BM_GETCHECK, 0, 0) == BST_CHECKED)
            found = found == -1 ? mode : -2;
    return found;
}

int mode_notifications(const test_host &host, int mode) {
    return int(std::count_if(host.notifications.begin(), host.notifications.end(), [&](const notification &n) {
        return n.code == NOTIFY_MODE && n.argument == uintptr_t(mode);
    }));
}
}  // namespace

TEST_F(editor_test, toolbar_presses_the_initial_mode_before_init_returns_and_clicks_notify) {
    bool returned = false, inside = false;
    host.on_notify = [&](const notification &n) { inside = n.code == NOTIFY_MODE && n.argument == 2 && !returned; };
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 2; }), 1);
    returned = true;
    EXPECT_TRUE(inside);
    EXPECT_EQ(pressed_mode(), 2);
    EXPECT_NE(is_editor_window(toolbar()), 0);
    for (int id : button_of_mode) EXPECT_NE(SendDlgItemMessageA(toolbar(), id, BM_GETIMAGE, IMAGE_ICON, 0), 0);
    // Started again after a tidy-up, it presses again.
    ASSERT_EQ(editor_tidyup(), 1);
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 2; }), 1);
    EXPECT_EQ(mode_notifications(host, 2), 2);
    EXPECT_EQ(pressed_mode(), 2);

    PostMessageA(GetDlgItem(toolbar(), IDC_TB_MODE4), BM_CLICK, 0, 0);
    ASSERT_TRUE(pump_until([&] { return mode_notifications(host, 4) == 1; }));
    EXPECT_EQ(pressed_mode(), 4);
    // A click leaves the last pressed mode alone: the host's report presses again.
    EXPECT_EQ(editor_update(state_with_mode(4, 1)), 1);
    EXPECT_EQ(mode_notifications(host, 4), 2);
    PostMessageA(GetDlgItem(toolbar(), IDC_TB_MODE3), BM_CLICK, 0, 0);
    EXPECT_TRUE(pump_until([&] { return mode_notifications(host, 3) == 1; }));
}

TEST_F(editor_test, toolbar_sync_and_mode_cursors) {
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 1; }), 1);
    EXPECT_EQ(GetCursor(), editor_cursor(113));
    host.notifications.clear();
    EXPECT_EQ(toolbar_sync_mode(1), 0);  // the last pressed mode
    EXPECT_EQ(toolbar_sync_mode(5), 0);
    EXPECT_EQ(toolbar_sync_mode(-1), 0);
    // A sub-mode change swaps the cursor only.
    EXPECT_EQ(editor_update(state_with_mode(1, 2)), 1);
    EXPECT_EQ(GetCursor(), editor_cursor(112));
    EXPECT_TRUE(host.notifications.empty());
    SetCursor(arrow_cursor());
    editor_win_messages(0, WM_MOUSEMOVE);
    EXPECT_EQ(GetCursor(), arrow_cursor());
    editor_win_messages(0, WM_SETCURSOR);
    EXPECT_EQ(GetCursor(), editor_cursor(112));
    // Mode 7: no button, the arrow.
    EXPECT_EQ(editor_update(state_with_mode(7, 1)), 1);
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(pressed_mode(), 1);
    EXPECT_EQ(GetCursor(), arrow_cursor());

    const int table[][3] = {{0, 1, 104}, {0, 2, 105},    {1, 1, 113},    {1, 2, 112}, {2, 1, 118},
                            {2, 2, 119}, {2, 4097, 120}, {2, 4098, 121}, {3, 1, 123}, {4, 1, 124},
                            {3, 2, 0},   {7, 1, 0},      {-1, 1, 0},     {0, 4097, 0}};  // 0: the arrow
    for (const auto &row : table) {
        SetCursor(nullptr);
        EXPECT_EQ(cursor_set_mode(row[0], row[1]), row[2] ? 1 : 0) << row[0] << "/" << row[1];
        EXPECT_EQ(GetCursor(), row[2] ? editor_cursor(row[2]) : arrow_cursor()) << row[0] << "/" << row[1];
    }
    editor_tidyup();
    EXPECT_EQ(GetCursor(), arrow_cursor());
}

TEST_F(editor_test, toolbar_and_status_positions_go_through_the_settings_file) {
    host.write_setting("ToolBar", "Position", "210,160");
    host.write_setting("Status", "Position", "420,310");
    ASSERT_EQ(start_editor(), 1);
    HWND status = find_thread_window(is_status_window);
    RECT t, s;
    GetWindowRect(toolbar(), &t);
    GetWindowRect(status, &s);
    EXPECT_EQ(t.left * 1000 + t.top, 210160);
    EXPECT_EQ(s.left * 1000 + s.top, 420310);
    SetWindowPos(toolbar(), nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SetWindowPos(status, nullptr, 111, 99, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "333,222");
    EXPECT_EQ(host.read_setting("Status", "Position"), "111,99");

    // Without a settings file nothing is read or written.
    ASSERT_EQ(start_editor([](editor_setup &s) { s.settings_file = nullptr; }), 1);
    GetWindowRect(toolbar(), &t);
    EXPECT_NE(t.left * 1000 + t.top, 333222);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "333,222");
}

TEST_F(editor_test, toolbar_tolerates_an_echoing_host) {
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 1; }), 1);
    // A host that reports the chosen mode back from inside the notification.
    host.on_notify = [&](const notification &n) {
        if (n.code == NOTIFY_MODE && host.notifications.size() < 10)
            editor_update(state_with_mode(static_cast<int>(n.argument), 1));
    };
    EXPECT_EQ(editor_update(state_with_mode(2, 1)), 1);
    EXPECT_EQ(mode_notifications(host, 2), 1);
    EXPECT_EQ(GetCursor(), editor_cursor(118));
    // A host that answers with another mode: the mode it answered is pressed
    // inside, but the mode being synchronised stays the last pressed one.
    host.on_notify = [&](const notification &n) {
        if (n.code == NOTIFY_MODE && n.argument == 3) editor_update(state_with_mode(4, 1));
    };
    EXPECT_EQ(editor_update(state_with_mode(3, 1)), 1);
    EXPECT_EQ(mode_notifications(host, 4), 1);
    EXPECT_EQ(toolbar_sync_mode(3), 0);
}

TEST_F(editor_test, toolbar_and_status_take_activation_only_from_editor_windows) {
    ASSERT_EQ(start_editor(), 1);
    HWND bar = toolbar(), status = find_thread_window(is_status_window);
    auto cursor_message = [](HWND w) { SendMessageA(w, WM_SETCURSOR, (WPARAM)w, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)); };
    SetActiveWindow(host.main_window);
    cursor_message(bar);
    EXPECT_EQ(GetActiveWindow(), bar);
    cursor_message(status);
    EXPECT_EQ(GetActiveWindow(), status);
    HWND other = CreateWindowA("STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(other);
    cursor_message(bar);
    cursor_message(status);
    EXPECT_EQ(GetActiveWindow(), other);
    DestroyWindow(other);
}
