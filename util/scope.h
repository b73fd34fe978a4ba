// Runs a cleanup when the scope ends, on every way out. Used so that a list
// acquired from the host is always released, and a working copy always freed.
#pragma once

#include <utility>

template <class F>
class scope_exit {
public:
    explicit scope_exit(F cleanup) : cleanup_(std::move(cleanup)) {}
    ~scope_exit() {
        if (active_) cleanup_();
    }
    scope_exit(const scope_exit &) = delete;
    scope_exit &operator=(const scope_exit &) = delete;
    // The cleanup will not run (ownership went elsewhere).
    void release() { active_ = false; }

private:
    F cleanup_;
    bool active_ = true;
};

template <class F>
scope_exit<F> on_scope_exit(F cleanup) {
    return scope_exit<F>(std::move(cleanup));
}
