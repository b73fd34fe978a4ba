// The settings store over real INI files, and the main window's position.
#include <string>

#include "editor/editor.h"
#include "tests/support/editor_test.h"
#include "util/settings.h"

namespace {
class settings_test : public editor_test {
protected:
    const char *file() const { return host.settings_file.c_str(); }
    const char *folder() const { return host.settings_folder.c_str(); }
    std::string read(int section, int key, uint32_t size = 64) {
        char buffer[256] = "untouched";
        int found = settings_read(file(), folder(), section, key, buffer, size);
        return found ? buffer : "<none>";
    }
    // The main window's top left corner as x * 1000 + y.
    int main_at() {
        RECT r;
        GetWindowRect(host.main_window, &r);
        return r.left * 1000 + r.top;
    }
};
}  // namespace

TEST_F(settings_test, every_key_is_written_and_read_back_and_unknown_ones_are_refused) {
    const char *keys[] = {"Type", "RefObj", "Number", "ObjDist", "CamDist", "AAlign", "AACamRel", "Orient", "OCamrel"};
    for (int key = 0; key < 9; ++key) {
        std::string value = "v" + std::to_string(key);
        EXPECT_NE(settings_write(file(), folder(), SETTINGS_QUERY, key, value.c_str()), 0);
        EXPECT_EQ(host.read_setting("Query", keys[key]), value);
        EXPECT_EQ(read(SETTINGS_QUERY, key), value);
    }
    EXPECT_NE(settings_write(file(), folder(), SETTINGS_TOOLBAR, 0, "1,2"), 0);
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "1,2");
    EXPECT_EQ(read(SETTINGS_TOOLBAR, 0), "1,2");
    settings_write(file(), folder(), SETTINGS_QUERY, QUERY_REF_OBJ, std::string(100, 'r').c_str());
    EXPECT_EQ(read(SETTINGS_QUERY, QUERY_REF_OBJ, 64), std::string(63, 'r'));  // cut to the buffer

    host.write_setting("Query", "Type", "");
    host.write_setting("Query", "Number", nullptr);
    EXPECT_EQ(read(SETTINGS_QUERY, QUERY_TYPE), "<none>");
    EXPECT_EQ(read(SETTINGS_QUERY, QUERY_NUMBER), "<none>");  // missing key
    for (auto bad : {std::make_pair(4, 0), {SETTINGS_QUERY, 9}, {SETTINGS_TOOLBAR, 1}, {-1, 0}})
        EXPECT_EQ(settings_write(file(), folder(), bad.first, bad.second, "x"), 0);
    EXPECT_EQ(settings_write(nullptr, folder(), SETTINGS_MAIN, 0, "x"), 0);
    char buffer[8] = "keep";
    EXPECT_EQ(settings_read(nullptr, folder(), SETTINGS_MAIN, 0, buffer, sizeof buffer), 0);
    EXPECT_STREQ(buffer, "keep");
    EXPECT_EQ(host.read_setting("ToolBar", "Position"), "1,2");
}

TEST_F(settings_test, the_folder_is_joined_without_a_separator_and_long_paths_are_refused) {
    // The folder's last component and the file name run together.
    std::string prefix = host.settings_folder + "pre_";
    EXPECT_NE(settings_write("fix.ini", prefix.c_str(), SETTINGS_MAIN, 0, "5,6"), 0);
    char value[32] = "";
    GetPrivateProfileStringA("Main", "Position", "", value, sizeof value, (prefix + "fix.ini").c_str());
    EXPECT_STREQ(value, "5,6");
    DeleteFileA((prefix + "fix.ini").c_str());

    std::string long_name(260 - host.settings_folder.size(), 'n');
    EXPECT_EQ(settings_write(long_name.c_str(), folder(), SETTINGS_MAIN, 0, "1,1"), 0);
    char buffer[16] = "";
    EXPECT_EQ(settings_read(long_name.c_str(), folder(), SETTINGS_MAIN, 0, buffer, sizeof buffer), 0);
}

TEST_F(settings_test, main_window_position_is_restored_and_saved_unless_unreadable_or_without_a_file) {
    host.write_setting("Main", "Position", "120,80");
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(main_at(), 120080);
    EXPECT_TRUE(IsWindowVisible(host.main_window));
    SetWindowPos(host.main_window, nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("Main", "Position"), "33,44");

    for (const char *value : {"10", "x10,20", ",", ""}) {
        SetWindowPos(host.main_window, nullptr, 50, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        host.write_setting("Main", "Position", value);
        ASSERT_EQ(start_editor(), 1);
        EXPECT_EQ(main_at(), 50050) << value;
        editor_tidyup();
    }

    host.write_setting("Main", "Position", "120,80");
    ASSERT_EQ(start_editor([](editor_setup &s) { s.settings_file = nullptr; }), 1);
    EXPECT_EQ(main_at(), 50050);
    SetWindowPos(host.main_window, nullptr, 70, 70, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    editor_tidyup();
    EXPECT_EQ(host.read_setting("Main", "Position"), "120,80");
}
