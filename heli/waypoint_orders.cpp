// Until the order list is built, Edit Waypoint shows no orders and its order
// buttons do nothing.
#include "heli/waypoint_orders.h"

void fill_waypoint_order_list(HWND, const waypoint_record *) {}

bool waypoint_order_command(HWND, waypoint_record *, int, int, void (*)(HWND)) { return false; }

int select_order_type(HWND, uint32_t *) { return 0; }
