// Sarge Order dialog: one order of a ground group, and the combo fillers it
// shares with the contingency order dialog.
#pragma once

#include <cstddef>

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

// Helpers the contingency order dialog shares. Record fields may arrive
// without a terminating NUL; these never read past `size` bytes.
// Shows a fixed-size text field in a control.
void show_field(HWND dialog, int id, const char *field, size_t size);
// Selects the entry equal to the field's text, else entry 0.
void select_combo_field(HWND combo, const char *field, size_t size);
// Copies the text of the combo's selected entry into the field; false (field
// untouched) when nothing is selected.
bool read_combo_selection(HWND combo, char *field, size_t size);
// Stores the message and its target only together: when the selected target
// is not "NONE" and the message edit is not empty.
void read_message_and_target(HWND dialog, sarge_order_record &order);
// Reads at most `chars` characters of a control as a "%f" scan does; the value
// stays unchanged when the text does not begin with a number.
void scan_float_item(HWND dialog, int id, int chars, float &value);

// Control ids shared by both order dialogs.
enum {
    IDC_ORDER_NAME = 1071,
    IDC_ORDER_DESTINATION_LABEL = 1061,
    IDC_ORDER_DESTINATION = 1059,
    IDC_ORDER_FORMATION_LABEL = 1064,
    IDC_ORDER_FORMATION = 1058,
    IDC_ORDER_MESSAGE = 1057,
    IDC_ORDER_MESSAGE_TARGET = 1065
};
