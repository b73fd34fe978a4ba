// Create New Objects dialog and its remembered choices.
#pragma once

#include <windows.h>

#include "editor_api.h"

// Control ids of dialog 122.
enum create_objects_control {
    IDD_CREATE_OBJECTS = 122,
    IDC_CO_TYPE = 1008,
    IDC_CO_REF_OBJ = 1021,
    IDC_CO_NUMBER = 1010,
    IDC_CO_OBJ_DIST = 1012,
    IDC_CO_CAM_DIST = 1020,
    IDC_CO_AALIGN_X = 1015,
    IDC_CO_AALIGN_Y = 1017,
    IDC_CO_AALIGN_Z = 1018,
    IDC_CO_AACAMREL = 1016,
    IDC_CO_ORIENT_X = 1022,
    IDC_CO_ORIENT_Y = 1023,
    IDC_CO_ORIENT_Z = 1024,
    IDC_CO_OCAMREL = 1025
};

// Restores (start) and saves (tidy-up) the remembered choices under "Query".
int create_objects_start(const char *settings_file, const char *settings_folder);
int create_objects_tidyup(const char *settings_file, const char *settings_folder);

// The handler of REQUEST_CREATE_OBJECTS: 1 when the designer confirmed and the
// whole record was replaced; 0 otherwise, with the record untouched.
int create_objects_dialog(create_objects_record *record);

INT_PTR CALLBACK create_objects_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam);

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
