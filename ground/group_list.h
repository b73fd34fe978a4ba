// Group List dialog: every ground group of the mission.
#pragma once

int group_list_start();
int group_list_tidyup();
