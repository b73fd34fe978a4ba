#include <cstring>

#include "resources/window_ids.h"
#include "tests/windows/windows_test_util.h"
#include "windows/status.h"

class status_test : public editor_test {
protected:
    editor_state state{};
    HWND status = nullptr;

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
        status = find_thread_window(is_status_window);
        ASSERT_NE(status, nullptr);
        state = editor_stored_state();
        // The host's window is active while it reports: refreshes send nothing back.
        SetActiveWindow(host.main_window);
        host.notifications.clear();
    }
    // Sends the state; the info caption and text, joined by " | ".
    std::string show() {
        editor_update(state);
        return ui_text(status, IDC_ST_INFO_CAPTION) + " | " + ui_text(status, IDC_ST_INFO_TEXT);
    }
};

TEST_F(status_test, shows_position_orientation_and_info_lines) {
    const float position[3] = {1.5f, 0.0f, -2.25f}, orientation[3] = {1.5707964f, 0.0f, -0.5f};
    std::memcpy(state.position, position, sizeof position);
    std::memcpy(state.orientation, orientation, sizeof orientation);
    state.info_kind = INFO_OBJECT;
    state.info.object.object_id = 42;
    EXPECT_EQ(show(), "Info: Object ID, (Shape) | 42, (?\?\?)");
    const int ids[] = {IDC_ST_POSITION_X,    IDC_ST_POSITION_Y,    IDC_ST_POSITION_Z,
                       IDC_ST_ORIENTATION_X, IDC_ST_ORIENTATION_Y, IDC_ST_ORIENTATION_Z};
    const char *texts[] = {"1.50", "0.00", "-2.25", "90.00", "0.00", "-28.65"};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(ui_text(status, ids[i]), texts[i]);

    // A shape name too long for the line is cut, keeping the closing parenthesis.
    std::string shape(120, 's');
    state.shape_name = shape.c_str();
    state.info.object.object_id = 4000000000u;
    EXPECT_EQ(show(), "Info: Object ID, (Shape) | 4000000000, (" + std::string(65, 's') + ")");

    host.objects[103] = {"Tank1", "Alpha"};
    host.objects[102] = {"", ""};
    state.info.object.named = 1;
    state.info.object.object_id = 103;
    EXPECT_EQ(show(), "Info: Object name, (Group Name) | Tank1, (Alpha)");
    state.info.object.object_id = 102;
    EXPECT_EQ(show(), "Info: Object name, (Group Name) | NIL, (Unattached)");
    state.info.object.named = 0;
    state.shape_name = "tank_t80";
    EXPECT_EQ(show(), "Info: Object ID, (Shape) | 102, (tank_t80)");
    // An object the host does not know keeps the previous text.
    state.info.object.named = 1;
    state.info.object.object_id = 999;
    EXPECT_EQ(show(), "Info: Object name, (Group Name) | 102, (tank_t80)");

    state.info_kind = INFO_TERRAIN;
    const float terrain[6] = {10.0f, 20.26f, -30.0f, 0.0f, 1.0f, -0.05f};
    std::memcpy(&state.info, terrain, sizeof terrain);
    EXPECT_EQ(show(), "Info: (Terrain Location), (Terrain Normal) | (10.0, 20.3, -30.0), (0.00, 1.00, -0.05)");
    state.edit_mode = 3;  // only mode 0 has an info line
    EXPECT_EQ(show(), " | ");
    state.edit_mode = 0;
    state.info_kind = 5;
    EXPECT_EQ(show(), " | ");
    for (const notification &n : host.notifications) EXPECT_EQ(n.code, NOTIFY_MODE);
}

TEST_F(status_test, typing_stores_and_notifies_while_active) {
    SetActiveWindow(status);
    ASSERT_EQ(GetActiveWindow(), status);
    editor_state &stored = editor_stored_state();
    for (const char *text : {"-", "abc", "", "."}) SetDlgItemTextA(status, IDC_ST_POSITION_X, text);
    EXPECT_TRUE(host.notifications.empty());
    EXPECT_EQ(std::memcmp(&stored, &state, sizeof state), 0);

    SetDlgItemTextA(status, IDC_ST_ORIENTATION_X, "9");
    SetDlgItemTextA(status, IDC_ST_ORIENTATION_X, "90");
    ASSERT_EQ(host.notifications.size(), 2u);
    EXPECT_EQ(host.notifications[1].code, NOTIFY_ORIENTATION);
    EXPECT_EQ(host.notifications[1].argument, reinterpret_cast<uintptr_t>(&stored.orientation[0]));
    const float expected = 1.5707952f;
    EXPECT_EQ(std::memcmp(&stored.orientation[0], &expected, 4), 0);

    SetDlgItemTextA(status, IDC_ST_POSITION_Z, "-12.5m");
    ASSERT_EQ(host.notifications.size(), 3u);
    EXPECT_EQ(host.notifications[2].code, NOTIFY_POSITION);
    EXPECT_EQ(host.notifications[2].argument, reinterpret_cast<uintptr_t>(&stored.position[0]));
    EXPECT_EQ(host.notifications[2].values[2], -12.5f);

    // While active, a refresh reads every field back: six notifications, values rounded.
    host.notifications.clear();
    state.position[1] = 5.678f;
    show();
    EXPECT_EQ(host.notifications.size(), 6u);
    EXPECT_EQ(stored.position[1], 5.68f);
}
