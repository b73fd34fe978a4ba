// Edit Heli Group dialog.
#pragma once

int heli_group_start();
int heli_group_tidyup();
