// A ground group as the editor works on it: the working copy that Group
// Composition edits, the group type names, and the line texts of unit lists.
#pragma once

#include <cstddef>
#include <cstdint>

#include <cstring>

#include "editor/editor.h"
#include "editor_api.h"
#include "util/dlist.h"

// The group open in Group Composition. Every entry of its lists is the
// editor's own host_alloc copy (68, 172 and 232 bytes).
struct group_working_copy {
    char name[32];
    dlist *orders;         // sarge_order_record *
    dlist *contingencies;  // contingency_order_record *
    int32_t status;
    dlist *members;        // unit_entry *
    uint32_t appearance;
    int32_t target_player_only;
    int32_t group_type;
};

// Indexed by group_record.group_type.
extern const char *const unit_type_names[UNIT_TYPE_COUNT];

// Fills `copy` from `record`. False (with nothing left allocated) when the
// host is out of memory for the lists themselves.
bool load_group(group_working_copy &copy, const group_record &record);
// Writes the working copy into the record (the host's record changes here only).
void store_group(group_record &record, const group_working_copy &copy);
// Releases every entry and list of the copy; safe to call twice.
void free_group_working_copy(group_working_copy &copy);

// A 68-byte host_alloc copy of a unit (name, type name, id); null when out of memory.
unit_entry *copy_unit(const unit_entry &unit);
// Releases every entry of a member list (68 bytes each) and unlinks its nodes.
void clear_members(dlist *members);

// Copies a fixed 32-byte name field; reads no further than the field even
// when the source lacks its terminator.
void copy_name(char (&dest)[32], const char (&src)[32]);

// "%s (%s)" of two 32-byte fields. Each part is cut at 31 characters, so the
// buffer below always holds the whole line: nothing is cut or overrun.
constexpr size_t UNIT_LINE_SIZE = 68;
void format_pair_line(char (&line)[UNIT_LINE_SIZE], const char *name, const char *detail);

// Whole-record copies in host memory and the lists that hold them.
// A host_alloc copy of a record; null when the host is out of memory.
template <class T>
T *host_copy(const T &source) {
    auto *copy = static_cast<T *>(host().host_alloc(sizeof(T)));
    if (copy) std::memcpy(copy, &source, sizeof(T));
    return copy;
}

// Appends a copy to a list; the copy is released again when no node could be had.
template <class T>
void append_copy(dlist *list, T *copy) {
    if (!copy) return;
    if (!dlist_push_back(list, dlist_value(copy))) host().host_free(copy, sizeof(T));
}

// Releases every entry (sizeof(T) bytes each) and unlinks its node.
template <class T>
void free_entries(dlist *list) {
    for (dlist_node *node : dlist_nodes(list)) {
        if (node->value) host().host_free(reinterpret_cast<T *>(node->value), sizeof(T));
        dlist_remove_node(node);
    }
}

// free_entries, then the list itself; the pointer is cleared.
template <class T>
void destroy_entry_list(dlist *&list) {
    if (!list) return;
    free_entries<T>(list);
    dlist_destroy(list);
    list = nullptr;
}
