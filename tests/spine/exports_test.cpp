// The six exports of the built editor.dll, loaded as a host loads it (their
// ordinals are checked by check_imports.cmake).
#include <string>

#include "host/editor_exports.h"
#include "tests/support/editor_test.h"

namespace {
class dll_test : public editor_test, protected editor_exports {
protected:
    void SetUp() override {
        editor_test::SetUp();
        ASSERT_TRUE(load()) << "editor.dll with all six exports must be beside the test program";
    }
    void TearDown() override {
        if (tidyup) tidyup();
        unload();
        editor_test::TearDown();
    }
    // Every export but editor_init answers 0 and shows nothing.
    void expect_all_inert() {
        ui_driver driver(1000);
        editor_state state{};
        state.edit_mode = 3;
        EXPECT_EQ(update(state), 0);
        EXPECT_EQ(window(REQUEST_CONFIRM_QUIT, 0, 0), 0);
        EXPECT_EQ(window(REQUEST_MESSAGE_BOX, reinterpret_cast<uintptr_t>("x"), MESSAGE_ERROR), 0);
        EXPECT_EQ(win_messages(0, WM_SETCURSOR), 0);
        EXPECT_EQ(is_editor(host.main_window), 0);
        EXPECT_EQ(tidyup(), 0);
        EXPECT_DRIVER_OK(driver);
        EXPECT_TRUE(host.notifications.empty());
    }
};
}  // namespace

TEST_F(dll_test, lifecycle_before_during_and_after) {
    expect_all_inert();
    editor_setup setup = host.setup();
    ASSERT_EQ(init(setup), 1);

    // A second init is refused and changes nothing: not even the main window.
    host.write_setting("Main", "Position", "10,20");
    EXPECT_EQ(init(setup), 0);
    RECT r;
    GetWindowRect(host.main_window, &r);
    EXPECT_EQ(r.left, 50);

    EXPECT_EQ(win_messages(0, WM_MOUSEMOVE), 0);
    EXPECT_EQ(win_messages(0, WM_SETCURSOR), 0);
    EXPECT_EQ(window(16, 0, 0), 0);
    EXPECT_EQ(window(-1, 0, 0), 0);
    EXPECT_EQ(tidyup(), 1);
    host.notifications.clear();  // the initial mode was notified by init
    expect_all_inert();

    // And it starts again after a tidy-up.
    EXPECT_EQ(init(setup), 1);
    EXPECT_EQ(tidyup(), 1);
}

TEST_F(dll_test, update_acts_only_on_a_changed_record) {
    editor_setup setup = host.setup();
    setup.state.position[0] = 1.5f;
    ASSERT_EQ(init(setup), 1);
    host.notifications.clear();
    editor_state state = setup.state;
    EXPECT_EQ(update(state), 0);
    state.host_word = 99;  // only the host's word: a refresh, no mode sync
    EXPECT_NE(update(state), 0);
    EXPECT_EQ(update(state), 0);
    state.position[0] = -0.0f;  // compared by bits: -0.0 differs from the stored 1.5 and from 0.0
    EXPECT_NE(update(state), 0);
    state.position[0] = 0.0f;
    EXPECT_NE(update(state), 0);
    EXPECT_TRUE(host.notifications.empty());
}
