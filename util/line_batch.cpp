#include "util/line_batch.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {
// The key by which a sorted control ranks a line: the platform's sort key of
// its text, compared without regard to case in the user's locale, as the
// control itself compares.
std::string sort_key(const wchar_t *text) {
    const DWORD flags = LCMAP_SORTKEY | NORM_IGNORECASE;
    int key_length = LCMapStringW(LOCALE_USER_DEFAULT, flags, text, -1, nullptr, 0);
    if (key_length <= 0) return std::string();
    std::string key(static_cast<size_t>(key_length), '\0');
    LCMapStringW(LOCALE_USER_DEFAULT, flags, text, -1, reinterpret_cast<LPWSTR>(&key[0]), key_length);
    return key;
}
}  // namespace

line_batch::line_batch(HWND control) : control_(control) {
    char kind[16] = "";
    GetClassNameA(control, kind, sizeof kind);
    combo_ = lstrcmpiA(kind, "ComboBox") == 0;
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    sorted_ = (style & (combo_ ? CBS_SORT : LBS_SORT)) != 0;
    SendMessageA(control, combo_ ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
}

void line_batch::add(const char *text) {
    lines_.push_back({texts_.size(), 0, false});
    texts_.append(text ? text : "").push_back('\0');
}

void line_batch::add(const char *text, LPARAM data) {
    add(text);
    lines_.back().data = data;
    lines_.back().with_data = true;
}

// The order a sorted control keeps the lines in; empty when the control does
// not sort or any two lines rank equal (then they go in as they came).
std::vector<size_t> line_batch::sorted_order() const {
    if (!sorted_ || lines_.size() < 2) return {};
    std::vector<size_t> order(lines_.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::vector<std::string> keys;
    keys.reserve(lines_.size());
    for (size_t wide_at : wide_at_) keys.push_back(sort_key(wide_.c_str() + wide_at));
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return keys[a] < keys[b]; });
    for (size_t i = 1; i < order.size(); ++i)
        if (keys[order[i - 1]] == keys[order[i]]) return {};
    return order;
}

// Every line as the control keeps it, in wide characters: converted here
// once, as the control would convert each text it is sent, so that neither
// the sort keys nor the control convert it again.
void line_batch::widen() {
    wide_.clear();
    wide_.reserve(texts_.size());
    wide_at_.clear();
    wide_at_.reserve(lines_.size());
    for (const line &l : lines_) {
        const char *text = texts_.c_str() + l.text;
        const int bytes = static_cast<int>(std::strlen(text)) + 1;
        const size_t at = wide_.size();
        wide_.resize(at + static_cast<size_t>(bytes));  // never more characters than bytes
        const int got = MultiByteToWideChar(CP_ACP, 0, text, bytes, &wide_[at], bytes);
        wide_.resize(at + static_cast<size_t>(got > 0 ? got : 0));
        if (got <= 0) wide_.push_back(L'\0');
        wide_at_.push_back(at);
    }
}

const std::vector<LRESULT> &line_batch::commit() {
    if (committed_) return indices_;
    committed_ = true;
    indices_.assign(lines_.size(), -1);
    if (lines_.empty()) return indices_;
    widen();
    std::vector<size_t> order = sorted_order();
    // Lines in the control's own order are put at its end, so that it
    // neither searches nor moves anything; otherwise it places them itself.
    const bool in_order = !order.empty();
    placed_ = in_order || !sorted_;
    if (!in_order) {
        order.resize(lines_.size());
        std::iota(order.begin(), order.end(), size_t{0});
    }
    const UINT add = combo_ ? (in_order ? CB_INSERTSTRING : CB_ADDSTRING) : (in_order ? LB_INSERTSTRING : LB_ADDSTRING);
    const UINT set_data = combo_ ? CB_SETITEMDATA : LB_SETITEMDATA;
    SendMessageA(control_, WM_SETREDRAW, FALSE, 0);
    SendMessageA(control_, combo_ ? CB_INITSTORAGE : LB_INITSTORAGE, lines_.size(), texts_.size());
    for (size_t i : order) {
        const line &l = lines_[i];
        LRESULT index = SendMessageW(control_, add, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(wide_.c_str() + wide_at_[i]));
        if (index >= 0 && l.with_data) SendMessageA(control_, set_data, static_cast<WPARAM>(index), l.data);
        indices_[i] = index;
    }
    SendMessageA(control_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(control_, nullptr, TRUE);
    return indices_;
}

LRESULT line_batch::index_of(const char *text) const {
    if (!placed_) {
        // Lines that went in one by one into a sorted control have moved
        // since they were placed: ask the control.
        const LRESULT count = SendMessageA(control_, combo_ ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
        const size_t length = std::strlen(text);
        std::string shown;
        for (LRESULT i = 0; i < count; ++i) {
            const LRESULT got = SendMessageA(control_, combo_ ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
            if (got != static_cast<LRESULT>(length)) continue;
            shown.assign(length + 1, '\0');
            SendMessageA(control_, combo_ ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&shown[0]));
            if (std::strcmp(shown.c_str(), text) == 0) return i;
        }
        return -1;
    }
    LRESULT first = -1;
    for (size_t i = 0; i < lines_.size() && i < indices_.size(); ++i) {
        const LRESULT index = indices_[i];
        if (index < 0 || (first >= 0 && index >= first)) continue;
        if (std::strcmp(texts_.c_str() + lines_[i].text, text) == 0) first = index;
    }
    return first;
}
