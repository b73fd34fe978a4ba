// Start and tidy-up of every module, in the one fixed order.
#pragma once

#include "editor_api.h"

// Starts the modules in order, stopping at the first that fails; 1 when all started.
int modules_start(const editor_setup &setup);
// Tidies up every module in the same order as started; results are ignored.
void modules_tidyup(const editor_setup &setup);
