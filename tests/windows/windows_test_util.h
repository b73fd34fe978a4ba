// Helpers shared by the tests of the toolbar, the Status window and the
// save-file dialog.
#pragma once

#include <functional>

#include <windows.h>

#include "editor/editor.h"

// Dispatches this thread's pending messages (posted clicks and the like).
inline void pump_messages() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

// Pumps until `done` holds or about two seconds have passed.
inline bool pump_until(const std::function<bool()> &done) {
    for (int i = 0; i < 200 && !done(); ++i) {
        pump_messages();
        if (!done()) Sleep(10);
    }
    return done();
}

// The top-level window of this thread that `accepts` recognises.
struct thread_window_search {
    int (*accepts)(HWND);
    HWND found;
    static BOOL CALLBACK visit(HWND window, LPARAM self) {
        auto *s = reinterpret_cast<thread_window_search *>(self);
        if (!s->accepts(window)) return TRUE;
        s->found = window;
        return FALSE;
    }
};
inline HWND find_thread_window(int (*accepts)(HWND)) {
    thread_window_search s{accepts, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), thread_window_search::visit, reinterpret_cast<LPARAM>(&s));
    return s.found;
}

inline HCURSOR editor_cursor(int id) {
    return LoadCursorA(editor_instance(), MAKEINTRESOURCEA(id));
}

inline HCURSOR arrow_cursor() { return LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)); }
