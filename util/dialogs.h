// Shared pieces of every editor window: message boxes with fixed titles per
// kind, centring, and string-table texts.
#pragma once

#include <windows.h>

#include "editor_api.h"

// 1 when the box was closed with OK or Yes; 0 for No, or when nothing was
// shown (editor not started, or no such string).
int show_message(const char *text, int kind);
int show_message_id(int id, int kind);

// Moves a window to the centre of its parent (child windows) or of the screen.
void centre_dialog(HWND window);

// Add string-table text `id` (cut to 31 characters) as a new item; the new
// item's index, or the control's error value.
LRESULT combo_add_string_id(HWND combo, int id);
LRESULT list_add_string_id(HWND list, int id);

// Loads string `id` into buffer (always NUL-terminated); the number of characters.
int load_string(int id, char *buffer, int size);
