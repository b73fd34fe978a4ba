// What a dialog shows, in one line, so that a test states a whole screen at
// once: each control's text (a combo box's selection; a check box or radio
// button as x when checked, o when not), comma-separated, in brackets when
// the control is greyed.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "host/ui_driver.h"

inline std::string shown(HWND dialog, std::initializer_list<int> ids) {
    std::string line;
    for (int id : ids) {
        char kind[16] = "";
        GetClassNameA(GetDlgItem(dialog, id), kind, sizeof kind);
        const std::string value = !lstrcmpiA(kind, "ComboBox") ? ui_combo_selected(dialog, id)
                                  : !lstrcmpiA(kind, "Button") ? (ui_checked(dialog, id) ? "x" : "o")
                                                               : ui_text(dialog, id);
        line += "," + (ui_enabled(dialog, id) ? value : "[" + value + "]");
    }
    return line.substr(1);
}

// A list box's lines joined with '/', each selected line marked with a
// leading '>', so that a test states a list and its selection at once.
inline std::string listed(HWND dialog, int id) {
    const std::vector<std::string> lines = ui_list_items(dialog, id);
    const std::vector<int> selected = ui_list_selected(dialog, id);
    std::string all;
    for (size_t i = 0; i < lines.size(); ++i) {
        const bool marked = std::find(selected.begin(), selected.end(), int(i)) != selected.end();
        all += (i ? "/" : "") + std::string(marked ? ">" : "") + lines[i];
    }
    return all;
}
