#include "host/editor_exports.h"

namespace {
template <class F>
F export_of(HMODULE dll, const char *name) {
    // Through void * because FARPROC's type says nothing of the real signature.
    return reinterpret_cast<F>(reinterpret_cast<void *>(GetProcAddress(dll, name)));
}
}  // namespace

bool editor_exports::load(const char *path) {
    dll = LoadLibraryA(path);
    if (!dll) return false;
    init = export_of<editor_init_fn>(dll, "editor_init");
    tidyup = export_of<editor_tidyup_fn>(dll, "editor_tidyup");
    update = export_of<editor_update_fn>(dll, "editor_update");
    win_messages = export_of<editor_win_messages_fn>(dll, "editor_win_messages");
    window = export_of<editor_window_fn>(dll, "editor_window");
    is_editor = export_of<is_editor_window_fn>(dll, "is_editor_window");
    return init && tidyup && update && win_messages && window && is_editor;
}

void editor_exports::unload() {
    if (dll) FreeLibrary(dll);
    *this = editor_exports{};
}
