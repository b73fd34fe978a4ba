#include "heli_orders/heli_order.h"

#include <cstdio>

#include "editor/editor.h"
#include "resources/string_ids.h"
#include "util/dialogs.h"

namespace {
struct order_kind {
    int label;                                         // string id
    int (*edit)(HWND owner, heli_order_record &order);  // opens the kind's dialog
};

// Indexed by kind. A kind whose dialog is not built yet has no opener and
// answers 0.
const order_kind order_kinds[HELI_ORDER_KIND_COUNT] = {
    {IDS_HELI_ENGAGE, nullptr},
    {IDS_HELI_DEPLOY, nullptr},
    {IDS_HELI_PICKUP, nullptr},
    {IDS_HELI_PATROL, nullptr},
    {IDS_HELI_WAIT, nullptr},
    {IDS_HELI_LAND, nullptr},
};

}  // namespace

int edit_heli_order(HWND owner, heli_order_record *order) {
    if (!order || order->kind >= HELI_ORDER_KIND_COUNT) return 0;
    const order_kind &kind = order_kinds[order->kind];
    return kind.edit ? kind.edit(owner, *order) : 0;
}

int heli_order_label(uint32_t kind) { return kind < HELI_ORDER_KIND_COUNT ? order_kinds[kind].label : 0; }

void report_already_on_list(const char *name) {
    char text[128];
    std::snprintf(text, sizeof text, "Object <%s> already on list", name);
    show_message(text, MESSAGE_ERROR);
}

bool check_object_name(const char *name) {
    host_object_exists_fn exists = host().host_object_exists;
    if (exists && exists(name)) return true;
    char text[128];
    std::snprintf(text, sizeof text, "Object <%s> does not exist", name);
    return show_message(text, MESSAGE_QUESTION) != 0;
}
