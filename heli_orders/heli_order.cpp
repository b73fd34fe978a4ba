#include "heli_orders/heli_order.h"

#include <cstdio>

#include "editor/editor.h"
#include "heli_orders/order_dialogs.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/numbers.h"

namespace {
struct order_kind {
    int label;                                         // string id
    int (*edit)(HWND owner, heli_order_record &order);  // opens the kind's dialog
};

// Each dialog is given the record's offset-8 word, typed for its kind.
template <class Body, int (*Edit)(HWND, Body)>
int open_on(HWND owner, heli_order_record &order) {
    return Edit(owner, reinterpret_cast<Body>(order.body.word));
}

// Indexed by kind.
const order_kind order_kinds[HELI_ORDER_KIND_COUNT] = {
    {IDS_HELI_ENGAGE, open_on<engage_order *, edit_engage_order>},
    {IDS_HELI_DEPLOY, open_on<dlist *, edit_deploy_order>},
    {IDS_HELI_PICKUP, open_on<dlist *, edit_pickup_order>},
    {IDS_HELI_PATROL, open_on<patrol_order *, edit_patrol_order>},
    {IDS_HELI_WAIT, open_on<wait_order *, edit_wait_order>},
    {IDS_HELI_LAND, open_on<land_order *, edit_land_order>},
};
}  // namespace

int edit_heli_order(HWND owner, heli_order_record *order) {
    if (!order || order->kind >= HELI_ORDER_KIND_COUNT) return 0;
    return order_kinds[order->kind].edit(owner, *order);
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

void show_number(HWND dialog, int id, float value) { set_item_text_f(dialog, id, "%6.1f", static_cast<double>(value)); }

