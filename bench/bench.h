// The benchmark: each dialog that shows host lists, opened and closed
// through editor.dll's exports with N host entries, beside its floor: a bare
// dialog made from the same template of the loaded editor.dll whose own
// procedure only adds the same N lines to the same controls, then ends.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include "editor_api.h"
#include "host/alloc_tracker.h"
#include "host/editor_exports.h"
#include "host/heli_records.h"

// The host the benchmark plays: tracked memory, lists built on request and
// freed on release, every contract honoured and checked.
struct bench_host {
    alloc_tracker memory;
    heli_records heli{memory};
    editor_exports editor;
    HWND main_window = nullptr;
    int lists_out = 0;  // acquired and not yet released

    // What the list operations hand out; texts live in the benchmark's own
    // memory for the whole run.
    std::vector<std::string> reference_names, markers, formations, message_targets, rally_points;
    std::vector<unit_entry> units;
    // Empties every list above, before each scenario's data is built, so
    // that no scenario shows another's lists.
    void forget_lists();

    // Lists in host memory.
    dlist_node *list(const std::vector<const void *> &values);
    void free_list(dlist_node *head);
};
bench_host &bench();

// One line of the floor: its text and item data.
struct floor_line {
    std::string text;
    LPARAM data;
};
// The lines the floor adds to one control (list box or combo box).
struct floor_control {
    int id;
    std::vector<floor_line> lines;
};

// A dialog to measure.
struct scenario {
    std::string name;
    int template_id;   // the measured dialog's template, for the floor
    std::string title; // the measured dialog's title
    // Builds the host's data for n entries (not timed); undone by `release`.
    std::function<void(int n)> prepare;
    // Opens the dialog through the exports and returns once it closed. The
    // measured dialog is closed as soon as its WM_INITDIALOG returns;
    // `on_ready` runs for every other dialog that opens on the way, to click
    // through to the measured one.
    std::function<void()> open;
    std::function<void(HWND dialog, const std::string &title)> on_ready;
    // What the floor adds, for n entries.
    std::function<std::vector<floor_control>(int n)> floor;
    std::function<void()> release;
};

std::vector<scenario> ground_scenarios();
std::vector<scenario> heli_scenarios();
std::vector<scenario> air_scenarios();

// Runs `act` (a click that opens the measured dialog from inside its parent)
// as soon as the parent's modal loop runs, timed as the measured dialog's
// whole open-and-close; then cancels `parents`, innermost first.
void click_through(std::vector<HWND> parents, std::function<void()> act);

// A name that sorts differently from its number, so that sorted controls
// receive their lines in no particular order (as a host hands them out).
std::string scrambled_name(const char *prefix, int i);
