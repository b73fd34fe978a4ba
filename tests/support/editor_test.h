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
