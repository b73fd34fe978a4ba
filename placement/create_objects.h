// Create New Objects dialog and its remembered choices.
#pragma once

int create_objects_start(const char *settings_file, const char *settings_folder);
int create_objects_tidyup(const char *settings_file, const char *settings_folder);
