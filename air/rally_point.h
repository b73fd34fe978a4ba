// Edit Rally Point Details dialog.
#pragma once

int rally_point_start();
int rally_point_tidyup();
