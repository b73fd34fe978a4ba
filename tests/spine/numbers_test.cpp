// Typed numbers: only plain decimal text counts, as a "%f" scan reads it. A
// strict field takes the number alone, a lenient one its leading number; a
// refused text leaves the value as it was.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "util/numbers.h"

TEST(numbers, plain_decimals_only_and_the_strict_and_lenient_rules) {
    const std::string forty_digits(40, '7'), long_number = std::string(300, '0') + "2.5";
    const struct {
        const char *text;
        size_t used;  // 0: no number
        float value;
    } cases[] = {
        {"2.5", 3, 2.5f},   {" 12.5", 5, 12.5f},  {"12.5 ", 4, 12.5f}, {" -1e3x", 5, -1000.0f}, {".5", 2, 0.5f},
        {"+7.", 3, 7.0f},   {"1e", 1, 1.0f},      {"1e3", 3, 1000.0f}, {"-0", 2, -0.0f},         {"0x1A", 1, 0.0f},
        {"12abc", 2, 12.0f}, {"2,5", 1, 2.0f},
        // A number longer than any buffer is still read whole.
        {long_number.c_str(), long_number.size(), 2.5f},
        // Nor is a number no float holds: it would be stored as infinity.
        {"", 0, 0}, {"-", 0, 0}, {".", 0, 0}, {" ", 0, 0}, {"inf", 0, 0}, {"-inf", 0, 0}, {"nan", 0, 0},
        {"abc", 0, 0}, {"e5", 0, 0}, {"+.e1", 0, 0}, {"1e39", 0, 0}, {"-1e39x", 0, 0}, {forty_digits.c_str(), 0, 0},
    };
    for (const auto &c : cases) {
        float value = -99.0f, strict = -99.0f, lenient = -99.0f;
        EXPECT_EQ(scan_decimal(c.text, value), c.used) << '"' << c.text << '"';
        const bool alone = c.used && c.used == std::strlen(c.text);
        EXPECT_EQ(parse_number_strict(c.text, strict), alone) << '"' << c.text << '"';
        EXPECT_EQ(parse_number_lenient(c.text, lenient), c.used > 0) << '"' << c.text << '"';
        EXPECT_EQ(value, c.used ? c.value : -99.0f) << c.text;
        EXPECT_EQ(strict, alone ? c.value : -99.0f) << c.text;
        EXPECT_EQ(lenient, c.used ? c.value : -99.0f) << c.text;
    }
}
