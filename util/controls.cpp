#include "util/controls.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "editor/editor.h"
#include "util/numbers.h"
#include "util/text.h"

void set_item_text_f(HWND dialog, int id, const char *format, ...) {
    char text[512];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    SetDlgItemTextA(dialog, id, text);
}

int get_item_text(HWND dialog, int id, char *buffer, int size) {
    if (size <= 0) return 0;
    buffer[0] = '\0';
    HWND control = GetDlgItem(dialog, id);
    int length = control ? GetWindowTextA(control, buffer, size) : 0;
    return length < 0 ? 0 : length;
}

void show_field(HWND dialog, int id, const char *field, size_t size) {
    // At most size - 1 characters, what the field holds with its terminator:
    // a field that arrived unterminated shows what OK would store back, as
    // the lists show it.
    char text[256];
    copy_field(text, size < sizeof text ? size : sizeof text, field, size);
    SetDlgItemTextA(dialog, id, text);
}

void enable_control(HWND dialog, int id, bool on) { EnableWindow(GetDlgItem(dialog, id), on ? TRUE : FALSE); }

void enable_controls(HWND dialog, std::initializer_list<int> ids, bool on) {
    for (int id : ids) enable_control(dialog, id, on);
}

namespace {
LRESULT add_line(HWND control, UINT add, UINT set_data, const char *text, LPARAM data) {
    LRESULT index = SendMessageA(control, add, 0, reinterpret_cast<LPARAM>(text));
    if (index >= 0) SendMessageA(control, set_data, static_cast<WPARAM>(index), data);
    return index;
}

bool selected_data(HWND control, UINT get_selection, UINT get_data, LPARAM &data) {
    LRESULT index = SendMessageA(control, get_selection, 0, 0);
    if (index < 0) return false;
    data = SendMessageA(control, get_data, static_cast<WPARAM>(index), 0);
    return true;
}
}  // namespace

LRESULT list_add_line(HWND list, const char *text, LPARAM data) {
    return add_line(list, LB_ADDSTRING, LB_SETITEMDATA, text, data);
}

LRESULT combo_add_line(HWND combo, const char *text, LPARAM data) {
    return add_line(combo, CB_ADDSTRING, CB_SETITEMDATA, text, data);
}

int list_selection(HWND dialog, int id) {
    LRESULT index = SendDlgItemMessageA(dialog, id, LB_GETCURSEL, 0, 0);
    return index < 0 ? -1 : static_cast<int>(index);
}

bool list_selected_data(HWND list, LPARAM &data) { return selected_data(list, LB_GETCURSEL, LB_GETITEMDATA, data); }

bool combo_selected_data(HWND combo, LPARAM &data) {
    return selected_data(combo, CB_GETCURSEL, CB_GETITEMDATA, data);
}

int combo_select_data(HWND combo, LPARAM data) {
    LRESULT count = SendMessageA(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        if (SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(i), 0) == data) {
            SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(i), 0);
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool read_combo_selection(HWND combo, char *field, size_t size) {
    LRESULT selected = SendMessageA(combo, CB_GETCURSEL, 0, 0);
    if (selected < 0) return false;
    LRESULT length = SendMessageA(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(selected), 0);
    char entry[256] = "";
    if (length < 0 || length >= static_cast<LRESULT>(sizeof entry)) return false;
    SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(entry));
    copy_text(field, size, entry);
    return true;
}

selected_lines::selected_lines(HWND list, uint32_t capacity)
    : list_(list), capacity_(capacity), indices_(static_cast<int *>(host().host_alloc(capacity * 4))) {
    if (!indices_) return;
    LRESULT got = SendMessageA(list, LB_GETSELITEMS, capacity, reinterpret_cast<LPARAM>(indices_));
    count_ = got > 0 ? static_cast<int>(got) : 0;
}

selected_lines::~selected_lines() {
    if (indices_) host().host_free(indices_, capacity_ * 4);
}

void scan_float_item(HWND dialog, int id, int chars, float &value) {
    char text[64];
    if (chars > 63) chars = 63;
    get_item_text(dialog, id, text, chars + 1);
    scan_decimal(text, value);
}

bool read_number_strict(HWND dialog, int id, float &value) {
    char text[32];
    get_item_text(dialog, id, text);
    return parse_number_strict(text, value);
}

bool read_number_lenient(HWND dialog, int id, float &value) {
    char text[32];
    get_item_text(dialog, id, text);
    return parse_number_lenient(text, value);
}
