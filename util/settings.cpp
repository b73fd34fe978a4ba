#include "util/settings.h"

#include <cstdio>
#include <cstring>

namespace {
const char *const section_names[] = {"ToolBar", "Query", "Status", "Main"};
const char *const position_keys[] = {"Position"};
const char *const query_keys[] = {"Type",    "RefObj", "Number", "ObjDist", "CamDist",
                                  "AAlign",  "AACamRel", "Orient", "OCamrel"};

constexpr size_t max_path_chars = 259;

struct setting_name {
    const char *section;
    const char *key;
};

// Null members when the indices name no setting.
setting_name name_of(int section, int key) {
    if (section < 0 || section > SETTINGS_MAIN) return {};
    const char *const *keys = section == SETTINGS_QUERY ? query_keys : position_keys;
    int key_count = section == SETTINGS_QUERY ? 9 : 1;
    if (key < 0 || key >= key_count) return {};
    return {section_names[section], keys[key]};
}

// The folder (if any) followed directly by the file name. A joined path over
// 259 characters is refused rather than cut: a cut path would name some other
// file, and reading or writing that would be worse than keeping the defaults.
bool join_path(const char *file, const char *folder, char (&path)[max_path_chars + 1]) {
    size_t folder_len = folder ? std::strlen(folder) : 0;
    size_t file_len = std::strlen(file);
    if (folder_len + file_len > max_path_chars) return false;
    if (folder_len) std::memcpy(path, folder, folder_len);
    std::memcpy(path + folder_len, file, file_len + 1);
    return true;
}
}  // namespace

int settings_read(const char *settings_file, const char *settings_folder, int section, int key,
                  char *buffer, uint32_t size) {
    if (!settings_file || !buffer || size == 0) return 0;
    char path[max_path_chars + 1];
    setting_name name = name_of(section, key);
    if (!name.section || !join_path(settings_file, settings_folder, path)) return 0;
    GetPrivateProfileStringA(name.section, name.key, "", buffer, size, path);
    return buffer[0] != '\0' ? 1 : 0;
}

int settings_write(const char *settings_file, const char *settings_folder, int section, int key,
                   const char *text) {
    if (!settings_file) return 0;
    char path[max_path_chars + 1];
    setting_name name = name_of(section, key);
    if (!name.section || !join_path(settings_file, settings_folder, path)) return 0;
    return WritePrivateProfileStringA(name.section, name.key, text, path) ? 1 : 0;
}

void settings_restore_position(const char *settings_file, const char *settings_folder, int section,
                               HWND window) {
    char text[256];
    int x = 0;
    int y = 0;
    if (settings_read(settings_file, settings_folder, section, SETTINGS_KEY_POSITION, text,
                      sizeof text) &&
        std::sscanf(text, "%d,%d", &x, &y) == 2) {
        SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
    }
}

void settings_save_position(const char *settings_file, const char *settings_folder, int section,
                            HWND window) {
    RECT rect;
    if (!settings_file || !GetWindowRect(window, &rect)) return;
    char text[64];
    std::snprintf(text, sizeof text, "%d,%d", static_cast<int>(rect.left), static_cast<int>(rect.top));
    settings_write(settings_file, settings_folder, section, SETTINGS_KEY_POSITION, text);
}
