#include "windows/cursor.h"

#include <windows.h>

#include "editor/editor.h"
#include "util/module_flag.h"

namespace {
module_flag module;
// The mode cursor to put back whenever the platform asks; none shows the arrow.
HCURSOR mode_cursor = nullptr;

// Cursor resource for a mode and sub-mode; 0 when the pair has none.
int cursor_id(int mode, int submode) {
    struct entry {
        int mode;
        int submode;
        int id;
    };
    static const entry table[] = {
        {0, 1, 104},    {0, 2, 105},    {1, 1, 113},    {1, 2, 112},    {2, 1, 118},
        {2, 2, 119},    {2, 4097, 120}, {2, 4098, 121}, {3, 1, 123},    {4, 1, 124},
    };
    for (const entry &e : table)
        if (e.mode == mode && e.submode == submode) return e.id;
    return 0;
}

void show_arrow() { SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(32512))); }
}  // namespace

int cursor_start() {
    if (!module.start()) return 0;
    mode_cursor = nullptr;
    return 1;
}

int cursor_tidyup() {
    if (!module.tidyup()) return 0;
    show_arrow();
    return 1;
}

int cursor_set_mode(int mode, int submode) {
    if (!module.started) return 0;
    int id = cursor_id(mode, submode);
    mode_cursor = id ? LoadCursorA(editor_instance(), MAKEINTRESOURCEA(id)) : nullptr;
    if (!mode_cursor) {
        show_arrow();
        return 0;
    }
    SetCursor(mode_cursor);
    return 1;
}

int cursor_refresh() {
    if (!module.started) return 0;
    if (mode_cursor) SetCursor(mode_cursor);
    return 1;
}
