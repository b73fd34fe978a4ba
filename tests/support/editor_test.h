// The gtest side of the test host: a fixture that starts each test with a
// fresh host and fails it on whatever the host finds wrong at the end.
#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "host/test_host.h"

// A test with a fresh host; tidies the editor up and checks the allocator at the end.
class editor_test : public ::testing::Test {
protected:
    test_host host;
    void SetUp() override;
    void TearDown() override;
    // editor_init with the host's setup (optionally adjusted first).
    int start_editor(const std::function<void(editor_setup &)> &adjust = nullptr);
};

// Fails the current test with the driver's failures, if any.
#define EXPECT_DRIVER_OK(driver) EXPECT_TRUE((driver).ok()) << (driver).failures()

// Runs `call`, a host request made from inside a driver step. The busy driver
// cannot drive a dialog that the call opens, so such a dialog is cancelled
// after a second and the answer is -1: a request that should be refused fails
// instead of hanging.
inline bool &nested_dialog_cancelled() {
    static bool cancelled = false;
    return cancelled;
}
inline void CALLBACK cancel_nested_dialog(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    nested_dialog_cancelled() = true;
    EndDialog(GetActiveWindow(), IDCANCEL);
}
template <class F>
int nested_call(F call) {
    nested_dialog_cancelled() = false;
    UINT_PTR timer = SetTimer(nullptr, 0, 1000, cancel_nested_dialog);
    const int result = call();
    KillTimer(nullptr, timer);
    return nested_dialog_cancelled() ? -1 : result;
}
