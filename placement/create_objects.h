// Create New Objects dialog and its remembered choices.
#pragma once

#include <windows.h>

#include "editor_api.h"

// Restores (start) and saves (tidy-up) the remembered choices under "Query".
int create_objects_start(const char *settings_file, const char *settings_folder);
int create_objects_tidyup(const char *settings_file, const char *settings_folder);

// The handler of REQUEST_CREATE_OBJECTS: 1 when the designer confirmed and the
// whole record was replaced; 0 otherwise, with the record untouched.
int create_objects_dialog(create_objects_record *record);

// Fills `combo` with the host's reference names for the type selected in
// combo 1008; 1 when at least one name was added, else an error box and 0.
int fill_reference_list(HWND dialog, HWND combo);

// The remembered choices, for inspection.
struct create_objects_memory {
    uint32_t type;
    char ref_obj[64];
    uint32_t number;
    float obj_dist;
    float cam_dist;
    uint32_t aalign;
    uint32_t aacamrel;
    uint32_t orient;
    uint32_t ocamrel;
};
const create_objects_memory &create_objects_remembered();
