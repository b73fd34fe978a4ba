// Sarge Order dialog: one order of a ground group, and the combo fillers it
// shares with the contingency order dialog.
#pragma once

#include <windows.h>

#include "editor_api.h"
#include "ground/order_types.h"

int sarge_order_start();
int sarge_order_tidyup();

// Runs the dialog on `order`; 1 when it ended with OK (the only way the
// record changes), 0 on Cancel or when the module is not started.
int edit_sarge_order(HWND owner, sarge_order_record *order);

// Fill a combo from a host name list, entry 0 selected. 1 on success; 0 with
// the combo left empty when the host list cannot be acquired or released.
int fill_formation_combo(HWND combo);
int fill_destination_combo(HWND combo);
// As above, then one more entry "NONE" (item data 0), which is selected.
int fill_message_target_combo(HWND combo);
// Selects the first entry equal to `text` (exact, case-sensitive); its index,
// or -1 when the combo is empty or nothing matches.
int select_combo_string(HWND combo, const char *text);
