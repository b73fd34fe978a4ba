// Sarge Order dialog: one order of a ground group, and the combo fillers and
// readers it shares with the contingency order dialog.
#pragma once

#include <windows.h>

#include "editor_api.h"

int sarge_order_start();
int sarge_order_tidyup();

// Runs the dialog on `order`; 1 when it ended with OK (the only way the
// record changes), 0 on Cancel or when the module is not started.
int edit_sarge_order(HWND owner, sarge_order_record *order);

// Fill a combo from a host name list and select the line holding the name
// in `selected` (a record's field), else line 0. 1 on success; 0 with the
// combo left empty when the host list cannot be acquired or released.
int fill_formation_combo(HWND combo, const char (&selected)[32]);
int fill_destination_combo(HWND combo, const char (&selected)[32]);
// As above, with one more line "NONE" (item data 0), which is selected when
// `selected` is empty.
int fill_message_target_combo(HWND combo, const char (&selected)[32]);

// Stores the message and its target only together: when the selected target
// is not "NONE" and the message edit is not empty.
void read_message_and_target(HWND dialog, sarge_order_record &order);
