// Numbers typed by a designer or read back from the settings file. Only plain
// decimal text counts: the runtime's own readers would also take hexadecimal,
// "inf" and "nan", which are no distances, durations or angles.
#pragma once

#include <cstddef>

// Reads the decimal number (sign, digits with an optional point, optional
// exponent) that begins `text` after any blanks, as a "%f" scan does. Returns
// the number of characters used, blanks included; 0, with value untouched,
// when the text does not begin with a number. A number no float can hold
// (1e39, or forty digits) counts as none: stored, it would be an infinite
// distance, duration or position.
size_t scan_decimal(const char *text, float &value);

// The two rules of the order and air-support dialogs, on the "%f%c" pattern
// (a number after optional blanks, then one more character), both over
// scan_decimal.
// Strict: the number alone, nothing after it ("12.5" yes; "12.5 ", "12m",
// "abc" and "" no).
bool parse_number_strict(const char *text, float &value);
// Lenient: the text begins with a number; what follows is ignored ("12m"
// gives 12; "", "  " and "abc" no).
bool parse_number_lenient(const char *text, float &value);
