// The six exports of editor.dll, resolved by name as any host resolves them.
#pragma once

#include <windows.h>

#include "editor_api.h"

struct editor_exports {
    HMODULE dll = nullptr;
    editor_init_fn init = nullptr;
    editor_tidyup_fn tidyup = nullptr;
    editor_update_fn update = nullptr;
    editor_win_messages_fn win_messages = nullptr;
    editor_window_fn window = nullptr;
    is_editor_window_fn is_editor = nullptr;

    // Loads the DLL and resolves every export; false when either fails.
    bool load(const char *path = "editor.dll");
    void unload();
};
