#include "windows/toolbar.h"

#include "editor/editor.h"
#include "resources/string_ids.h"
#include "resources/window_ids.h"
#include "util/module_flag.h"
#include "util/settings.h"
#include "windows/floating.h"

namespace {
struct mode_button {
    int id;
    int icon;
};

// Indexed by edit mode. The fourth button from the top is mode 4 and the
// fifth is mode 3: the template's order, not the modes', sets the places.
const mode_button mode_buttons[] = {
    {IDC_TB_MODE0, IDI_MODE0}, {IDC_TB_MODE1, IDI_MODE1}, {IDC_TB_MODE2, IDI_MODE2},
    {IDC_TB_MODE3, IDI_MODE3}, {IDC_TB_MODE4, IDI_MODE4},
};
constexpr unsigned mode_count = sizeof mode_buttons / sizeof mode_buttons[0];

module_flag module;
HWND toolbar = nullptr;
// Only toolbar_sync_mode changes it: a designer's click leaves it alone, so
// the host reporting that mode back presses (and notifies) once more.
int last_pressed_mode = -1;

int mode_of_button(int id) {
    for (unsigned mode = 0; mode < mode_count; ++mode)
        if (mode_buttons[mode].id == id) return static_cast<int>(mode);
    return -1;
}

void set_button_icons(HWND window) {
    for (const mode_button &b : mode_buttons) {
        HWND button = GetDlgItem(window, b.id);
        if (!button) continue;
        HICON icon = LoadIconA(editor_instance(), MAKEINTRESOURCEA(b.icon));
        if (icon) SendMessageA(button, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
    }
}
}  // namespace

INT_PTR CALLBACK toolbar_proc(HWND window, UINT message, WPARAM wparam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        set_button_icons(window);
        return 1;
    case WM_COMMAND:
        if (module.started && HIWORD(wparam) == BN_CLICKED) {
            int mode = mode_of_button(LOWORD(wparam));
            if (mode >= 0) host_notify(NOTIFY_MODE, static_cast<uintptr_t>(mode));
        }
        return 0;
    case WM_SETCURSOR:
        take_activation_for_cursor(window);
        return 0;
    default:
        return 0;
    }
}

int toolbar_start(HWND owner, const char *settings_file, const char *settings_folder) {
    if (module.started) return 0;
    toolbar = floating_window_open(IDD_TOOLBAR, owner, toolbar_proc, settings_file, settings_folder,
                                   SETTINGS_TOOLBAR, IDS_TOOLBAR_FAILED);
    return toolbar ? module.start() : 0;
}

int toolbar_tidyup(const char *settings_file, const char *settings_folder) {
    if (!module.started) return 0;
    floating_window_close(toolbar, settings_file, settings_folder, SETTINGS_TOOLBAR);
    toolbar = nullptr;
    module.tidyup();
    // A new toolbar starts with no button down, so forget the last pressed
    // mode: the next editor_init presses its initial mode and tells the host,
    // even when that mode equals the one pressed before the tidy-up.
    last_pressed_mode = -1;
    return 1;
}

int toolbar_sync_mode(int mode) {
    if (!module.started || mode == last_pressed_mode) return 0;
    if (static_cast<unsigned>(mode) >= mode_count) return 0;
    HWND button = GetDlgItem(toolbar, mode_buttons[mode].id);
    if (!button) return 0;
    // Remembered before the click: a host that answers the notification with
    // an editor_update of the same mode (the state is stored only after this
    // returns) would otherwise be pressed again, without end.
    last_pressed_mode = mode;
    // Sent, not posted: the platform presses the button, releases the others
    // and delivers BN_CLICKED (so host_notify) before this returns.
    SendMessageA(button, BM_CLICK, 0, 0);
    // And again after it: a host that answered with another mode has pressed
    // that one from inside the notification, yet this mode is the last.
    last_pressed_mode = mode;
    return 1;
}

int is_toolbar_window(HWND window) { return module.started && window == toolbar ? 1 : 0; }
