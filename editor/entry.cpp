// The six exports: lifecycle, state changes, requests and cursor messages.
#include <cstring>

#include "editor/editor.h"
#include "editor/modules.h"
#include "editor/requests.h"
#include "util/modal.h"
#include "util/settings.h"
#include "windows/cursor.h"
#include "windows/status.h"
#include "windows/toolbar.h"

extern "C" {

int EDITOR_CDECL editor_init(editor_setup setup) {
    if (editor_started) return 0;
    editor_setup &stored = editor_stored_setup();
    stored = setup;
    // Set before the modules start so that their message boxes can show.
    editor_started = 1;
    if (stored.settings_file) {
        settings_restore_position(stored.settings_file, stored.settings_folder, SETTINGS_MAIN,
                                  stored.main_window);
    }
    if (!modules_start(stored)) {
        // The modules started before the failing one stay started, as the
        // host may still see their windows; a later editor_init fails at the
        // first of them.
        editor_started = 0;
        return 0;
    }
    toolbar_sync_mode(stored.state.edit_mode);
    cursor_set_mode(stored.state.edit_mode, stored.state.edit_submode);
    return 1;
}

int EDITOR_CDECL editor_tidyup(void) {
    if (!editor_started) return 0;
    // Asked for from inside a dialog (a host timer): the editor still shuts
    // down, and its open dialogs end as if cancelled, so that nothing they
    // hold is committed into the host's records once the host believes the
    // editor gone. Their working copies go back as each one unwinds, before
    // the request that opened it returns.
    end_open_dialogs();
    const editor_setup &stored = editor_stored_setup();
    settings_save_position(stored.settings_file, stored.settings_folder, SETTINGS_MAIN,
                           stored.main_window);
    modules_tidyup(stored);
    editor_started = 0;
    return 1;
}

int EDITOR_CDECL editor_update(editor_state state) {
    if (!editor_started) return 0;
    editor_state &stored = editor_stored_state();
    // Raw words, so that floats compare by their bits.
    if (std::memcmp(&state, &stored, sizeof state) == 0) return 0;
    if (state.edit_mode != stored.edit_mode || state.edit_submode != stored.edit_submode) {
        toolbar_sync_mode(state.edit_mode);
        cursor_set_mode(state.edit_mode, state.edit_submode);
    }
    stored = state;
    status_refresh();
    return 1;
}

int EDITOR_CDECL editor_win_messages(uintptr_t, uint32_t message) {
    if (editor_started && message == WM_SETCURSOR) cursor_refresh();
    return 0;
}

int EDITOR_CDECL editor_window(int request, uintptr_t arg1, uintptr_t arg2) {
    if (!editor_started) return 0;
    return dispatch_request(static_cast<uint32_t>(request), arg1, arg2);
}

int EDITOR_CDECL is_editor_window(HWND window) {
    if (!editor_started) return 0;
    return is_toolbar_window(window) || is_status_window(window) ? 1 : 0;
}

}  // extern "C"
