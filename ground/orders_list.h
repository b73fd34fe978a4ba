// Orders dialog: the choice of a sarge order's type.
#pragma once

int orders_list_start();
int orders_list_tidyup();
