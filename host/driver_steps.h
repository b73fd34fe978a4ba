// Driver steps as values, so that a scenario reads as a list of one-liners:
// single acts on a dialog's controls, acts chained one after another, and
// what a dialog shows read into one comparable line. The sweep's flows and
// the dialog tests speak the same vocabulary.
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "host/ui_driver.h"

// --- Single acts -------------------------------------------------------------------
// Posts a click of the button `id` (OK and Cancel included).
inline ui_driver::action press(int id) {
    return [id](HWND dialog) { ui_command(dialog, id); };
}
// Clicks a check box or radio button through the control, which changes its state.
inline ui_driver::action toggle(int id) {
    return [id](HWND dialog) { ui_click(dialog, id); };
}
inline ui_driver::action type(int id, const char *text) {
    return [id, text](HWND dialog) { ui_set_text(dialog, id, text); };
}
// Selects a list box line by its text (adding to a multiple selection) or index.
inline ui_driver::action select(int list, const char *line) {
    return [list, line](HWND dialog) { ui_list_select(dialog, list, line); };
}
inline ui_driver::action select_at(int list, int index) {
    return [list, index](HWND dialog) { ui_list_select_index(dialog, list, index); };
}
inline ui_driver::action double_click(int list) {
    return [list](HWND dialog) { ui_list_double_click(dialog, list); };
}
inline ui_driver::action combo(int id, const char *text) {
    return [id, text](HWND dialog) { ui_combo_select(dialog, id, text); };
}
inline ui_driver::action combo_at(int id, int index) {
    return [id, index](HWND dialog) { ui_combo_select_index(dialog, id, index); };
}
// The close box of the window's caption.
inline void close_box(HWND dialog) { PostMessageA(dialog, WM_CLOSE, 0, 0); }

// --- Acts in a row ---------------------------------------------------------------------
inline ui_driver::action all(std::initializer_list<ui_driver::action> acts) {
    std::vector<ui_driver::action> list(acts);
    return [list](HWND dialog) {
        for (const ui_driver::action &a : list) a(dialog);
    };
}
// Selects a line, by text or index, then presses `button`.
inline ui_driver::action pick(int list, const char *line, int button) { return all({select(list, line), press(button)}); }
inline ui_driver::action pick_at(int list, int index, int button) { return all({select_at(list, index), press(button)}); }
// Sets the texts of edits, then takes `next`.
inline ui_driver::action typing(const std::vector<std::pair<int, std::string>> &texts, ui_driver::action next) {
    return [texts, next](HWND dialog) {
        for (const auto &t : texts) ui_set_text(dialog, t.first, t.second);
        next(dialog);
    };
}
// Selects a line of a list box (-1: none), then takes `next`; without one,
// double-clicks the list. The selection's notification is posted, so it
// arrives before anything `next` posts.
inline ui_driver::action picking(int list, int line, ui_driver::action next = nullptr) {
    return [list, line, next](HWND dialog) {
        ui_list_select_index(dialog, list, line);
        next ? next(dialog) : ui_list_double_click(dialog, list);
    };
}
// Selects the combo line with this text, then takes `next`.
inline ui_driver::action choosing(int combo, const std::string &text, ui_driver::action next) {
    return [combo, text, next](HWND dialog) {
        ui_combo_select(dialog, combo, text);
        next(dialog);
    };
}
// Adds what `look` reads of the window to `seen`, then takes `next`.
inline ui_driver::action noting(std::vector<std::string> &seen, std::function<std::string(HWND)> look,
                                ui_driver::action next) {
    return [&seen, look, next](HWND window) {
        seen.push_back(look(window));
        next(window);
    };
}

// --- What a dialog shows ---------------------------------------------------------------
// Each control's text (a combo box's selection; a check box or radio button
// as x when checked, o when not), comma-separated, in brackets when the
// control is greyed: a test states a whole screen at once.
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

// These controls in one line, '|' between them: list boxes as `listed`
// reads them, the rest as `shown` does.
inline std::function<std::string(HWND)> screen(std::vector<int> ids) {
    return [ids](HWND dialog) {
        std::string all;
        for (int id : ids) {
            char kind[16] = "";
            GetClassNameA(GetDlgItem(dialog, id), kind, sizeof kind);
            all += (all.empty() ? "" : "|") + (lstrcmpiA(kind, "ListBox") ? shown(dialog, {id}) : listed(dialog, id));
        }
        return all;
    };
}
