// Group Orders dialog: a group's orders and contingency orders.
#pragma once

int group_orders_start();
int group_orders_tidyup();
