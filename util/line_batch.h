// Many lines into one list box or combo box at once. The control ends
// exactly as a line-by-line fill in the same order leaves it (same lines,
// same order, same item data), at a fraction of the cost at mission scale:
// its storage is reserved for every line, its drawing is held until the last
// line is in, and a sorted control is handed its lines already in its own
// order, at its end, so that it neither searches nor moves a line. Where two
// lines rank equal for the control, their placement depends on arrival, so
// the lines then go over one by one as they came.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <windows.h>

class line_batch {
public:
    // Empties the control; the lines go in on commit (or when the batch goes).
    explicit line_batch(HWND control);
    ~line_batch() { commit(); }
    line_batch(const line_batch &) = delete;
    line_batch &operator=(const line_batch &) = delete;

    // A line without item data, or with `data` as its item data.
    void add(const char *text);
    void add(const char *text, LPARAM data);
    size_t size() const { return lines_.size(); }

    // Hands the lines over (once). For a control that does not sort, the
    // index of each line in the order added (or the control's error value);
    // for one that does, the same unless two lines ranked equal.
    const std::vector<LRESULT> &commit();
    // After commit: the control's index of its first line whose text is
    // exactly `text` (case-sensitive), or -1. Found in the batch's own copy
    // of the lines, so no line is read back from the control.
    LRESULT index_of(const char *text) const;

private:
    struct line {
        size_t text;  // offset into texts_
        LPARAM data;
        bool with_data;
    };
    void widen();
    std::vector<size_t> sorted_order() const;

    HWND control_;
    bool combo_ = false;
    bool sorted_ = false;
    bool committed_ = false;
    bool placed_ = true;  // every line stayed at the index it went in at
    std::string texts_;  // every line's text and its NUL, one after another
    std::vector<line> lines_;
    std::vector<LRESULT> indices_;
    std::wstring wide_;            // every line's text in wide characters, NUL-ended
    std::vector<size_t> wide_at_;  // where each line starts in wide_
};
