// Bounded text copies. Record fields are fixed-size and a host may fill one
// to its last byte without a terminator; these never read or write past
// either side and always terminate the destination.
#pragma once

#include <cstddef>

// Copies `src` (null reads as empty), cut to fit `dest_size` with its NUL.
void copy_text(char *dest, size_t dest_size, const char *src);
template <size_t N>
inline void copy_text(char (&dest)[N], const char *src) {
    copy_text(dest, N, src);
}

// Copies a fixed-size field of `src_size` bytes that may lack its
// terminator, cut to fit `dest`.
void copy_field(char *dest, size_t dest_size, const char *src, size_t src_size);
template <size_t N, size_t M>
inline void copy_field(char (&dest)[N], const char (&src)[M]) {
    copy_field(dest, N, src, M);
}
