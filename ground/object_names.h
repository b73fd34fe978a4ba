// Object name list and Edit Name dialogs.
#pragma once

int object_names_start();
int object_names_tidyup();
