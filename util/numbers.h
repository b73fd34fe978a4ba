// Numbers typed by a designer or read back from the settings file. Only plain
// decimal text counts: the runtime's own readers would also take hexadecimal,
// "inf" and "nan", which are no distances, durations or angles.
#pragma once

#include <cstddef>

// Reads the decimal number (sign, digits with an optional point, optional
// exponent) that begins `text` after any blanks, as a "%f" scan does. Returns
// the number of characters used, blanks included; 0, with value untouched,
// when the text does not begin with a number.
size_t scan_decimal(const char *text, float &value);
