// The floating toolbar: five picture buttons, one per edit mode.
#pragma once

#include <windows.h>

int toolbar_start(HWND owner, const char *settings_file, const char *settings_folder);
int toolbar_tidyup(const char *settings_file, const char *settings_folder);
// Presses the mode's button (which tells the host the mode); 1 when pressed.
int toolbar_sync_mode(int mode);
int is_toolbar_window(HWND window);
INT_PTR CALLBACK toolbar_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
