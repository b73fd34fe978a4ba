// Helicopter orders. A game reaches the order dialogs only through its heli
// groups (requests 14 and 15: Edit Heli Group, its waypoints and in-transit
// order), so the sample orders here are what those samples give the editor;
// until the heli group requests answer, the host logs them as they stand.
#include "host/host_app.h"
#include "host/sample_heli_orders.h"

namespace {
void log_sample_orders() {
    dlist_node *orders = sample_heli_orders();
    if (!orders) return;
    for (dlist_node *node = orders->next; node != orders; node = node->next)
        app().log("sample order: " + describe_heli_order(*reinterpret_cast<heli_order_record *>(node->value)));
    free_sample_heli_orders(orders);
}
}  // namespace

HOST_FEATURE("&Helicopters", "Developer: sample &orders (log)", log_sample_orders, log_sample_orders, 60);
