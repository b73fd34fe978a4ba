// List Heli Groups dialog: a mission's heli groups, added, edited and
// removed.
#pragma once

#include "util/dlist.h"

// Started and tidied up with the heli group module (heli_group_start).
int heli_group_list_start();
int heli_group_list_tidyup();

// List Heli Groups (template 141, request 15) over the host's list of
// heli_group_record * and its available units. Add and Edit commit a
// confirmed Edit Heli Group to the host's lists at once, Remove marks a
// group removed; OK and Cancel only decide the result (1 for OK).
int list_heli_groups(dlist *groups, dlist *available);
