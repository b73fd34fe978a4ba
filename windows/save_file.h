// The standard save-file dialog for mission (*.mis) and world data (*.dat) files.
#pragma once

#include <cstdint>

// buffer holds the start folder on entry and the chosen path (or the empty
// text) on return; size is its capacity in bytes. Non-zero when the designer
// chose a name and confirmed it.
int save_file_dialog(char *buffer, uint32_t size, int mission);
