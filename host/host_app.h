// The substitute host: a small game stand-in that loads editor.dll, supplies
// every host operation over an in-memory sample mission, and offers each
// request from its menus.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <windows.h>

#include "editor_api.h"
#include "host/alloc_tracker.h"
#include "host/heli_records.h"
#include "host/editor_exports.h"

class ui_driver;

struct host_app : editor_exports {
    HWND main_window = nullptr;
    HWND log_view = nullptr;

    alloc_tracker memory;
    // Helicopter orders and patrol points, made, copied and destroyed on request.
    heli_records heli{memory};
    bool editor_running = false;  // between a successful editor_init and editor_tidyup
    editor_state state{};  // what the host believes the editor shows
    std::string settings_folder;
    std::string settings_file = "editor.ini";
    std::string gallery;  // tour mode: where screenshots go; empty when interactive

    // Sends the current state to the editor.
    void send_state();
    // Appends a line to the host's log window (and to stdout in the tour).
    void log(const std::string &line);
};

host_app &app();

// Menu entries contributed by the host's feature files. Each feature file
// registers itself; the main window builds its menus from the registry, and
// the tour runs each feature's tour function in registration order.
struct host_feature {
    const char *menu;   // top-level menu text
    const char *label;  // item text
    void (*run)();      // what the menu item does
    void (*tour)();     // opens the feature's windows with sample data for screenshots; may be null
    int order;          // tour and menu order among features (lower first)
};
int register_host_feature(const host_feature &feature);
const std::vector<host_feature> &host_features();

#define HOST_FEATURE_CONCAT2(a, b) a##b
#define HOST_FEATURE_CONCAT(a, b) HOST_FEATURE_CONCAT2(a, b)
#define HOST_FEATURE(...) \
    static const int HOST_FEATURE_CONCAT(host_feature_, __LINE__) = register_host_feature(host_feature{__VA_ARGS__})

// --- The tour ----------------------------------------------------------------------
// Saves a PNG picture of a window under the gallery folder as <name>.png and
// lists it in the gallery's index under `group` (the window it shows), with
// `caption`: which request, menu or button opened it, and with what sample
// data. Tour mode only; a window that cannot be saved is a tour problem.
void tour_screenshot(HWND window, const std::string &group, const std::string &name, const std::string &caption);
// Runs `open`, which shows a modal window titled `title`; screenshots that
// window as above and closes it with `close_id`. For use inside tour functions.
int tour_modal(const std::string &title, const std::string &group, const std::string &name,
               const std::string &caption, int (*open)(), int close_id = IDCANCEL);
// Records a tour step that went wrong: the tour then fails the run.
void tour_problem(const std::string &what);
// A tour problem when some driven step did not run as scripted.
void tour_check(const ui_driver &driver);
