// Group Composition dialog: the members, appearance and type of one ground group.
#pragma once

int group_composition_start();
int group_composition_tidyup();
