// A minimal PNG writer (stored deflate blocks): enough for screenshots
// without an image library.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// rgb: width * height * 3 bytes, rows top to bottom. False when the file cannot be written.
bool write_png(const std::string &path, int width, int height, const std::vector<uint8_t> &rgb);
