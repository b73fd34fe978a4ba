#include "util/numbers.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string>

namespace {
bool is_digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
}  // namespace

size_t scan_decimal(const char *text, float &value) {
    if (!text) return 0;
    const char *p = text;
    while (std::isspace(static_cast<unsigned char>(*p))) ++p;
    const char *start = p;
    if (*p == '+' || *p == '-') ++p;
    const char *digits = p;
    while (is_digit(*p)) ++p;
    bool any = p > digits;
    if (*p == '.') {
        const char *fraction = ++p;
        while (is_digit(*p)) ++p;
        any = any || p > fraction;
    }
    if (!any) return 0;
    if (*p == 'e' || *p == 'E') {
        const char *q = p + 1;
        if (*q == '+' || *q == '-') ++q;
        if (is_digit(*q)) {
            while (is_digit(*q)) ++q;
            p = q;
        }
    }
    // Converted from a copy of exactly the characters accepted, so that the
    // conversion cannot read more than this reader did ("0x1A" stays 0).
    const float read = std::strtof(std::string(start, p).c_str(), nullptr);
    if (!std::isfinite(read)) return 0;
    value = read;
    return static_cast<size_t>(p - text);
}

bool parse_number_strict(const char *text, float &value) {
    float read = 0;
    size_t used = scan_decimal(text, read);
    if (used == 0 || text[used] != '\0') return false;
    value = read;
    return true;
}

bool parse_number_lenient(const char *text, float &value) { return scan_decimal(text, value) != 0; }
