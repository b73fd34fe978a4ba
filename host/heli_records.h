// Helicopter records as a host keeps them: orders with their bodies, lists
// and entries, patrol points, waypoints with their orders, and heli groups
// with their members, routes and in-transit orders, made, deep-copied and
// destroyed in host memory. Both the substitute host and the test host serve
// their helicopter operations from here, so the editor meets the same records in
// the tour and in the tests. Every record made or copied is tracked until it
// is destroyed: a destroy of a record that is not live (twice, or never made)
// is a problem, and so is a record still live at the end.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "editor_api.h"
#include "host/alloc_tracker.h"

class heli_records {
public:
    explicit heli_records(alloc_tracker &memory) : memory_(memory) {}
    heli_records(const heli_records &) = delete;
    heli_records &operator=(const heli_records &) = delete;

    // A new order of `kind` (0 to 5) with the host's defaults: its body, and
    // for Deploy, Pickup and Patrol an empty list head in place. Null when
    // refused or out of memory.
    heli_order_record *create_order(uint32_t kind);
    // A deep copy: its own body, list head, nodes and entries (and patrol points).
    heli_order_record *copy_order(const heli_order_record &source);
    // Frees the record with everything it owns.
    void destroy_order(heli_order_record *order);

    // A patrol point for a marker (its name, then a position of the host's).
    patrol_point *create_patrol_point(const char *marker_name);
    void destroy_patrol_point(patrol_point *point);

    // A new waypoint with the host's defaults and an empty orders list.
    waypoint_record *create_waypoint();
    // A deep copy: its own orders list holding copies of the orders.
    waypoint_record *copy_waypoint(const waypoint_record &source);
    // Frees the waypoint with its orders list and every order in it.
    void destroy_waypoint(waypoint_record *waypoint);

    // A new heli group named by the host, with empty members and route lists
    // and an in-transit order of in_transit_kind.
    heli_group_record *create_heli_group();
    // A deep copy: its own member entries, waypoints and in-transit order; a
    // null list or order is copied as null.
    heli_group_record *copy_heli_group(const heli_group_record &source);
    // Frees the group with its member entries, lists, waypoints and
    // in-transit order.
    void destroy_heli_group(heli_group_record *group);

    // Frees a list with the records in it: orders, waypoints, or 68-byte
    // unit entries. Null is ignored.
    void destroy_orders(dlist_node *orders);
    void destroy_waypoints(dlist_node *waypoints);
    void free_units(dlist_node *units);

    // Lists in host memory: 12-byte nodes. free_list frees nodes only.
    dlist_node *new_list();
    bool append(dlist_node *head, const void *value);
    void free_list(dlist_node *head);

    // Failure switches: the next operations of that family answer failure.
    bool refuse_create = false;
    bool refuse_copy = false;
    bool refuse_patrol_point = false;
    bool refuse_waypoint_create = false;
    bool refuse_waypoint_copy = false;
    bool refuse_group_create = false;
    bool refuse_group_copy = false;

    // Counts since construction (creates, copies and destroys count orders;
    // waypoints and groups have their own), and the records made or copied
    // and not yet destroyed (by address, with what they are).
    int creates = 0, copies = 0, destroys = 0;
    struct tally {
        int creates = 0, copies = 0, destroys = 0;
    };
    tally waypoint_counts, group_counts;
    std::map<const void *, std::string> live;
    // Destroys of records that were not live, and anything else inconsistent.
    std::vector<std::string> problems;
    // problems, plus every record still live; empty when all is well.
    std::vector<std::string> report() const;
    void forget();

    // Host-side sizes (the editor relies only on the leading fields).
    static constexpr uint32_t order_size = 12;
    static constexpr uint32_t engage_size = 16;  // 8 bytes the editor uses, 8 of the host's
    static constexpr uint32_t patrol_size = 16;
    static constexpr uint32_t patrol_point_size = 44;  // name, then x, y, z
    static constexpr uint32_t waypoint_size = 80;      // 76 bytes the editor uses, then a word of the host's
    static constexpr uint32_t heli_group_size = 60;    // 56 bytes the editor uses, then a word of the host's
    static constexpr uint32_t host_tail = 0x5441494C;  // what the host keeps in that word
    static constexpr uint32_t in_transit_kind = HELI_ORDER_DEPLOY;

private:
    void *alloc(uint32_t size);
    void track(const void *record, const char *what);
    bool untrack(const void *record, const char *what);
    bool copy_body(const heli_order_record &source, heli_order_record &copy);
    void free_body(heli_order_record &order);
    // Frees a tracked order whole; false when it was not live.
    bool discard(heli_order_record *order);
    // Frees a tracked waypoint or group whole; false when it was not live.
    bool discard(waypoint_record *waypoint);
    bool discard(heli_group_record *group);

    alloc_tracker &memory_;
};
