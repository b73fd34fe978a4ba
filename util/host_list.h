// A list that the host builds for choosing (markers, formations, units, ...),
// held for a scope: acquired on construction, released exactly once, on
// every way out. The editor only walks such a list; it never changes it.
#pragma once

#include "editor_api.h"
#include "util/dlist.h"

class held_list {
public:
    // Acquires through `acquire`; the release goes through `release`, which
    // is the same operation except for the standalone unit list (released as
    // a unit list). A null operation acquires nothing.
    explicit held_list(host_list_fn acquire, host_list_fn release = nullptr)
        : release_(release ? release : acquire) {
        acquired_ = acquire && acquire(&list_, HOST_LIST_ACQUIRE);
    }
    ~held_list() { release(); }
    held_list(const held_list &) = delete;
    held_list &operator=(const held_list &) = delete;

    explicit operator bool() const { return acquired_; }
    const dlist *get() const { return acquired_ ? list_ : nullptr; }

    // Releases now (once); the host's answer, or true when already released
    // or never acquired.
    bool release() {
        if (!acquired_) return released_ok_;
        acquired_ = false;
        released_ok_ = release_(&list_, HOST_LIST_RELEASE) != 0;
        return released_ok_;
    }

private:
    host_list_fn release_;
    dlist *list_ = nullptr;
    bool acquired_ = false;
    bool released_ok_ = true;
};
