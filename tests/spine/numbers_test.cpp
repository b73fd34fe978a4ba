// Typed numbers: only plain decimal text counts, as a "%f" scan reads it.
#include <gtest/gtest.h>

#include <string>

#include "util/numbers.h"

TEST(scan_decimal, reads_plain_decimals_and_nothing_else) {
    const struct {
        const char *text;
        size_t used;
        float value;
    } cases[] = {
        {"2.5", 3, 2.5f},     {" -1e3x", 5, -1000.0f}, {".5", 2, 0.5f}, {"+7.", 3, 7.0f},
        {"1e", 1, 1.0f},      {"0x1A", 1, 0.0f},       {"12abc", 2, 12.0f},
    };
    for (const auto &c : cases) {
        float value = -99.0f;
        EXPECT_EQ(scan_decimal(c.text, value), c.used) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    // Nor is a number no float holds: it would be stored as infinity.
    const std::string forty_digits(40, '7');
    for (const char *text : {"", "-", ".", " ", "inf", "nan", "abc", "e5", "+.e1", "1e39", "-1e39x", forty_digits.c_str()}) {
        float value = -99.0f;
        EXPECT_EQ(scan_decimal(text, value), 0u) << text;
        EXPECT_EQ(value, -99.0f) << text;
    }
    // A number longer than any buffer is still read whole.
    float value = 0;
    std::string long_number = std::string(300, '0') + "2.5";
    EXPECT_EQ(scan_decimal(long_number.c_str(), value), long_number.size());
    EXPECT_EQ(value, 2.5f);
}
