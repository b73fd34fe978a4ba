// Module-wide state of the editor: the started flag, the stored setup record,
// the instance handle for resources, and the way every module reaches the
// host's operations.
#pragma once

#include "editor_api.h"

// 1 from a successful editor_init until editor_tidyup.
extern int editor_started;

// The copy of editor_setup taken by editor_init. Words 0 to 16 are the current
// editor_state; the rest stays as the host gave it until the next editor_init.
editor_setup &editor_stored_setup();
inline editor_state &editor_stored_state() { return editor_stored_setup().state; }
inline const host_ops &host() { return editor_stored_setup().ops; }
inline HWND editor_main_window() { return editor_stored_setup().main_window; }

// The module whose resources (templates, strings, cursors, icons) we use.
HINSTANCE editor_instance();
void editor_set_instance(HINSTANCE instance);

// The one way to tell the host something: nothing is sent while stopped.
void host_notify(int code, uintptr_t argument);
