// Edit Bombing Run Details dialog: a bombing run's name, target, release
// height, attack time and radius, aircraft type and count, and its ingress
// and egress routes of waypoint markers.
#pragma once

#include "editor_api.h"

int bombing_run_start();
int bombing_run_tidyup();

// Request 12, owned by the host's main window. Route edits take effect at
// once and stay whatever the outcome; the other fields are written on OK.
// Sets record->cancelled (0 after OK, 1 after Cancel or closing) and answers
// 1 after OK. 0, with nothing shown or written, when the editor or this
// module is not started, a bombing run dialog is already open, or the record
// is null.
int edit_bombing_run(bombing_run_record *record);
