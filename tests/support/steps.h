// Scenarios on the driver's steps (host/driver_steps.h), failing the test
// with whatever the driver found wrong.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/driver_steps.h"
#include "tests/support/editor_test.h"

using step = ui_driver::action;

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
