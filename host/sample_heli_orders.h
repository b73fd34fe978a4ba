// Sample helicopter orders of the substitute host: one of each kind, made by
// the host's order store and filled with entries that name the mission's
// objects, and patrol points on its waypoint markers, so that each order
// dialog opens on something to show. For the heli group samples (a
// waypoint's orders, a group's in-transit order).
#pragma once

#include <string>

#include "editor_api.h"

// A new sample order of `kind` (0 to 5), or null; give it back with
// app().heli.destroy_order.
heli_order_record *sample_heli_order(uint32_t kind);

// A waypoint's orders list holding one sample order of each kind, in kind
// order; null when out of memory. free_sample_heli_orders destroys the orders
// still in it and frees the list.
dlist_node *sample_heli_orders();
void free_sample_heli_orders(dlist_node *orders);

// One line describing an order as it came back from the editor.
std::string describe_heli_order(const heli_order_record &order);
