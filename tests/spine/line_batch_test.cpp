// A batch fill leaves a control exactly as a line-by-line fill does: the
// same lines in the same order with the same item data, for sorted and
// unsorted list and combo boxes, ties and case variants included; and it
// finds a line by its exact text where the control shows it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <windows.h>

#include "util/line_batch.h"

namespace {
struct shown_line {
    std::string text;
    LPARAM data;
    bool operator==(const shown_line &o) const { return text == o.text && data == o.data; }
};

std::vector<shown_line> contents(HWND control, bool combo) {
    std::vector<shown_line> lines;
    LRESULT count = SendMessageA(control, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        char text[256] = "";
        SendMessageA(control, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        lines.push_back({text, SendMessageA(control, combo ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(i), 0)});
    }
    return lines;
}
}  // namespace

TEST(line_batch, fills_as_a_line_by_line_fill_does) {
    const std::vector<std::vector<std::string>> inputs = {
        {"Tank2 (tank)", "apc1 (apc)", "Tank10 (tank)", "_wp", "Zulu", "alpha", "Bravo", "2nd", "10th", "WP-North"},
        {"b", "B", "a", "A", "b", "c"},  // lines that rank equal
        {"\xC4rger", "\xE9t\xE9", "zulu", "\xFF", "Ebene"},  // bytes above 127, converted as the control would
        {"only"},
        {},
    };
    const struct {
        const char *window_class;
        DWORD style;
        bool combo, sorted;
    } kinds[] = {{"LISTBOX", LBS_SORT, false, true}, {"LISTBOX", 0, false, false},
                 {"COMBOBOX", CBS_SORT | CBS_DROPDOWNLIST, true, true}, {"COMBOBOX", CBS_DROPDOWNLIST, true, false}};
    for (const auto &kind : kinds) {
        for (const auto &input : inputs) {
            HWND naive = CreateWindowA(kind.window_class, "", WS_POPUP | kind.style, 0, 0, 100, 100, nullptr, nullptr,
                                       nullptr, nullptr);
            HWND batch = CreateWindowA(kind.window_class, "", WS_POPUP | kind.style, 0, 0, 100, 100, nullptr, nullptr,
                                       nullptr, nullptr);
            std::vector<LRESULT> naive_indices;
            {
                line_batch lines(batch);
                for (size_t i = 0; i < input.size(); ++i) {
                    LRESULT index = SendMessageA(naive, kind.combo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                                                 reinterpret_cast<LPARAM>(input[i].c_str()));
                    SendMessageA(naive, kind.combo ? CB_SETITEMDATA : LB_SETITEMDATA, static_cast<WPARAM>(index),
                                 static_cast<LPARAM>(i + 100));
                    naive_indices.push_back(index);
                    lines.add(input[i].c_str(), static_cast<LPARAM>(i + 100));
                }
                // An unsorted control reports where each line went.
                const std::vector<LRESULT> &placed = lines.commit();
                if (!kind.sorted) {
                    EXPECT_EQ(placed, naive_indices);
                }
                // A text is found at the first line showing exactly it.
                const std::vector<shown_line> shown = contents(batch, kind.combo);
                std::vector<std::string> wanted = input;
                wanted.push_back("missing");
                for (const std::string &text : wanted) {
                    LRESULT first = -1;
                    for (size_t i = 0; i < shown.size() && first < 0; ++i)
                        if (shown[i].text == text) first = static_cast<LRESULT>(i);
                    EXPECT_EQ(lines.index_of(text.c_str()), first) << text;
                }
            }
            EXPECT_EQ(contents(batch, kind.combo), contents(naive, kind.combo))
                << kind.window_class << " style " << kind.style << ", " << input.size() << " lines";
            DestroyWindow(naive);
            DestroyWindow(batch);
        }
    }
}
