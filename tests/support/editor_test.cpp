#include "tests/support/editor_test.h"

#include "editor/editor.h"

void editor_test::SetUp() {
    // Every host block ends at an untouchable page: an overrun of a record or
    // a use of a freed one fails the test where it happens.
    host.memory.guard_pages = true;
    char temp[MAX_PATH];
    GetTempPathA(sizeof temp, temp);
    host.settings_folder = std::string(temp) + "editor_tests\\";
    CreateDirectoryA(host.settings_folder.c_str(), nullptr);
    host.setup();
    host.clear_settings();
    SetWindowPos(host.main_window, nullptr, 50, 50, 400, 300, SWP_NOZORDER);
}

void editor_test::TearDown() {
    ui_driver::close_all_dialogs();
    if (editor_started) editor_tidyup();
    std::string all;
    for (const std::string &p : host.finish()) all += p + "\n";
    EXPECT_TRUE(all.empty()) << all;
    host.clear_settings();
    current_host = nullptr;
}

int editor_test::start_editor(const std::function<void(editor_setup &)> &adjust) {
    editor_setup s = host.setup();
    if (adjust) adjust(s);
    return editor_init(s);
}
