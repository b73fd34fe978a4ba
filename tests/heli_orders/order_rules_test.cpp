// The two number rules the order dialogs share; each dialog's tests show
// which rule its fields follow.
#include <gtest/gtest.h>

#include "util/numbers.h"

TEST(order_numbers, strict_takes_the_number_alone_lenient_its_leading_number) {
    const struct {
        const char *text;
        bool strict;
        bool lenient;
        float value;  // what an accepting rule reads
    } cases[] = {
        {"12.5", true, true, 12.5f},    {" 12.5", true, true, 12.5f},  {"-0", true, true, -0.0f},
        {"12.5 ", false, true, 12.5f},  {"12m", false, true, 12.0f},   {"2,5", false, true, 2.0f},
        {"12abc", false, true, 12.0f},  {"0x10", false, true, 0.0f},   {"1e3", true, true, 1000.0f},
        {"", false, false, 0},          {"  ", false, false, 0},       {"abc", false, false, 0},
        {"nan", false, false, 0},       {"inf", false, false, 0},      {"-inf", false, false, 0},
        {"1e39", false, false, 0},      {"-1e39x", false, false, 0},   {".", false, false, 0},
    };
    for (const auto &c : cases) {
        float strict = -7.0f, lenient = -7.0f;
        EXPECT_EQ(parse_number_strict(c.text, strict), c.strict) << '"' << c.text << '"';
        EXPECT_EQ(parse_number_lenient(c.text, lenient), c.lenient) << '"' << c.text << '"';
        // A refused text leaves the value as it was.
        EXPECT_EQ(strict, c.strict ? c.value : -7.0f) << c.text;
        EXPECT_EQ(lenient, c.lenient ? c.value : -7.0f) << c.text;
    }
}
