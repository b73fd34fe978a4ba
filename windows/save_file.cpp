#include "windows/save_file.h"

#include <cstring>

#include <windows.h>
#include <commdlg.h>

#include "editor/editor.h"
#include "resources/string_ids.h"
#include "util/dialogs.h"

namespace {
// The dialog structure as the platform first defined it (76 bytes), which
// every version accepts.
constexpr DWORD open_file_name_size = 76;
constexpr DWORD save_flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR |
                             OFN_PATHMUSTEXIST | OFN_LONGNAMES;
static_assert(save_flags == 0x0020080E, "save dialog flags");

struct file_kind {
    int description;
    int pattern;
};
const file_kind kinds[2] = {{IDS_WORLD_FILES, IDS_WORLD_PATTERN}, {IDS_MISSION_FILES, IDS_MISSION_PATTERN}};
}  // namespace

int save_file_dialog(char *buffer, uint32_t size, int mission) {
    // With nowhere to put a name there is nothing to ask the designer.
    if (!buffer || size == 0) return 0;

    // A start folder longer than 259 characters is not used (the dialog opens
    // in the platform's default folder): a cut path would name another folder.
    char start_folder[MAX_PATH] = "";
    size_t folder_length = 0;
    while (folder_length < size && buffer[folder_length]) ++folder_length;
    if (folder_length < sizeof start_folder) {
        std::memcpy(start_folder, buffer, folder_length);
        start_folder[folder_length] = '\0';
    }
    buffer[0] = '\0';

    const file_kind &kind = kinds[mission ? 1 : 0];
    // The filter: description NUL pattern NUL NUL.
    char filter[256] = {};
    char text[256];
    int description_length = load_string(kind.description, text, sizeof text);
    if (description_length == 0) return 0;
    std::memcpy(filter, text, static_cast<size_t>(description_length) + 1);
    char *pattern = filter + description_length + 1;
    int pattern_room = static_cast<int>(sizeof filter) - description_length - 2;
    if (pattern_room < 2 || load_string(kind.pattern, pattern, pattern_room) == 0) return 0;
    // The buffer was zeroed, so the pattern is followed by the closing NULs.
    const char *last_stop = std::strrchr(pattern, '.');
    const char *default_extension = last_stop ? last_stop + 1 : nullptr;

    char title[256];
    if (load_string(IDS_SAVE_TITLE, title, sizeof title) == 0) return 0;

    OPENFILENAMEA dialog;
    std::memset(&dialog, 0, sizeof dialog);
    dialog.lStructSize = open_file_name_size;
    dialog.hwndOwner = editor_main_window();
    dialog.hInstance = editor_instance();
    dialog.lpstrFilter = filter;
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = buffer;
    dialog.nMaxFile = size;
    dialog.lpstrInitialDir = start_folder;
    dialog.lpstrTitle = title;
    dialog.Flags = save_flags;
    dialog.lpstrDefExt = default_extension;
    return GetSaveFileNameA(&dialog) ? 1 : 0;
}
