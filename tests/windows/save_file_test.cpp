#include "tests/windows/windows_test_util.h"  // before <dlgs.h>, which needs the platform types

#include <dlgs.h>

#include "util/dialogs.h"
#include "util/text.h"

namespace {
// Opens the save dialog for `request` with `buffer` and runs `act` in it.
int save(int request, char *buffer, uint32_t size, const std::function<void(HWND)> &act) {
    ui_driver d;
    d.then("Save Editor File...", act);
    int result = editor_window(request, reinterpret_cast<uintptr_t>(buffer), size);
    EXPECT_DRIVER_OK(d);
    return result;
}

// Types a file name (an edit, or a combo box with an edit, by version) and confirms.
std::function<void(HWND)> type_name(const char *name, std::vector<std::string> *types) {
    return [name, types](HWND dialog) {
        *types = ui_combo_items(dialog, cmb1);
        ui_set_text(dialog, GetDlgItem(dialog, cmb13) ? cmb13 : edt1, name);
        ui_command(dialog, IDOK);
    };
}
void cancel(HWND dialog) { ui_command(dialog, IDCANCEL); }
}  // namespace

TEST_F(editor_test, save_dialog_returns_the_typed_name_in_the_start_folder_and_survives_odd_buffers) {
    ASSERT_EQ(start_editor(), 1);
    char temp[MAX_PATH], before[MAX_PATH], after[MAX_PATH];
    GetTempPathA(sizeof temp, temp);
    std::string folder = std::string(temp) + "editor_save_test";
    CreateDirectoryA(folder.c_str(), nullptr);
    GetCurrentDirectoryA(sizeof before, before);
    char buffer[MAX_PATH];
    std::vector<std::string> types;

    copy_text(buffer, folder.c_str());
    EXPECT_NE(save(REQUEST_SAVE_WORLD_FILE, buffer, sizeof buffer, type_name("level1", &types)), 0);
    EXPECT_EQ(std::string(buffer), folder + "\\level1.dat");
    EXPECT_EQ(types, std::vector<std::string>{"World Data Files (*.dat)"});

    copy_text(buffer, folder.c_str());
    EXPECT_NE(save(REQUEST_SAVE_MISSION_FILE, buffer, sizeof buffer, type_name("raid", &types)), 0);
    EXPECT_EQ(std::string(buffer), folder + "\\raid.mis");
    EXPECT_EQ(types, std::vector<std::string>{"Mission Data File (*.mis)"});
    GetCurrentDirectoryA(sizeof after, after);
    EXPECT_STREQ(after, before);

    // Cancel empties the buffer.
    copy_text(buffer, "C:\\windows");
    EXPECT_EQ(save(REQUEST_SAVE_MISSION_FILE, buffer, sizeof buffer, cancel), 0);
    EXPECT_EQ(buffer[0], '\0');
    // A start folder over 259 characters is not used, and nothing overflows.
    std::string long_folder = "C:\\" + std::string(300, 'f');
    std::vector<char> big(long_folder.c_str(), long_folder.c_str() + long_folder.size() + 1);
    EXPECT_EQ(save(REQUEST_SAVE_WORLD_FILE, big.data(), static_cast<uint32_t>(big.size()), cancel), 0);
    EXPECT_EQ(big[0], '\0');
    // Nowhere to put a name: nothing is shown.
    EXPECT_EQ(editor_window(REQUEST_SAVE_WORLD_FILE, 0, 260), 0);
    char one = 'x';
    EXPECT_EQ(editor_window(REQUEST_SAVE_WORLD_FILE, reinterpret_cast<uintptr_t>(&one), 0), 0);
    EXPECT_EQ(one, 'x');
}
