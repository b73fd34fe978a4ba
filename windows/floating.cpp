#include "windows/floating.h"

#include "editor/editor.h"
#include "util/dialogs.h"
#include "util/settings.h"
#include "windows/cursor.h"

HWND floating_window_open(int template_id, HWND owner, DLGPROC proc, const char *settings_file,
                          const char *settings_folder, int section, int failure_string) {
    HWND window = CreateDialogParamA(editor_instance(), MAKEINTRESOURCEA(template_id), owner, proc, 0);
    if (!window) {
        show_message_id(failure_string, MESSAGE_ERROR);
        return nullptr;
    }
    settings_restore_position(settings_file, settings_folder, section, window);
    ShowWindow(window, SW_SHOWNORMAL);
    return window;
}

void floating_window_close(HWND window, const char *settings_file, const char *settings_folder, int section) {
    settings_save_position(settings_file, settings_folder, section, window);
    DestroyWindow(window);
}

void take_activation_for_cursor(HWND window) {
    HWND active = GetActiveWindow();
    if (!active || active == window) return;
    if (active == editor_main_window() || is_editor_window(active)) {
        SetActiveWindow(window);
        cursor_refresh();
    }
}
