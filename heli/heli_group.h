// Edit Heli Group dialog: one heli group's name, rally point, members,
// route and in-transit order.
#pragma once

#include <windows.h>

#include "editor_api.h"
#include "util/dlist.h"

// Also start and tidy up the other helicopter dialogs, which have no place
// of their own in the start order: Edit Waypoints and Edit Waypoint (opened
// only from here) and List Heli Groups (which opens this dialog).
int heli_group_start();
int heli_group_tidyup();

// Edit Heli Group (template 142) on a record and the units that may join
// it. Units move between `available` and the members at once, and a
// confirmed route or in-transit edit replaces the record's at once; the name
// and rally point are written on OK. A caller that needs Cancel to leave
// everything as it was hands over copies. 1 when the designer pressed OK; 0
// otherwise, for a null record, or while the module is not started.
int edit_heli_group(HWND owner, heli_group_record *group, dlist *available);
