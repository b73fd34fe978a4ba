#include "tests/support/test_host.h"

TEST_F(editor_test, placeholder_starts_and_stops) {
    EXPECT_EQ(start_editor(), 1);
    EXPECT_EQ(editor_tidyup(), 1);
}
