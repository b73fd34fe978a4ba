// The circular doubly linked list shared with the host. Every node, the head
// included, is 12 bytes of host memory; the list owns its nodes, never the
// payloads that the value words point to.
#pragma once

#include <cstdint>
#include <iterator>

#include "editor_api.h"

using dlist = dlist_node;

dlist *dlist_create();
void dlist_destroy(dlist *head);
void dlist_clear(dlist *head);
void dlist_push_front(dlist *head, uintptr_t value);
dlist_node *dlist_push_back(dlist *head, uintptr_t value);
// The new node, or null (nothing added) when no node could be had.
dlist_node *dlist_insert_before(dlist_node *node, uintptr_t value);
void dlist_remove_node(dlist_node *node);
void dlist_remove_value(dlist *head, uintptr_t value);
uintptr_t dlist_last(const dlist *head);
// The first node, counted from the front, whose value word equals value; null when none does.
dlist_node *dlist_find(const dlist *head, uintptr_t value);
uint32_t dlist_count(const dlist *head);
void dlist_splice(dlist *dest, dlist *src);

// The node at `index` counted from the first (0); null when the list is
// shorter, the index negative or the head null. Walks `index` nodes.
dlist_node *dlist_node_at(const dlist *head, int index);

template <class T>
inline uintptr_t dlist_value(T *pointer) {
    return reinterpret_cast<uintptr_t>(pointer);
}

// Range over the nodes of a list, front to back: `for (dlist_node *n : dlist_nodes(head))`.
// The next node is taken before the body runs, so the body may remove the
// current node. A null head walks nothing.
class dlist_nodes {
public:
    explicit dlist_nodes(const dlist *head) : head_(head) {}
    class iterator {
    public:
        iterator(const dlist *head, dlist_node *node)
            : head_(head), node_(node), next_(node && node != head ? node->next : nullptr) {}
        dlist_node *operator*() const { return node_; }
        iterator &operator++() {
            node_ = next_;
            next_ = node_ && node_ != head_ ? node_->next : nullptr;
            return *this;
        }
        bool operator!=(const iterator &other) const { return node_ != other.node_; }

    private:
        const dlist *head_;
        dlist_node *node_;
        dlist_node *next_;
    };
    iterator begin() const {
        return head_ ? iterator(head_, head_->next) : end();
    }
    iterator end() const { return iterator(head_, const_cast<dlist *>(head_)); }

private:
    const dlist *head_;
};

// Range over the payloads of a list as pointers to T:
// `for (unit_entry *u : dlist_values<unit_entry>(head))`.
template <class T>
class dlist_values {
public:
    explicit dlist_values(const dlist *head) : nodes_(head) {}
    class iterator {
    public:
        explicit iterator(dlist_nodes::iterator it) : it_(it) {}
        T *operator*() const { return reinterpret_cast<T *>((*it_)->value); }
        iterator &operator++() {
            ++it_;
            return *this;
        }
        bool operator!=(const iterator &other) const { return it_ != other.it_; }

    private:
        dlist_nodes::iterator it_;
    };
    iterator begin() const { return iterator(nodes_.begin()); }
    iterator end() const { return iterator(nodes_.end()); }

private:
    dlist_nodes nodes_;
};
