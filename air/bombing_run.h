// Edit Bombing Run Details dialog.
#pragma once

int bombing_run_start();
int bombing_run_tidyup();
