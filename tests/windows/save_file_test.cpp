#include <string>

#include "tests/support/test_host.h"
#include "tests/windows/windows_test_util.h"
#include "util/dialogs.h"

namespace {
constexpr const char *dialog_title = "Save Editor File...";

// The file name box: an edit, or a combo box with an edit inside, by version.
void type_file_name(HWND dialog, const std::string &name) {
    for (int id : {0x47C, 0x480}) {
        if (GetDlgItem(dialog, id)) {
            ui_set_text(dialog, id, name);
            return;
        }
    }
    ADD_FAILURE() << "no file name box in the save dialog";
}

std::string current_folder() {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof folder, folder);
    return folder;
}

// A fresh empty folder for the designer to save into.
std::string save_folder() {
    char temp[MAX_PATH];
    GetTempPathA(sizeof temp, temp);
    std::string folder = std::string(temp) + "editor_save_test";
    CreateDirectoryA(folder.c_str(), nullptr);
    return folder;
}
}  // namespace

class save_file_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
    }
    int request(int code, char *buffer, uint32_t size) {
        return editor_window(code, reinterpret_cast<uintptr_t>(buffer), size);
    }
};

TEST_F(save_file_test, typed_name_gets_the_world_extension_in_the_start_folder) {
    std::string folder = save_folder();
    std::string before = current_folder();
    char buffer[MAX_PATH];
    copy_text(buffer, folder.c_str());
    std::vector<std::string> types;
    ui_driver d;
    d.then(dialog_title, [&](HWND dialog) {
        types = ui_combo_items(dialog, 0x470);
        type_file_name(dialog, "level1");
        ui_command(dialog, IDOK);
    });
    EXPECT_NE(request(REQUEST_SAVE_WORLD_FILE, buffer, sizeof buffer), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(std::string(buffer), folder + "\\level1.dat");
    EXPECT_EQ(types, std::vector<std::string>{"World Data Files (*.dat)"});
    EXPECT_EQ(current_folder(), before);
}

TEST_F(save_file_test, mission_files_and_a_name_with_its_own_extension) {
    std::string folder = save_folder();
    char buffer[MAX_PATH];
    copy_text(buffer, folder.c_str());
    std::vector<std::string> types;
    ui_driver d;
    d.then(dialog_title, [&](HWND dialog) {
        types = ui_combo_items(dialog, 0x470);
        type_file_name(dialog, "raid.mis");
        ui_command(dialog, IDOK);
    });
    EXPECT_NE(request(REQUEST_SAVE_MISSION_FILE, buffer, sizeof buffer), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(std::string(buffer), folder + "\\raid.mis");
    EXPECT_EQ(types, std::vector<std::string>{"Mission Data File (*.mis)"});
}

TEST_F(save_file_test, cancel_empties_the_buffer) {
    char buffer[MAX_PATH] = "C:\\windows";
    ui_driver d;
    d.then(dialog_title, [](HWND dialog) { ui_command(dialog, IDCANCEL); });
    EXPECT_EQ(request(REQUEST_SAVE_MISSION_FILE, buffer, sizeof buffer), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(buffer[0], '\0');
}

TEST_F(save_file_test, overlong_start_folder_and_missing_buffer_are_harmless) {
    std::string folder = "C:\\" + std::string(300, 'f');
    std::vector<char> buffer(folder.begin(), folder.end());
    buffer.push_back('\0');
    ui_driver d;
    d.then(dialog_title, [](HWND dialog) { ui_command(dialog, IDCANCEL); });
    EXPECT_EQ(request(REQUEST_SAVE_WORLD_FILE, buffer.data(), static_cast<uint32_t>(buffer.size())), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(buffer[0], '\0');

    // Nowhere to put a name: nothing is shown.
    EXPECT_EQ(request(REQUEST_SAVE_WORLD_FILE, nullptr, 260), 0);
    char one = 'x';
    EXPECT_EQ(request(REQUEST_SAVE_WORLD_FILE, &one, 0), 0);
    EXPECT_EQ(one, 'x');
}
