// Walks a host list the way a host must find it after the editor has had
// it: the head keeps its mark (its value is its own address), each link
// agrees with the one back, the walk ends, and, given the allocator, every
// node is a live 12-byte block. Shared by the fault sweep's snapshots and the
// monkey's checks, so that both judge a list by the same rules.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "editor_api.h"
#include "host/alloc_tracker.h"

// The values front to back; the first thing wrong ends the walk and is
// described in `fault` (left empty when the list is whole).
inline std::vector<uintptr_t> checked_values(const dlist_node *head, std::string &fault,
                                             const alloc_tracker *memory = nullptr) {
    std::vector<uintptr_t> values;
    auto live = [memory](const dlist_node *node) { return !memory || memory->size_of(node) == sizeof(dlist_node); };
    if (!head || !live(head) || head->value != reinterpret_cast<uintptr_t>(head)) {
        fault = "no live head";
        return values;
    }
    // Every next->prev checked, back to the head, makes the backward walk
    // the same list.
    for (const dlist_node *node = head;;) {
        const dlist_node *next = node->next;
        if (!live(next)) fault = "a link to no live node";
        else if (next->prev != node) fault = "links that disagree";
        else if (next != head && values.size() > 100000) fault = "no end";
        if (!fault.empty() || next == head) return values;
        values.push_back(next->value);
        node = next;
    }
}
