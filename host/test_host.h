// The host as the tests see it: a tracking allocator, lists built in host
// memory, a log of notifications and an editor_setup pointing at it all, with
// switches that make each family of host operations refuse. The test
// fixtures (and the fault sweep's player) check its allocator and records
// when they are done.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "editor_api.h"
#include "host/alloc_tracker.h"
#include "host/heli_records.h"
#include "host/ui_driver.h"

struct notification {
    int code;
    uintptr_t argument;
    float values[3];  // the three floats behind the address, for positions and orientations
};

struct test_host {
    alloc_tracker memory;
    // Orders, patrol points, waypoints and heli groups (host_order_*,
    // host_patrol_point_*, host_waypoint_*, host_heli_group_*), counted.
    heli_records heli{memory};
    HWND main_window = nullptr;
    std::string settings_folder;  // ends with a backslash
    std::string settings_file = "editor.ini";

    std::vector<notification> notifications;
    // Runs inside host_notify after the notification is logged.
    std::function<void(const notification &)> on_notify;

    // Names offered by the list operations; a refused acquire answers 0.
    std::array<std::vector<std::string>, 9> reference_names;
    std::vector<std::string> message_targets;
    std::vector<std::string> formations;
    std::vector<std::string> markers;
    bool refuse_acquire = false;
    bool refuse_release = false;
    int lists_out = 0;  // acquired and not yet released
    // Lists whose release the host refused: the editor did its part, so they
    // count as released and are freed at the end of the test.
    std::vector<dlist_node *> refused_releases;

    // Units handed out by host_unit_list (slot 22) and host_unit_list_standalone
    // (slot 26): every acquire builds fresh 68-byte copies, and a release
    // through slot 22 frees them. A refused release still frees the list.
    std::vector<unit_entry> units;
    std::vector<unit_entry> standalone_units;
    bool refuse_unit_acquire = false;
    bool refuse_unit_release = false;
    int unit_acquires = 0;        // slot 22, acquire 1
    int standalone_acquires = 0;  // slot 26
    static unit_entry unit(int32_t id, const std::string &name, const std::string &type_name);
    // A ground group in host memory (7844 bytes; members 68 bytes each).
    group_record *make_group(const std::string &name, const std::vector<unit_entry> &members, int32_t status = 0);
    void free_group(group_record *group);  // its member list too
    dlist_node *make_group_list(const std::vector<group_record *> &groups);
    void free_group_list(dlist_node *groups);  // and every group in it
    // Rally points handed out by host_rally_point_list (slot 27): fresh
    // 68-byte entries on each acquire, freed on release.
    std::vector<rally_point_entry> rally_points;
    bool refuse_rally_points = false;
    static rally_point_entry rally_point(uint32_t id, const std::string &name);

    // When set, refuse_acquire and refuse_release apply to this list of names only.
    const std::vector<std::string> *refuse_only = nullptr;

    // host_object_name: by id, the object's name and group; by name (and
    // host_object_exists), the names that exist.
    std::map<uint32_t, std::pair<std::string, std::string>> objects;
    std::set<std::string> existing_names;

    // Builds a list in host memory holding the given values; freed by release_list.
    dlist_node *build_list(const std::vector<uintptr_t> &values);
    void free_list(dlist_node *head);
    // A block of host memory holding a copy of the record.
    template <class T>
    T *copy_block(const T &record) {
        return static_cast<T *>(std::memcpy(memory.alloc(sizeof record), &record, sizeof record));
    }
    // A copy of a text the host keeps until it goes (names in its lists).
    char *host_text(const std::string &text);

    editor_setup setup();
    std::string settings_path() const { return settings_folder + settings_file; }
    std::string read_setting(const char *section, const char *key) const;
    void write_setting(const char *section, const char *key, const char *value) const;
    void clear_settings() const;

    // Ends a test's use of the host: what went wrong (lists not given back,
    // records destroyed twice or left live, leaks, unknown frees, size
    // mismatches), with the allocator and records forgotten for the next.
    std::vector<std::string> finish();

    // Records and lists in host memory that the host holds for a test and
    // frees in finish(): a list with the entries it then holds (the editor
    // adds and removes entries of such lists itself), each freed with the
    // size of the entries the list was made of, so an entry of another size
    // shows up as a mismatch.
    template <class T>
    T *held_record(const T &initial) {
        T *r = copy_block(initial);
        held_.push_back({r, sizeof(T), false});
        return r;
    }
    // A null pointer among `entries` stays a null value in the list.
    template <class T>
    dlist_node *held_entries(const std::vector<const T *> &entries) {
        std::vector<uintptr_t> values;
        for (const T *e : entries) values.push_back(e ? reinterpret_cast<uintptr_t>(copy_block(*e)) : 0);
        return hold_list(build_list(values), sizeof(T));
    }
    template <class T>
    dlist_node *held_entries(std::initializer_list<T> entries) {
        std::vector<const T *> pointers;
        for (const T &e : entries) pointers.push_back(&e);
        return held_entries(pointers);
    }
    dlist_node *held_names(const std::vector<std::string> &texts);

private:
    struct held_block {
        void *block;
        uint32_t size;  // of the record, or of a list's entries (0: not freed)
        bool list;
    };
    std::vector<held_block> held_;
    std::vector<std::unique_ptr<char[]>> texts_;
    dlist_node *hold_list(dlist_node *list, uint32_t entry_size);
};

// The host that the static host operations talk to.
extern test_host *current_host;
