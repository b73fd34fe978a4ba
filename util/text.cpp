#include "util/text.h"

#include <cstring>

void copy_text(char *dest, size_t dest_size, const char *src) {
    if (dest_size == 0) return;
    if (!src) src = "";
    size_t length = std::strlen(src);
    if (length >= dest_size) length = dest_size - 1;
    std::memcpy(dest, src, length);
    dest[length] = '\0';
}

void copy_field(char *dest, size_t dest_size, const char *src, size_t src_size) {
    if (dest_size == 0) return;
    size_t length = 0;
    while (length < src_size && length < dest_size - 1 && src[length]) ++length;
    std::memmove(dest, src, length);
    dest[length] = '\0';
}
