#include "util/dlist.h"

#include "editor/editor.h"

namespace {
constexpr uint32_t node_size = sizeof(dlist_node);

dlist_node *new_node(uintptr_t value) {
    auto *node = static_cast<dlist_node *>(host().host_alloc(node_size));
    if (node) node->value = value;
    return node;
}

// A freed node must not pass for a head any more.
void free_node(dlist_node *node) {
    node->value = 0;
    host().host_free(node, node_size);
}

void unlink(dlist_node *node) {
    node->prev->next = node->next;
    node->next->prev = node->prev;
}

bool is_head(const dlist *head) {
    return head && head->value == reinterpret_cast<uintptr_t>(head);
}

void free_nodes(dlist *head) {
    dlist_node *node = head->next;
    while (node != head) {
        dlist_node *next = node->next;
        unlink(node);
        free_node(node);
        node = next;
    }
}
}  // namespace

dlist *dlist_create() {
    dlist_node *head = new_node(0);
    if (!head) return nullptr;
    head->next = head->prev = head;
    head->value = reinterpret_cast<uintptr_t>(head);
    return head;
}

void dlist_destroy(dlist *head) {
    if (!is_head(head)) return;
    free_nodes(head);
    free_node(head);
}

void dlist_clear(dlist *head) {
    if (!is_head(head) || head->next == head) return;
    free_nodes(head);
}

void dlist_push_front(dlist *head, uintptr_t value) {
    dlist_node *node = new_node(value);
    if (!node) return;
    head->next->prev = node;
    node->next = head->next;
    node->prev = head;
    head->next = node;
}

dlist_node *dlist_push_back(dlist *head, uintptr_t value) {
    dlist_node *node = new_node(value);
    if (!node) return nullptr;
    head->prev->next = node;
    node->next = head;
    node->prev = head->prev;
    head->prev = node;
    return node;
}

dlist_node *dlist_insert_before(dlist_node *node, uintptr_t value) {
    dlist_node *added = new_node(value);
    if (!added) return nullptr;
    added->next = node;
    added->prev = node->prev;
    node->prev->next = added;
    node->prev = added;
    return added;
}

void dlist_remove_node(dlist_node *node) {
    if (!node) return;
    unlink(node);
    free_node(node);
}

void dlist_remove_value(dlist *head, uintptr_t value) { dlist_remove_node(dlist_find(head, value)); }

dlist_node *dlist_find(const dlist *head, uintptr_t value) {
    for (dlist_node *node = head->next; node != head; node = node->next)
        if (node->value == value) return node;
    return nullptr;
}

uintptr_t dlist_last(const dlist *head) {
    return head->prev == head ? 0 : head->prev->value;
}

uint32_t dlist_count(const dlist *head) {
    uint32_t count = 0;
    for (const dlist_node *node = head->next; node != head; node = node->next) ++count;
    return count;
}

void dlist_splice(dlist *dest, dlist *src) {
    if (src->next == src) return;
    dlist_node *first = src->next;
    dlist_node *last = src->prev;
    first->prev = dest->prev;
    dest->prev->next = first;
    last->next = dest;
    dest->prev = last;
    src->next = src->prev = src;
}

dlist_node *dlist_node_at(const dlist *head, int index) {
    if (!head || index < 0) return nullptr;
    for (dlist_node *node : dlist_nodes(head))
        if (index-- == 0) return node;
    return nullptr;
}
