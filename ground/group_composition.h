// Group Composition dialog: the members, appearance and type of one ground group.
#pragma once

#include "editor_api.h"

int group_composition_start();
int group_composition_tidyup();

// Request 9: edits `group` on a working copy; the record changes only on OK.
// `groups` (the mission's group list) may be null. 1 when the dialog ended with OK.
int edit_group(group_record *group, dlist_node *groups);

// True while a Group Composition dialog is open (there is one working copy).
bool group_composition_open();
