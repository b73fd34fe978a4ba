// Group List dialog: every ground group of the mission.
#pragma once

#include <cstddef>

#include "editor_api.h"

int group_list_start();
int group_list_tidyup();

// Request 11: lists the groups of `groups` that are not removed; Add, Edit and
// Remove act on the host's list at once. 1 when the dialog ended with OK.
int list_groups(dlist_node *groups);

// The first "sarge%d" that no group of the list is named (removed ones
// included), into a 32-byte name field.
void automatic_group_name(const dlist_node *groups, char (&name)[32]);
