// Driver steps as values, so that a scenario reads as a list of one-liners:
// type into edits, select lines, click, and note what the dialog shows on
// the way, to be checked as a whole afterwards.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/editor_test.h"

using step = ui_driver::action;

// Posts a click of the button `id` (OK and Cancel included).
inline step press(int id) {
    return [id](HWND dialog) { ui_command(dialog, id); };
}
// Sets the texts of edits, then takes `next`.
inline step typing(const std::vector<std::pair<int, std::string>> &texts, step next) {
    return [texts, next](HWND dialog) {
        for (const auto &t : texts) ui_set_text(dialog, t.first, t.second);
        next(dialog);
    };
}
// Selects a line of a list box (-1: none), then takes `next`; without one,
// double-clicks the list. The selection's notification is posted, so it
// arrives before anything `next` posts.
inline step picking(int list, int line, step next = nullptr) {
    return [list, line, next](HWND dialog) {
        ui_list_select_index(dialog, list, line);
        next ? next(dialog) : ui_list_double_click(dialog, list);
    };
}
// Selects the combo line with this text, then takes `next`.
inline step choosing(int combo, const std::string &text, step next) {
    return [combo, text, next](HWND dialog) {
        ui_combo_select(dialog, combo, text);
        next(dialog);
    };
}
// Adds what `look` reads of the window to `seen`, then takes `next`.
inline step noting(std::vector<std::string> &seen, std::function<std::string(HWND)> look, step next) {
    return [&seen, look, next](HWND window) {
        seen.push_back(look(window));
        next(window);
    };
}
// Runs `open` while each step acts in turn on the window with its title
// (or all on the window titled `title`); every step must run. Answers what
// `open` answered.
template <class Open>
int drive(const std::vector<std::pair<std::string, step>> &steps, Open open) {
    ui_driver driver;
    for (const auto &s : steps) driver.then(s.first, s.second);
    const int result = open();
    EXPECT_DRIVER_OK(driver);
    return result;
}
template <class Open>
int drive(const std::string &title, const std::vector<step> &steps, Open open) {
    std::vector<std::pair<std::string, step>> all;
    for (const step &s : steps) all.emplace_back(title, s);
    return drive(all, open);
}
