// The six order dialogs, each opened by edit_heli_order on the record's
// offset-8 word (its body, or the head of its entry list). Each answers 1
// when the dialog ended with OK; 0 on Cancel or the close box, for a null
// body, or while a dialog of the same kind is open.
#pragma once

#include <windows.h>

#include "editor_api.h"
#include "util/dlist.h"

int edit_engage_order(HWND owner, engage_order *order);
int edit_deploy_order(HWND owner, dlist *entries);  // deploy_entry *
int edit_pickup_order(HWND owner, dlist *entries);  // pickup_entry *
int edit_patrol_order(HWND owner, patrol_order *order);
int edit_wait_order(HWND owner, wait_order *order);
int edit_land_order(HWND owner, land_order *order);
