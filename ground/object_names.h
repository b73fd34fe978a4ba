// Object name list and Edit Name dialogs.
#pragma once

#include <windows.h>

#include "editor_api.h"

int object_names_start();
int object_names_tidyup();

// Edits a 32-byte name field in place. 1 when the new name was accepted; a
// name the host reports as used is refused and the old text put back.
int edit_name(HWND owner, char *name32);

// Request 10: lists the unit_entry records of `list` and renames them. 1 on
// OK; 0 on Cancel or when the module is not started.
int list_object_names(dlist_node *list);
