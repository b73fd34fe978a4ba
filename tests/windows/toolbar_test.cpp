#include "tests/support/test_host.h"
#include "tests/windows/windows_test_util.h"

#include "editor/editor.h"
#include "windows/cursor.h"
#include "windows/toolbar.h"

namespace {
// Button ids by mode: the fourth button is mode 4, the fifth mode 3.
const int button_of_mode[5] = {1005, 1006, 1009, 1008, 1007};

HWND toolbar() { return find_thread_window(is_toolbar_window); }

int pressed_mode(HWND bar) {
    int found = -1;
    for (int mode = 0; mode < 5; ++mode) {
        if (SendDlgItemMessageA(bar, button_of_mode[mode], BM_GETCHECK, 0, 0) == BST_CHECKED) {
            if (found >= 0) return -2;  // two buttons down
            found = mode;
        }
    }
    return found;
}

int mode_notifications(const test_host &host, int mode) {
    int n = 0;
    for (const notification &note : host.notifications)
        if (note.code == NOTIFY_MODE && note.argument == static_cast<uintptr_t>(mode)) ++n;
    return n;
}

editor_state state_with_mode(int mode, int submode) {
    editor_state s = editor_stored_state();
    s.edit_mode = mode;
    s.edit_submode = submode;
    return s;
}
}  // namespace

class toolbar_test : public editor_test {};

TEST_F(toolbar_test, initial_mode_is_pressed_and_notified_before_init_returns) {
    bool init_returned = false;
    bool notified_inside_init = false;
    host.on_notify = [&](const notification &n) {
        if (n.code == NOTIFY_MODE && n.argument == 2) notified_inside_init = !init_returned;
    };
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 2; }), 1);
    init_returned = true;
    EXPECT_TRUE(notified_inside_init);
    EXPECT_EQ(mode_notifications(host, 2), 1);
    HWND bar = toolbar();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(IsWindowVisible(bar));
    EXPECT_EQ(pressed_mode(bar), 2);
    EXPECT_NE(is_editor_window(bar), 0);
    // Every button carries its icon.
    for (int id : button_of_mode) EXPECT_NE(SendDlgItemMessageA(bar, id, BM_GETIMAGE, IMAGE_ICON, 0), 0) << id;
}

TEST_F(toolbar_test, designer_click_notifies_and_the_host_report_clicks_again) {
    ASSERT_EQ(start_editor(), 1);
    HWND bar = toolbar();
    host.notifications.clear();
    // The fourth button from the top is mode 4.
    PostMessageA(GetDlgItem(bar, 1007), BM_CLICK, 0, 0);
    ASSERT_TRUE(pump_until([&] { return mode_notifications(host, 4) == 1; }));
    EXPECT_EQ(pressed_mode(bar), 4);
    // The click did not change the last pressed mode: the host's report of
    // mode 4 presses the button once more.
    EXPECT_EQ(editor_update(state_with_mode(4, 1)), 1);
    EXPECT_EQ(mode_notifications(host, 4), 2);
    EXPECT_EQ(GetCursor(), editor_cursor(124));
    // And the fifth button is mode 3.
    PostMessageA(GetDlgItem(bar, 1008), BM_CLICK, 0, 0);
    EXPECT_TRUE(pump_until([&] { return mode_notifications(host, 3) == 1; }));
}

TEST_F(toolbar_test, sync_mode_presses_only_changes_in_range) {
    ASSERT_EQ(start_editor(), 1);
    HWND bar = toolbar();
    host.notifications.clear();
    EXPECT_EQ(toolbar_sync_mode(0), 0);  // already the last pressed
    EXPECT_EQ(toolbar_sync_mode(5), 0);
    EXPECT_EQ(toolbar_sync_mode(-1), 0);
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(toolbar_sync_mode(3), 1);
    EXPECT_EQ(pressed_mode(bar), 3);
    EXPECT_EQ(mode_notifications(host, 3), 1);
    // Mode 7 from the host: no button, the standard arrow.
    host.notifications.clear();
    EXPECT_EQ(editor_update(state_with_mode(7, 1)), 1);
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(pressed_mode(bar), 3);
    EXPECT_EQ(GetCursor(), arrow_cursor());
}

TEST_F(toolbar_test, submode_change_swaps_the_cursor_without_a_notification) {
    ASSERT_EQ(start_editor([](editor_setup &s) {
                  s.state.edit_mode = 1;
                  s.state.edit_submode = 1;
              }),
              1);
    EXPECT_EQ(GetCursor(), editor_cursor(113));
    host.notifications.clear();
    EXPECT_EQ(editor_update(state_with_mode(1, 2)), 1);
    EXPECT_EQ(GetCursor(), editor_cursor(112));
    EXPECT_TRUE(host.notifications.empty());
    // The platform resets the cursor; a cursor message puts the mode cursor back.
    SetCursor(arrow_cursor());
    EXPECT_EQ(editor_win_messages(0, WM_MOUSEMOVE), 0);
    EXPECT_EQ(GetCursor(), arrow_cursor());
    EXPECT_EQ(editor_win_messages(0, WM_SETCURSOR), 0);
    EXPECT_EQ(GetCursor(), editor_cursor(112));
    EXPECT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(GetCursor(), arrow_cursor());
}

TEST_F(toolbar_test, cursor_for_every_mode_and_submode) {
    ASSERT_EQ(start_editor(), 1);
    struct pair_cursor {
        int mode, submode, id;
    };
    const pair_cursor table[] = {{0, 1, 104},    {0, 2, 105},    {1, 1, 113}, {1, 2, 112},
                                 {2, 1, 118},    {2, 2, 119},    {2, 4097, 120}, {2, 4098, 121},
                                 {3, 1, 123},    {4, 1, 124}};
    for (const pair_cursor &p : table) {
        SetCursor(nullptr);
        EXPECT_EQ(cursor_set_mode(p.mode, p.submode), 1) << p.mode << "/" << p.submode;
        EXPECT_EQ(GetCursor(), editor_cursor(p.id)) << p.mode << "/" << p.submode;
    }
    const pair_cursor none[] = {{3, 2, 0}, {7, 1, 0}, {-1, 1, 0}, {0, 4097, 0}, {4, 0, 0}};
    for (const pair_cursor &p : none) {
        EXPECT_EQ(cursor_set_mode(p.mode, p.submode), 0) << p.mode << "/" << p.submode;
        EXPECT_EQ(GetCursor(), arrow_cursor());
        // No mode cursor held: a refresh leaves the arrow.
        EXPECT_EQ(cursor_refresh(), 1);
        EXPECT_EQ(GetCursor(), arrow_cursor());
    }
}

TEST_F(toolbar_test, position_is_restored_and_saved_through_the_settings_file) {
    host.write_setting("ToolBar", "Position", "210,160");
    ASSERT_EQ(start_editor(), 1);
    RECT r;
    GetWindowRect(toolbar(), &r);
    EXPECT_EQ(r.left, 210);
    EXPECT_EQ(r.top, 160);
    SetWindowPos(toolbar(), nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "333,222");
}

TEST_F(toolbar_test, without_a_settings_file_nothing_is_read_or_written) {
    host.write_setting("ToolBar", "Position", "210,160");
    ASSERT_EQ(start_editor([](editor_setup &s) { s.settings_file = nullptr; }), 1);
    RECT r;
    GetWindowRect(toolbar(), &r);
    EXPECT_FALSE(r.left == 210 && r.top == 160);
    SetWindowPos(toolbar(), nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "210,160");
}

TEST_F(toolbar_test, a_new_toolbar_after_tidyup_presses_the_same_mode_again) {
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 1; }), 1);
    EXPECT_EQ(mode_notifications(host, 1), 1);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(toolbar(), nullptr);
    ASSERT_EQ(start_editor([](editor_setup &s) { s.state.edit_mode = 1; }), 1);
    EXPECT_EQ(mode_notifications(host, 1), 2);
    EXPECT_EQ(pressed_mode(toolbar()), 1);
}

TEST_F(toolbar_test, cursor_message_over_the_toolbar_takes_activation_only_from_editor_windows) {
    ASSERT_EQ(start_editor(), 1);
    HWND bar = toolbar();
    SetActiveWindow(host.main_window);
    ASSERT_EQ(GetActiveWindow(), host.main_window);
    SendMessageA(bar, WM_SETCURSOR, reinterpret_cast<WPARAM>(bar), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetActiveWindow(), bar);

    // Another window (a dialog, say) keeps the activation.
    HWND other = CreateWindowA("STATIC", "other", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                               nullptr, nullptr);
    SetActiveWindow(other);
    ASSERT_EQ(GetActiveWindow(), other);
    SendMessageA(bar, WM_SETCURSOR, reinterpret_cast<WPARAM>(bar), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetActiveWindow(), other);
    DestroyWindow(other);
}

TEST_F(toolbar_test, a_host_answering_the_mode_at_once_is_notified_once) {
    ASSERT_EQ(start_editor(), 1);
    // The host adopts the chosen mode and reports it back from inside the notification.
    host.on_notify = [&](const notification &n) {
        if (n.code != NOTIFY_MODE || host.notifications.size() > 10) return;
        editor_update(state_with_mode(static_cast<int>(n.argument), 1));
    };
    host.notifications.clear();
    EXPECT_EQ(editor_update(state_with_mode(2, 1)), 1);
    EXPECT_EQ(mode_notifications(host, 2), 1);
    EXPECT_EQ(editor_stored_state().edit_mode, 2);
    EXPECT_EQ(GetCursor(), editor_cursor(118));
}
