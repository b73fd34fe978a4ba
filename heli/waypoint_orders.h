// The Waypoint Orders list of the Edit Waypoint dialog with its four
// buttons, and the Select New Order Type dialog. The list works on the
// orders of the waypoint Edit Waypoint is editing (always a new waypoint or a
// copy), and every change goes into that list at once.
#pragma once

#include <cstdint>

#include <windows.h>

#include "editor_api.h"

// Fills the Waypoint Orders list box of `dialog` (an Edit Waypoint dialog)
// from the waypoint's orders: one line per order of a known kind, its kind's
// label, with the order record as item data.
void fill_waypoint_order_list(HWND dialog, const waypoint_record *waypoint);

// The order-list commands of Edit Waypoint ("<< Add", "<< Insert",
// "<< Edit", "<< Remove", a double-click in the list). True when `id` and
// `code` were one of them; after a change the caller's dialog is reloaded
// through `reload`.
bool waypoint_order_command(HWND dialog, waypoint_record *waypoint, int id, int code, void (*reload)(HWND dialog));

// Select New Order Type: 1 when a kind was chosen (written to *kind only then).
int select_order_type(HWND owner, uint32_t *kind);
