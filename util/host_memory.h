// Host memory as the dialogs use it: every record, entry and node that
// crosses the boundary comes from host_alloc and goes back through host_free
// with the same size. The list helpers are all or nothing: a copy or a
// commit that cannot be made whole leaves nothing behind and changes nothing.
#pragma once

#include <cstdint>
#include <cstring>

#include "editor/editor.h"
#include "editor_api.h"
#include "util/dlist.h"

// A zero-filled block of sizeof(T) bytes, or null.
template <class T>
T *host_new() {
    auto *block = static_cast<T *>(host().host_alloc(sizeof(T)));
    if (block) std::memset(block, 0, sizeof(T));
    return block;
}

// A copy of a whole record in host memory, or null.
template <class T>
T *host_copy(const T &source) {
    auto *copy = static_cast<T *>(host().host_alloc(sizeof(T)));
    if (copy) std::memcpy(copy, &source, sizeof(T));
    return copy;
}

// Gives a block of sizeof(T) bytes back; null is ignored.
template <class T>
void host_delete(T *block) {
    if (block) host().host_free(block, sizeof(T));
}

// A 68-byte unit copy: zeroed, then the name and type name (each cut to 31
// characters, whatever the source holds) and the id; null when out of memory.
unit_entry *copy_unit(const unit_entry &unit);

// Appends `entry` to the list; when no node can be had the entry is given
// back and the answer is false, with the list unchanged.
template <class T>
bool append_entry(dlist *list, T *entry) {
    if (!entry) return false;
    if (dlist_push_back(list, dlist_value(entry))) return true;
    host_delete(entry);
    return false;
}

// Unlinks the first node holding `entry` and gives the entry back; false,
// with nothing changed, when no node holds it (or it is null).
template <class T>
bool remove_entry(dlist *list, T *entry) {
    dlist_node *node = entry ? dlist_find(list, dlist_value(entry)) : nullptr;
    if (!node) return false;
    dlist_remove_node(node);
    host_delete(entry);
    return true;
}

// Puts `entry` before `node` (the head: at the tail); when no node can be
// had the entry is given back and the answer is false, the list unchanged.
template <class T>
bool insert_entry_before(dlist_node *node, T *entry) {
    if (!entry) return false;
    if (dlist_insert_before(node, dlist_value(entry))) return true;
    host_delete(entry);
    return false;
}

// Gives back every entry (sizeof(T) bytes each) and every node; the head
// stays, an empty list.
template <class T>
void free_entries(dlist *list) {
    for (dlist_node *node : dlist_nodes(list)) {
        host_delete(reinterpret_cast<T *>(node->value));
        dlist_remove_node(node);
    }
}

// free_entries, then the head; the pointer is cleared. Null is ignored.
template <class T>
void destroy_entry_list(dlist *&list) {
    if (!list) return;
    free_entries<T>(list);
    dlist_destroy(list);
    list = nullptr;
}

// A new list holding a copy of each entry of `source` (null values are left
// out), made by `copy` (a function answering a new host block or null). All
// or nothing: null, with everything made so far given back, when any block
// or node cannot be had. A null source copies as an empty list.
template <class T, class Copy>
dlist *copy_entries(const dlist *source, Copy copy) {
    dlist *list = dlist_create();
    if (!list) return nullptr;
    for (T *entry : dlist_values<T>(source)) {
        if (entry && !append_entry(list, copy(*entry))) {
            destroy_entry_list<T>(list);
            return nullptr;
        }
    }
    return list;
}
template <class T>
dlist *copy_entries(const dlist *source) {
    return copy_entries<T>(source, [](const T &entry) { return host_copy(entry); });
}

// The commit of a list made whole beforehand: gives back the entries of
// `dest`, moves every node of `fresh` into it (no allocation, so it cannot
// fail) and destroys the head of `fresh`. `dest` keeps its head, which the
// host may know.
template <class T>
void replace_entries(dlist *dest, dlist *&fresh) {
    free_entries<T>(dest);
    dlist_splice(dest, fresh);
    dlist_destroy(fresh);
    fresh = nullptr;
}
