// Thin typed helpers over a dialog's controls: texts, fixed-size record
// fields, list and combo lines with item data, enabling, and the selection of
// a multiple-selection list. Every text is bounded; no designer or host text
// is ever used as a format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include <windows.h>

// --- Texts -------------------------------------------------------------------
// Sets a control's text from a format, cut to 511 characters.
void set_item_text_f(HWND dialog, int id, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 3, 4)))
#endif
    ;

// Reads at most size - 1 characters of a control's text; only the text and
// its terminator are written (the bytes after them in a record's field stay
// as they were). Empty when the control is missing. The number of characters.
int get_item_text(HWND dialog, int id, char *buffer, int size);
template <size_t N>
inline int get_item_text(HWND dialog, int id, char (&buffer)[N]) {
    return get_item_text(dialog, id, buffer, static_cast<int>(N));
}

// Shows a fixed-size field that may lack its terminator: at most size - 1
// characters, as the lists show it.
void show_field(HWND dialog, int id, const char *field, size_t size);
template <size_t N>
inline void show_field(HWND dialog, int id, const char (&field)[N]) {
    show_field(dialog, id, field, N);
}

// --- Enabling ------------------------------------------------------------------
void enable_control(HWND dialog, int id, bool on);
void enable_controls(HWND dialog, std::initializer_list<int> ids, bool on);

// --- List boxes and combo boxes ---------------------------------------------------
// Adds a line and, when it was added, gives it `data`; the line's index or
// the control's error value.
LRESULT list_add_line(HWND list, const char *text, LPARAM data);
LRESULT combo_add_line(HWND combo, const char *text, LPARAM data);

// The selected line of a single-selection list box, or -1.
int list_selection(HWND dialog, int id);

// The item data of the selected line; false when nothing is selected.
bool list_selected_data(HWND list, LPARAM &data);
bool combo_selected_data(HWND combo, LPARAM &data);
// The selected line's item data as a record pointer; null without a
// selection or with null item data.
template <class T>
T *list_selected(HWND list) {
    LPARAM data = 0;
    return list_selected_data(list, data) ? reinterpret_cast<T *>(data) : nullptr;
}

// Selects the first line whose item data is `data`; its index, or -1 (and no
// selection change) when no line has it.
int combo_select_data(HWND combo, LPARAM data);

// Copies the selected entry's text into a field (cut to fit); false, with
// the field untouched, when nothing is selected.
bool read_combo_selection(HWND combo, char *field, size_t size);
template <size_t N>
inline bool read_combo_selection(HWND combo, char (&field)[N]) {
    return read_combo_selection(combo, field, N);
}

// The selected lines of a multiple-selection list box, read into an array of
// `capacity` indices in host memory (4 bytes each; asked for even when
// `capacity` is 0, so the host sees the array come and go). Given back when
// the object goes.
class selected_lines {
public:
    selected_lines(HWND list, uint32_t capacity);
    ~selected_lines();
    selected_lines(const selected_lines &) = delete;
    selected_lines &operator=(const selected_lines &) = delete;

    // False when the array could not be had: nothing can be read.
    bool allocated() const { return indices_ != nullptr; }
    // Calls act(item data) for each selected line, in ascending line order.
    template <class F>
    void for_each_data(F act) const {
        for (int i = 0; i < count_; ++i)
            act(SendMessageA(list_, LB_GETITEMDATA, static_cast<WPARAM>(indices_[i]), 0));
    }
    int count() const { return count_; }

private:
    HWND list_;
    uint32_t capacity_;
    int *indices_;
    int count_ = 0;
};

// Reads at most `chars` characters of a control as a "%f" scan does; the
// value stays as it was when the text does not begin with a number.
void scan_float_item(HWND dialog, int id, int chars, float &value);

// Reads at most 31 characters of a control by the strict rule (the number
// alone) or the lenient one (a leading number) of util/numbers.h. True when
// accepted, with `value` set; a refused field leaves `value` as it was.
bool read_number_strict(HWND dialog, int id, float &value);
bool read_number_lenient(HWND dialog, int id, float &value);
