// Edit Rally Point Details dialog: a rally point's name and position, and its
// list of ARSP locations.
#pragma once

#include "editor_api.h"

int rally_point_start();
int rally_point_tidyup();

// Request 13, owned by the host's main window. ARSP additions, deletions and
// updates take effect at once and stay whatever the outcome; the name and
// position are written on OK. Sets record->cancelled (0 after OK, 1 after
// Cancel or closing) and answers 1 after OK. 0, with nothing shown or
// written, when the editor or this module is not started, a rally point
// dialog is already open, or the record is null.
int edit_rally_point(rally_point_record *record);
