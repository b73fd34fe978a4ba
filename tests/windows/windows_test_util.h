// Helpers shared by the tests of the editor's own windows.
#pragma once

#include <functional>
#include <string>

#include <windows.h>

#include "editor/editor.h"
#include "tests/support/editor_test.h"

// Pumps this thread's messages until `done` holds or about two seconds pass.
inline bool pump_until(const std::function<bool()> &done) {
    for (int i = 0; i < 200 && !done(); ++i) {
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
        if (!done()) Sleep(10);
    }
    return done();
}

// The top-level window of this thread that `accepts` recognises.
inline HWND find_thread_window(int (*accepts)(HWND)) {
    for (HWND w : ui_thread_windows())
        if (accepts(w)) return w;
    return nullptr;
}

inline HCURSOR editor_cursor(int id) { return LoadCursorA(editor_instance(), MAKEINTRESOURCEA(id)); }
inline HCURSOR arrow_cursor() { return LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)); }

inline editor_state state_with_mode(int mode, int submode) {
    editor_state s = editor_stored_state();
    s.edit_mode = mode;
    s.edit_submode = submode;
    return s;
}
