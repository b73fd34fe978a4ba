// Group Orders dialog: a group's orders and contingency orders.
#pragma once

#include <windows.h>

struct group_working_copy;

int group_orders_start();
int group_orders_tidyup();

// Edits the orders of the group open in Group Composition on copies of its
// lists; OK replaces the working copy's lists, Cancel leaves them as they were.
// 1 when the dialog ended with OK.
int edit_group_orders(HWND owner, group_working_copy *group);
