// What the toolbar and the Status window share: both are modeless dialogs
// owned by the host's main window, placed where the designer left them, and
// both take the activation when the mouse comes over them.
#pragma once

#include <windows.h>

// Creates the window from its template and puts it at its remembered
// position, or shows the error string `failure_string` and answers null.
HWND floating_window_open(int template_id, HWND owner, DLGPROC proc, const char *settings_file,
                          const char *settings_folder, int section, int failure_string);
// Remembers the window's position and destroys it.
void floating_window_close(HWND window, const char *settings_file, const char *settings_folder, int section);

// On a cursor message: take the activation from the host's main window or
// another editor window (never from a modal dialog) and put the mode cursor back.
void take_activation_for_cursor(HWND window);
