// Edit Waypoints and Edit Waypoint: a heli group's route of waypoints, and
// one waypoint of it with its marker, height, speed and behaviour.
#pragma once

#include <windows.h>

#include "editor_api.h"
#include "util/dlist.h"

// The two dialogs have no place of their own in the start order: they are
// started and tidied up with the heli group module, which opens them.
int waypoint_dialogs_start();
int waypoint_dialogs_tidyup();

// Edit Waypoints (template 143) on a route: every Add, Insert, Edit and
// Remove changes the list at once, so callers hand over a working list of
// copies. 1 when the designer confirmed with OK; 0 on Cancel, for a null
// list, or when the dialog cannot open.
int edit_waypoints(HWND owner, dlist *waypoints);

// Edit Waypoint (template 144) on one record, which it changes as the
// designer works: callers pass only new records or copies and keep or
// destroy them by the result. 0, showing nothing, when the host's marker
// list cannot be had.
int edit_waypoint(HWND owner, waypoint_record *waypoint);

// Fills every control of the open Edit Waypoint from its record, order list
// first, then centres and shows the dialog. The order list calls it after
// each change.
void load_waypoint_dialog(HWND dialog);

// Fills the Edit Waypoints list box from the route: the marker name, or
// "Waypoint n" counting only the waypoints without one.
void fill_waypoint_list(HWND dialog);

// Copies the ten setting words (everything but marker_name and orders) from
// one waypoint into another; nothing when either is null.
void inherit_waypoint_settings(const waypoint_record *from, waypoint_record *to);
