// The settings store: a few values in an INI-format file whose name the host
// supplies. Settings are named by section and key indices so that their texts
// live in one place.
#pragma once

#include <cstdint>

#include <windows.h>

enum settings_section {
    SETTINGS_TOOLBAR = 0,
    SETTINGS_QUERY = 1,
    SETTINGS_STATUS = 2,
    SETTINGS_MAIN = 3
};

// Keys of SETTINGS_TOOLBAR, SETTINGS_STATUS and SETTINGS_MAIN.
enum { SETTINGS_KEY_POSITION = 0 };

// Keys of SETTINGS_QUERY.
enum settings_query_key {
    QUERY_TYPE = 0,
    QUERY_REF_OBJ = 1,
    QUERY_NUMBER = 2,
    QUERY_OBJ_DIST = 3,
    QUERY_CAM_DIST = 4,
    QUERY_AALIGN = 5,
    QUERY_AACAMREL = 6,
    QUERY_ORIENT = 7,
    QUERY_OCAMREL = 8
};

// 1 when the setting exists and holds at least one character. Nothing is
// read when settings_file is null or the indices name no setting.
int settings_read(const char *settings_file, const char *settings_folder, int section, int key,
                  char *buffer, uint32_t size);

// Non-zero on success; creates file, section and key as needed.
int settings_write(const char *settings_file, const char *settings_folder, int section, int key,
                   const char *text);

// The "Position" settings of the main window, the toolbar and the Status
// window. Reading moves the window (without resizing or restacking) and shows
// it only when the value holds two integers "x,y"; writing stores the window's
// left and top edges.
void settings_restore_position(const char *settings_file, const char *settings_folder, int section,
                               HWND window);
void settings_save_position(const char *settings_file, const char *settings_folder, int section,
                            HWND window);
