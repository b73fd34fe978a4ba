// Sarge Order dialog: one order of a ground group.
#pragma once

int sarge_order_start();
int sarge_order_tidyup();
