// Shared pieces of every editor window: message boxes with fixed titles per
// kind, centring, string-table texts and bounded control-text helpers.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

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

// Sets a control's text from a format. The text is formatted into a bounded
// buffer and cut if it is longer; never pass designer or host text as `format`.
void set_item_text_f(HWND dialog, int id, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 3, 4)))
#endif
    ;

// Reads a control's text into buffer (size bytes including the NUL); always
// NUL-terminated, empty when the control is missing.
int get_item_text(HWND dialog, int id, char *buffer, int size);
template <size_t N>
inline int get_item_text(HWND dialog, int id, char (&buffer)[N]) {
    return get_item_text(dialog, id, buffer, static_cast<int>(N));
}

// Bounded copy that always terminates (and cuts) within the destination.
void copy_text(char *dest, size_t dest_size, const char *src);
template <size_t N>
inline void copy_text(char (&dest)[N], const char *src) {
    copy_text(dest, N, src);
}
