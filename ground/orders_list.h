// Orders dialog: the choice of a sarge order's type.
#pragma once

#include <windows.h>

#include "editor_api.h"

int orders_list_start();
int orders_list_tidyup();

// Asks for the type of a new order, then opens the Sarge Order dialog on it.
// 1 only when both were confirmed; on Cancel the record's type becomes -1.
int choose_order_type(HWND owner, sarge_order_record *order);
