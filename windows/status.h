// The Status window: position, orientation and info line of the selection.
#pragma once

#include <windows.h>

int status_start(HWND owner, const char *settings_file, const char *settings_folder);
int status_tidyup(const char *settings_file, const char *settings_folder);
// Shows the stored editor_state: position, orientation and the info line.
void status_refresh();
int is_status_window(HWND window);
INT_PTR CALLBACK status_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
