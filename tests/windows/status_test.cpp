#include <cstring>
#include <string>

#include "tests/support/test_host.h"
#include "tests/windows/windows_test_util.h"

#include "editor/editor.h"
#include "windows/status.h"

namespace {
HWND status_window() { return find_thread_window(is_status_window); }

std::string text_of(int id) { return ui_text(status_window(), id); }

uint32_t bits(float f) {
    uint32_t b;
    std::memcpy(&b, &f, sizeof b);
    return b;
}
}  // namespace

class status_test : public editor_test {
protected:
    editor_state state{};

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
        ASSERT_NE(status_window(), nullptr);
        state = editor_stored_state();
        // The host's window is active while it reports; refreshes send nothing then.
        SetActiveWindow(host.main_window);
        host.notifications.clear();
    }
    void send() { editor_update(state); }
    std::string caption() { return text_of(1031); }
    std::string info() { return text_of(1032); }
};

TEST_F(status_test, shows_position_and_orientation_with_two_decimals) {
    state.position[0] = 1.5f;
    state.position[1] = 0.0f;
    state.position[2] = -2.25f;
    state.orientation[0] = 1.5707964f;
    state.orientation[2] = -0.5f;
    send();
    EXPECT_EQ(text_of(1017), "1.50");
    EXPECT_EQ(text_of(1018), "0.00");
    EXPECT_EQ(text_of(1019), "-2.25");
    EXPECT_EQ(text_of(1024), "90.00");
    EXPECT_EQ(text_of(1026), "0.00");
    EXPECT_EQ(text_of(1027), "-28.65");
    EXPECT_TRUE(host.notifications.empty());
}

TEST_F(status_test, info_line_for_objects) {
    state.info_kind = INFO_OBJECT;
    state.info.object.object_id = 42;
    send();
    EXPECT_EQ(caption(), "Info: Object ID, (Shape)");
    EXPECT_EQ(info(), "42, (?\?\?)");

    state.shape_name = "tank_t80";
    state.info.object.object_id = 4000000000u;
    send();
    EXPECT_EQ(info(), "4000000000, (tank_t80)");

    // A shape name too long for the line is cut, keeping the closing parenthesis.
    std::string long_shape(120, 's');
    state.shape_name = long_shape.c_str();
    state.info.object.object_id = 7;
    send();
    std::string cut = info();
    EXPECT_EQ(cut.size(), 79u);
    EXPECT_EQ(cut, "7, (" + std::string(74, 's') + ")");
}

TEST_F(status_test, info_line_for_named_objects) {
    host.objects[103] = {"Tank1", "Alpha"};
    host.objects[102] = {"", ""};
    host.objects[101] = {"Bridge1", ""};
    state.info_kind = INFO_OBJECT;
    state.info.object.named = 1;
    state.info.object.object_id = 103;
    send();
    EXPECT_EQ(caption(), "Info: Object name, (Group Name)");
    EXPECT_EQ(info(), "Tank1, (Alpha)");
    state.info.object.object_id = 102;
    send();
    EXPECT_EQ(info(), "NIL, (Unattached)");
    state.info.object.object_id = 101;
    send();
    EXPECT_EQ(info(), "Bridge1, (Unattached)");
    // An id the host does not know keeps the previous text under the new caption.
    state.info.object.named = 0;
    send();
    EXPECT_EQ(caption(), "Info: Object ID, (Shape)");
    EXPECT_EQ(info(), "101, (?\?\?)");
    state.info.object.named = 1;
    state.info.object.object_id = 999;
    send();
    EXPECT_EQ(caption(), "Info: Object name, (Group Name)");
    EXPECT_EQ(info(), "101, (?\?\?)");
}

TEST_F(status_test, info_line_for_terrain_and_nothing) {
    state.info_kind = INFO_TERRAIN;
    state.info.terrain.location[0] = 10.0f;
    state.info.terrain.location[1] = 20.26f;
    state.info.terrain.location[2] = 30.0f;
    state.info.terrain.normal[1] = 1.0f;
    send();
    EXPECT_EQ(caption(), "Info: (Terrain Location), (Terrain Normal)");
    EXPECT_EQ(info(), "(10.0, 20.3, 30.0), (0.00, 1.00, 0.00)");
    state.info.terrain.location[0] = 64.0f;
    state.info.terrain.location[1] = 12.34f;
    state.info.terrain.location[2] = -8.0f;
    state.info.terrain.normal[0] = 0.12f;
    state.info.terrain.normal[1] = 0.98f;
    state.info.terrain.normal[2] = -0.05f;
    send();
    EXPECT_EQ(info(), "(64.0, 12.3, -8.0), (0.12, 0.98, -0.05)");
    // Only mode 0 shows an info line.
    state.edit_mode = 3;
    send();
    EXPECT_EQ(caption(), "");
    EXPECT_EQ(info(), "");
    state.edit_mode = 0;
    send();
    EXPECT_EQ(info(), "(64.0, 12.3, -8.0), (0.12, 0.98, -0.05)");
    state.info_kind = 5;
    send();
    EXPECT_EQ(caption(), "");
    EXPECT_EQ(info(), "");
}

TEST_F(status_test, typing_stores_and_notifies_while_the_status_window_is_active) {
    HWND status = status_window();
    SetActiveWindow(status);
    ASSERT_EQ(GetActiveWindow(), status);
    editor_state &stored = editor_stored_state();

    SetDlgItemTextA(status, 1024, "9");
    SetDlgItemTextA(status, 1024, "90");
    ASSERT_EQ(host.notifications.size(), 2u);
    EXPECT_EQ(host.notifications[1].code, NOTIFY_ORIENTATION);
    EXPECT_EQ(host.notifications[1].argument, reinterpret_cast<uintptr_t>(&stored.orientation[0]));
    EXPECT_EQ(bits(stored.orientation[0]), bits(1.5707952f));
    EXPECT_EQ(bits(host.notifications[1].values[0]), bits(1.5707952f));

    SetDlgItemTextA(status, 1019, "-12.5");
    ASSERT_EQ(host.notifications.size(), 3u);
    EXPECT_EQ(host.notifications[2].code, NOTIFY_POSITION);
    EXPECT_EQ(host.notifications[2].argument, reinterpret_cast<uintptr_t>(&stored.position[0]));
    EXPECT_EQ(stored.position[2], -12.5f);
    EXPECT_EQ(host.notifications[2].values[2], -12.5f);

    // The stored words changed, so the host's own record now differs from them.
    EXPECT_EQ(editor_update(state), 1);
}

TEST_F(status_test, unparsable_typing_stores_and_notifies_nothing) {
    HWND status = status_window();
    SetActiveWindow(status);
    editor_state before = editor_stored_state();
    for (const char *text : {"-", "abc", "", " ", "."}) {
        SetDlgItemTextA(status, 1017, text);
        SetDlgItemTextA(status, 1027, text);
    }
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(std::memcmp(&before, &editor_stored_state(), sizeof before), 0);
    // A leading number is enough.
    SetDlgItemTextA(status, 1018, "4m");
    ASSERT_EQ(host.notifications.size(), 1u);
    EXPECT_EQ(editor_stored_state().position[1], 4.0f);
}

TEST_F(status_test, refresh_notifies_back_only_while_the_status_window_is_active) {
    state.position[0] = 1.234f;
    send();
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(editor_stored_state().position[0], 1.234f);

    SetActiveWindow(status_window());
    state.position[0] = 2.0f;
    send();
    // Every field is read back from its text: six notifications, values rounded.
    EXPECT_EQ(host.notifications.size(), 6u);
    state.position[1] = 5.678f;
    host.notifications.clear();
    send();
    EXPECT_EQ(host.notifications.size(), 6u);
    EXPECT_EQ(editor_stored_state().position[1], 5.68f);
}

TEST_F(status_test, cursor_message_activates_from_the_host_window) {
    HWND status = status_window();
    ASSERT_EQ(GetActiveWindow(), host.main_window);
    SetCursor(arrow_cursor());
    SendMessageA(status, WM_SETCURSOR, reinterpret_cast<WPARAM>(status), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetActiveWindow(), status);
    EXPECT_TRUE(host.notifications.empty());
}

TEST_F(status_test, position_is_restored_and_saved_through_the_settings_file) {
    ASSERT_EQ(editor_tidyup(), 1);
    host.write_setting("Status", "Position", "420,310");
    ASSERT_EQ(start_editor(), 1);
    RECT r;
    GetWindowRect(status_window(), &r);
    EXPECT_EQ(r.left, 420);
    EXPECT_EQ(r.top, 310);
    EXPECT_TRUE(IsWindowVisible(status_window()));
    SetWindowPos(status_window(), nullptr, 111, 99, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("Status", "Position"), "111,99");
    EXPECT_EQ(status_window(), nullptr);
}
