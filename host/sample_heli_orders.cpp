#include "host/sample_heli_orders.h"

#include <cstdio>
#include <cstring>

#include "host/host_app.h"
#include "host/sample_mission.h"

namespace {
template <class T>
T *entry(const char *name) {
    auto *made = static_cast<T *>(app().memory.alloc(sizeof(T)));
    if (!made) return nullptr;
    std::memset(made, 0, sizeof(T));
    std::snprintf(made->name, sizeof made->name, "%s", name);
    return made;
}

void add_deploy(dlist_node *list, const char *name, float x, float z) {
    deploy_entry *e = entry<deploy_entry>(name);
    if (!e) return;
    e->x = x;
    e->y = 2.5f;  // the host's height, which the editor leaves alone
    e->z = z;
    if (!app().heli.append(list, e)) app().memory.free(e, sizeof *e);
}

void add_pickup(dlist_node *list, const char *name) {
    pickup_entry *e = entry<pickup_entry>(name);
    if (e && !app().heli.append(list, e)) app().memory.free(e, sizeof *e);
}

void add_point(dlist_node *list, const std::string &marker) {
    patrol_point *p = app().heli.create_patrol_point(marker.c_str());
    if (p && !app().heli.append(list, p)) app().heli.destroy_patrol_point(p);
}

std::string text_of(const char *field, size_t size) { return std::string(field, strnlen(field, size)); }
}  // namespace

heli_order_record *sample_heli_order(uint32_t kind) {
    heli_order_record *order = app().heli.create_order(kind);
    if (!order) return nullptr;
    const std::vector<std::string> &markers = mission().markers;
    switch (kind) {
    case HELI_ORDER_ENGAGE:
        order->body.engage->target_type = TARGETS_PRIMARY;
        order->body.engage->range = 800.0f;
        break;
    case HELI_ORDER_DEPLOY:
        add_deploy(order->body.deploy, "Tank1", 120.0f, -40.0f);
        add_deploy(order->body.deploy, "Grunt7", 135.5f, -42.25f);
        break;
    case HELI_ORDER_PICKUP:
        add_pickup(order->body.pickup, "Grunt7");
        add_pickup(order->body.pickup, "Tank2");
        break;
    case HELI_ORDER_PATROL:
        for (size_t i = 0; i < markers.size() && i < 3; ++i) add_point(order->body.patrol->points, markers[i]);
        order->body.patrol->cycles = 3;
        break;
    case HELI_ORDER_WAIT:
        order->body.wait->mode = WAIT_FOR_OBJECT;
        std::snprintf(order->body.wait->name, sizeof order->body.wait->name, "%s", "Bridge1");
        order->body.wait->range = 150.0f;
        break;
    case HELI_ORDER_LAND:
        for (int i = 0; i < LAND_POSITIONS; ++i) {
            land_position &p = order->body.land->positions[i];
            p = {i < 4 ? 200.0f + 15.0f * i : 0.0f, 1.0f, i < 4 ? -80.0f : 0.0f};
        }
        break;
    }
    return order;
}

dlist_node *sample_heli_orders() {
    dlist_node *orders = app().heli.new_list();
    if (!orders) return nullptr;
    for (uint32_t kind = 0; kind < HELI_ORDER_KIND_COUNT; ++kind) {
        heli_order_record *order = sample_heli_order(kind);
        if (order && !app().heli.append(orders, order)) app().heli.destroy_order(order);
    }
    return orders;
}

void free_sample_heli_orders(dlist_node *orders) {
    if (!orders) return;
    for (dlist_node *node = orders->next; node != orders; node = node->next)
        app().heli.destroy_order(reinterpret_cast<heli_order_record *>(node->value));
    app().heli.free_list(orders);
}

std::string describe_heli_order(const heli_order_record &order) {
    static const char *const kinds[] = {"engage", "deploy", "pickup", "patrol", "wait", "land"};
    std::string line = order.kind < HELI_ORDER_KIND_COUNT ? kinds[order.kind] : "kind " + std::to_string(order.kind);
    char part[96];
    auto each = [&](const dlist_node *list, auto describe) {
        for (const dlist_node *node = list->next; node != list; node = node->next) line += describe(node->value);
    };
    switch (order.kind) {
    case HELI_ORDER_ENGAGE:
        std::snprintf(part, sizeof part, ": targets %u, range %.1f", order.body.engage->target_type,
                      static_cast<double>(order.body.engage->range));
        return line + part;
    case HELI_ORDER_DEPLOY:
        each(order.body.deploy, [&](uintptr_t value) {
            const auto *e = reinterpret_cast<const deploy_entry *>(value);
            std::snprintf(part, sizeof part, " [%s at %.1f, %.1f]", text_of(e->name, 32).c_str(),
                          static_cast<double>(e->x), static_cast<double>(e->z));
            return std::string(part);
        });
        return line;
    case HELI_ORDER_PICKUP:
        each(order.body.pickup, [](uintptr_t value) {
            return " [" + text_of(reinterpret_cast<const pickup_entry *>(value)->name, 25) + "]";
        });
        return line;
    case HELI_ORDER_PATROL:
        line += ": " + std::to_string(order.body.patrol->cycles) + " cycles";
        each(order.body.patrol->points, [](uintptr_t value) {
            return " [" + text_of(reinterpret_cast<const patrol_point *>(value)->marker_name, 32) + "]";
        });
        return line;
    case HELI_ORDER_WAIT: {
        const wait_order &w = *order.body.wait;
        std::snprintf(part, sizeof part, ": mode %u, time %.1f, \"%s\" within %.1f", w.mode,
                      static_cast<double>(w.time), text_of(w.name, 32).c_str(), static_cast<double>(w.range));
        return line + part;
    }
    case HELI_ORDER_LAND:
        for (const land_position &p : order.body.land->positions) {
            std::snprintf(part, sizeof part, " (%.1f, %.1f)", static_cast<double>(p.x), static_cast<double>(p.z));
            line += part;
        }
        return line;
    default:
        return line;
    }
}
