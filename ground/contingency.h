// Contingency order dialog: a sarge order carried out when a trigger fires.
#pragma once

#include <windows.h>

#include "editor_api.h"

// Runs the dialog on `order`; 1 when it ended with OK (the only way the
// record changes). This dialog has no started flag of its own; a second one
// is refused while it is open.
int edit_contingency_order(HWND owner, contingency_order_record *order);
