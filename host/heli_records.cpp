#include "host/heli_records.h"

#include <cstdio>
#include <cstring>

namespace {
template <class T>
T *as(const dlist_node *node) {
    return reinterpret_cast<T *>(node->value);
}
}  // namespace

void *heli_records::alloc(uint32_t size) {
    void *block = memory_.alloc(size);
    if (block) std::memset(block, 0, size);
    return block;
}

void heli_records::track(const void *record, const char *what) { live[record] = what; }

bool heli_records::untrack(const void *record, const char *what) {
    auto found = live.find(record);
    if (found == live.end()) {
        char line[96];
        std::snprintf(line, sizeof line, "%s %p destroyed but not live (destroyed twice, or never made)", what,
                      record);
        problems.push_back(line);
        return false;
    }
    live.erase(found);
    return true;
}

dlist_node *heli_records::new_list() {
    auto *head = static_cast<dlist_node *>(memory_.alloc(12));
    if (!head) return nullptr;
    head->next = head->prev = head;
    head->value = reinterpret_cast<uintptr_t>(head);
    return head;
}

bool heli_records::append(dlist_node *head, const void *value) {
    auto *node = static_cast<dlist_node *>(memory_.alloc(12));
    if (!node) return false;
    node->value = reinterpret_cast<uintptr_t>(value);
    node->next = head;
    node->prev = head->prev;
    head->prev->next = node;
    head->prev = node;
    return true;
}

void heli_records::free_list(dlist_node *head) {
    if (!head) return;
    for (dlist_node *node = head->next; node != head;) {
        dlist_node *next = node->next;
        memory_.free(node, 12);
        node = next;
    }
    memory_.free(head, 12);
}

patrol_point *heli_records::create_patrol_point(const char *marker_name) {
    if (refuse_patrol_point || !marker_name) return nullptr;
    auto *point = static_cast<patrol_point *>(alloc(patrol_point_size));
    if (!point) return nullptr;
    std::strncpy(point->marker_name, marker_name, sizeof point->marker_name - 1);
    track(point, "patrol point");
    return point;
}

void heli_records::destroy_patrol_point(patrol_point *point) {
    if (point && untrack(point, "patrol point")) memory_.free(point, patrol_point_size);
}

heli_order_record *heli_records::create_order(uint32_t kind) {
    if (refuse_create || kind >= HELI_ORDER_KIND_COUNT) return nullptr;
    auto *order = static_cast<heli_order_record *>(alloc(order_size));
    if (!order) return nullptr;
    order->kind = kind;
    order->host_word = 0x484F5354;  // the host's own word, left alone by the editor
    bool made = false;
    switch (kind) {
    case HELI_ORDER_ENGAGE:
        if ((order->body.engage = static_cast<engage_order *>(alloc(engage_size)))) {
            order->body.engage->target_type = TARGETS_ALL_ENEMIES;
            order->body.engage->range = 500.0f;
            made = true;
        }
        break;
    case HELI_ORDER_DEPLOY:
    case HELI_ORDER_PICKUP:
        made = (order->body.deploy = new_list()) != nullptr;
        break;
    case HELI_ORDER_PATROL:
        if ((order->body.patrol = static_cast<patrol_order *>(alloc(patrol_size)))) {
            order->body.patrol->cycles = 1;
            made = (order->body.patrol->points = new_list()) != nullptr;
        }
        break;
    case HELI_ORDER_WAIT:
        if ((order->body.wait = static_cast<wait_order *>(alloc(sizeof(wait_order))))) {
            order->body.wait->mode = WAIT_FIXED_TIME;
            order->body.wait->time = 60.0f;
            std::strcpy(order->body.wait->name, "NO_OBJECT");
            order->body.wait->range = 100.0f;
            made = true;
        }
        break;
    case HELI_ORDER_LAND:
        made = (order->body.land = static_cast<land_order *>(alloc(sizeof(land_order)))) != nullptr;
        break;
    }
    track(order, "order");
    if (!made) {
        discard(order);
        return nullptr;
    }
    ++creates;
    return order;
}

bool heli_records::copy_body(const heli_order_record &source, heli_order_record &copy) {
    auto copy_block = [&](const void *from, uint32_t size) -> void * {
        void *to = from ? alloc(size) : nullptr;
        if (to) std::memcpy(to, from, size);
        return to;
    };
    auto copy_entries = [&](const dlist_node *from, uint32_t size) -> dlist_node * {
        dlist_node *list = new_list();
        if (!list || !from) return list;
        for (const dlist_node *node = from->next; node != from; node = node->next) {
            void *entry = node->value ? copy_block(as<void>(node), size) : nullptr;
            if ((node->value && !entry) || !append(list, entry)) {
                if (entry) memory_.free(entry, size);
                for (dlist_node *n = list->next; n != list; n = n->next)
                    if (n->value) memory_.free(as<void>(n), size);
                free_list(list);
                return nullptr;
            }
        }
        return list;
    };
    switch (source.kind) {
    case HELI_ORDER_ENGAGE:
        return (copy.body.engage = static_cast<engage_order *>(copy_block(source.body.engage, engage_size)));
    case HELI_ORDER_DEPLOY:
        return (copy.body.deploy = copy_entries(source.body.deploy, sizeof(deploy_entry)));
    case HELI_ORDER_PICKUP:
        return (copy.body.pickup = copy_entries(source.body.pickup, sizeof(pickup_entry)));
    case HELI_ORDER_PATROL: {
        copy.body.patrol = static_cast<patrol_order *>(copy_block(source.body.patrol, patrol_size));
        if (!copy.body.patrol) return false;
        const dlist_node *from = source.body.patrol->points;
        copy.body.patrol->points = new_list();
        if (!copy.body.patrol->points) return false;
        if (!from) return true;
        for (const dlist_node *node = from->next; node != from; node = node->next) {
            patrol_point *point = create_patrol_point(as<patrol_point>(node)->marker_name);
            if (!point) return false;
            if (!append(copy.body.patrol->points, point)) {
                destroy_patrol_point(point);
                return false;
            }
        }
        return true;
    }
    case HELI_ORDER_WAIT:
        return (copy.body.wait = static_cast<wait_order *>(copy_block(source.body.wait, sizeof(wait_order))));
    case HELI_ORDER_LAND:
        return (copy.body.land = static_cast<land_order *>(copy_block(source.body.land, sizeof(land_order))));
    default:
        return false;
    }
}

heli_order_record *heli_records::copy_order(const heli_order_record &source) {
    if (refuse_copy) return nullptr;
    auto *copy = static_cast<heli_order_record *>(alloc(order_size));
    if (!copy) return nullptr;
    copy->kind = source.kind;
    copy->host_word = source.host_word;
    track(copy, "order");
    if (!copy_body(source, *copy)) {
        discard(copy);
        return nullptr;
    }
    ++copies;
    return copy;
}

void heli_records::free_body(heli_order_record &order) {
    auto free_entries = [&](dlist_node *list, uint32_t size) {
        if (!list) return;
        for (dlist_node *node = list->next; node != list; node = node->next)
            if (node->value) memory_.free(as<void>(node), size);
        free_list(list);
    };
    switch (order.kind) {
    case HELI_ORDER_ENGAGE:
        if (order.body.engage) memory_.free(order.body.engage, engage_size);
        break;
    case HELI_ORDER_DEPLOY:
        free_entries(order.body.deploy, sizeof(deploy_entry));
        break;
    case HELI_ORDER_PICKUP:
        free_entries(order.body.pickup, sizeof(pickup_entry));
        break;
    case HELI_ORDER_PATROL:
        if (patrol_order *patrol = order.body.patrol) {
            if (dlist_node *points = patrol->points) {
                for (dlist_node *node = points->next; node != points; node = node->next)
                    destroy_patrol_point(as<patrol_point>(node));
                free_list(points);
            }
            memory_.free(patrol, patrol_size);
        }
        break;
    case HELI_ORDER_WAIT:
        if (order.body.wait) memory_.free(order.body.wait, sizeof(wait_order));
        break;
    case HELI_ORDER_LAND:
        if (order.body.land) memory_.free(order.body.land, sizeof(land_order));
        break;
    default:
        break;
    }
    order.body.word = nullptr;
}

bool heli_records::discard(heli_order_record *order) {
    if (!order || !untrack(order, "order")) return false;
    free_body(*order);
    memory_.free(order, order_size);
    return true;
}

void heli_records::destroy_order(heli_order_record *order) {
    if (discard(order)) ++destroys;
}

// --- Waypoints ---------------------------------------------------------------

namespace {
uint32_t &tail_word(void *record, uint32_t editor_size) {
    return *reinterpret_cast<uint32_t *>(static_cast<char *>(record) + editor_size);
}

// Appends a copy of each value of `from` to `to` (null values stay null);
// false when a copy or a node cannot be had, the unlisted copy given back.
template <class T, class Copy, class Release>
bool copy_values(heli_records &records, const dlist_node *from, dlist_node *to, Copy copy, Release release) {
    for (const dlist_node *node = from->next; node != from; node = node->next) {
        T *value = node->value ? copy(*as<T>(node)) : nullptr;
        if ((node->value && !value) || !records.append(to, value)) {
            if (value) release(value);
            return false;
        }
    }
    return true;
}
}  // namespace

void heli_records::destroy_orders(dlist_node *orders) {
    if (!orders) return;
    for (dlist_node *node = orders->next; node != orders; node = node->next)
        if (node->value) destroy_order(as<heli_order_record>(node));
    free_list(orders);
}

waypoint_record *heli_records::create_waypoint() {
    if (refuse_waypoint_create) return nullptr;
    auto *waypoint = static_cast<waypoint_record *>(alloc(waypoint_size));
    if (!waypoint) return nullptr;
    waypoint->orders = new_list();
    if (!waypoint->orders) {
        memory_.free(waypoint, waypoint_size);
        return nullptr;
    }
    // The host's defaults: low and at 100 km/h, engage threats only, PMC
    // damage sends the group to its rally point, low fuel sends it home.
    waypoint->height_level = HEIGHT_LOW;
    waypoint->transit_speed = 27.7778f;
    waypoint->carried_a = 0xCA;
    waypoint->carried_b = 0xCB;
    waypoint->non_threat_action = CONTACT_BYPASS;
    waypoint->threat_action = CONTACT_ENGAGE;
    waypoint->damage_level = DAMAGE_PMC;
    waypoint->fuel_low_action = ACTION_GO_HOME;
    waypoint->weapons_low_action = ACTION_CONTINUE;
    waypoint->damage_action = ACTION_USE_RALLY_POINT;
    tail_word(waypoint, sizeof(waypoint_record)) = host_tail;
    track(waypoint, "waypoint");
    ++waypoint_counts.creates;
    return waypoint;
}

waypoint_record *heli_records::copy_waypoint(const waypoint_record &source) {
    if (refuse_waypoint_copy) return nullptr;
    auto *copy = static_cast<waypoint_record *>(alloc(waypoint_size));
    if (!copy) return nullptr;
    std::memcpy(copy, &source, waypoint_size);
    copy->orders = new_list();
    track(copy, "waypoint");
    bool whole = copy->orders != nullptr;
    if (whole && source.orders)
        whole = copy_values<heli_order_record>(
            *this, source.orders, copy->orders, [&](const heli_order_record &o) { return copy_order(o); },
            [&](heli_order_record *o) { destroy_order(o); });
    if (!whole) {
        discard(copy);
        return nullptr;
    }
    ++waypoint_counts.copies;
    return copy;
}

bool heli_records::discard(waypoint_record *waypoint) {
    if (!waypoint || !untrack(waypoint, "waypoint")) return false;
    destroy_orders(waypoint->orders);
    memory_.free(waypoint, waypoint_size);
    return true;
}

void heli_records::destroy_waypoint(waypoint_record *waypoint) {
    if (discard(waypoint)) ++waypoint_counts.destroys;
}

// --- Heli groups ---------------------------------------------------------------

void heli_records::destroy_waypoints(dlist_node *waypoints) {
    if (!waypoints) return;
    for (dlist_node *node = waypoints->next; node != waypoints; node = node->next)
        if (node->value) destroy_waypoint(as<waypoint_record>(node));
    free_list(waypoints);
}

void heli_records::free_units(dlist_node *units) {
    if (!units) return;
    for (dlist_node *node = units->next; node != units; node = node->next)
        if (node->value) memory_.free(as<void>(node), sizeof(unit_entry));
    free_list(units);
}

heli_group_record *heli_records::create_heli_group() {
    if (refuse_group_create) return nullptr;
    auto *group = static_cast<heli_group_record *>(alloc(heli_group_size));
    if (!group) return nullptr;
    group->host_word = 0x48454C49;
    std::strcpy(group->name, "NewHeliGroup");
    tail_word(group, sizeof(heli_group_record)) = host_tail;
    track(group, "heli group");
    group->members = new_list();
    group->waypoints = new_list();
    group->in_transit = create_order(in_transit_kind);
    if (!group->members || !group->waypoints || !group->in_transit) {
        discard(group);
        return nullptr;
    }
    ++group_counts.creates;
    return group;
}

heli_group_record *heli_records::copy_heli_group(const heli_group_record &source) {
    if (refuse_group_copy) return nullptr;
    auto *copy = static_cast<heli_group_record *>(alloc(heli_group_size));
    if (!copy) return nullptr;
    std::memcpy(copy, &source, heli_group_size);
    copy->members = copy->waypoints = nullptr;
    copy->in_transit = nullptr;
    track(copy, "heli group");
    bool whole = true;
    if (source.members && (whole = (copy->members = new_list()) != nullptr))
        whole = copy_values<unit_entry>(
            *this, source.members, copy->members,
            [&](const unit_entry &u) {
                auto *unit = static_cast<unit_entry *>(alloc(sizeof u));
                if (unit) *unit = u;
                return unit;
            },
            [&](unit_entry *u) { memory_.free(u, sizeof *u); });
    if (whole && source.waypoints && (whole = (copy->waypoints = new_list()) != nullptr))
        whole = copy_values<waypoint_record>(
            *this, source.waypoints, copy->waypoints, [&](const waypoint_record &w) { return copy_waypoint(w); },
            [&](waypoint_record *w) { destroy_waypoint(w); });
    if (whole && source.in_transit) whole = (copy->in_transit = copy_order(*source.in_transit)) != nullptr;
    if (!whole) {
        discard(copy);
        return nullptr;
    }
    ++group_counts.copies;
    return copy;
}

bool heli_records::discard(heli_group_record *group) {
    if (!group || !untrack(group, "heli group")) return false;
    free_units(group->members);
    destroy_waypoints(group->waypoints);
    if (group->in_transit) destroy_order(group->in_transit);
    memory_.free(group, heli_group_size);
    return true;
}

void heli_records::destroy_heli_group(heli_group_record *group) {
    if (discard(group)) ++group_counts.destroys;
}

std::vector<std::string> heli_records::report() const {
    std::vector<std::string> all = problems;
    for (const auto &record : live) {
        char line[96];
        std::snprintf(line, sizeof line, "%s %p never destroyed", record.second.c_str(), record.first);
        all.push_back(line);
    }
    return all;
}

void heli_records::forget() {
    live.clear();
    problems.clear();
    creates = copies = destroys = 0;
    waypoint_counts = group_counts = tally{};
}
