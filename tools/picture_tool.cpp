// picture_tool: turns a 32x32 text picture (resources/pictures/*.txt) into a
// Windows .cur or .ico file that windres can embed.
//
//   picture_tool cursor IN.txt OUT.cur   1 bpp cursor, needs a "hotspot X Y" line
//   picture_tool icon   IN.txt OUT.ico   4 bpp icon in the 16-colour VGA palette
//
// The pictures are kept as text so that they can be reviewed and edited in a
// diff; the binary files only ever exist in the build tree.  This runs on the
// build machine, so it is plain standard C++ and is compiled natively.

#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace picture_tool {

constexpr int kSize = 32;

enum class Kind { cursor, icon };

struct Picture {
    // Palette index per pixel, row 0 at the top; -1 is transparent.  For
    // cursors index 0 is black and 1 is white.
    std::array<std::array<int, kSize>, kSize> pixels{};
    int hotspot_x = -1;
    int hotspot_y = -1;
};

// The standard 16-colour VGA palette in the order Windows uses, as RGB.
constexpr std::array<std::uint32_t, 16> kVgaPalette = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

// Maps one picture character to a palette index, -1 for transparent, or -2
// when the character means nothing for this kind of picture.
inline int pixel_value(Kind kind, char c) {
    if (c == '.') return -1;
    if (kind == Kind::cursor) {
        if (c == '#') return 0;
        if (c == 'o') return 1;
        return -2;
    }
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -2;
}

inline std::string trim_right(std::string s) {
    while (!s.empty() && (s.back() == '\r' || s.back() == ' ' || s.back() == '\t')) s.pop_back();
    return s;
}

// Reads a picture: lines starting with ';' and blank lines are comments, one
// optional "hotspot X Y" line, and exactly 32 rows of 32 picture characters.
// Throws std::runtime_error naming the line for anything else.
inline Picture parse(std::istream& in, Kind kind) {
    Picture pic;
    int rows = 0;
    int line_no = 0;
    std::string line;
    auto fail = [&](const std::string& what) {
        throw std::runtime_error("line " + std::to_string(line_no) + ": " + what);
    };
    while (std::getline(in, line)) {
        ++line_no;
        line = trim_right(line);
        if (line.empty() || line[0] == ';') continue;
        if (line.rfind("hotspot", 0) == 0) {
            if (kind != Kind::cursor) fail("an icon has no hot spot");
            if (pic.hotspot_x >= 0) fail("second hotspot line");
            std::istringstream words(line.substr(7));
            int x = -1, y = -1;
            std::string rest;
            if (!(words >> x >> y) || (words >> rest)) fail("expected \"hotspot X Y\"");
            if (x < 0 || x >= kSize || y < 0 || y >= kSize) fail("hot spot outside the picture");
            pic.hotspot_x = x;
            pic.hotspot_y = y;
            continue;
        }
        if (rows == kSize) fail("more than 32 picture rows");
        if (static_cast<int>(line.size()) != kSize)
            fail("picture row is " + std::to_string(line.size()) + " characters wide, not 32");
        for (int x = 0; x < kSize; ++x) {
            int v = pixel_value(kind, line[x]);
            if (v == -2) fail(std::string("unknown picture character '") + line[x] + "'");
            pic.pixels[rows][x] = v;
        }
        ++rows;
    }
    if (rows != kSize) throw std::runtime_error("picture has " + std::to_string(rows) + " rows, not 32");
    if (kind == Kind::cursor && pic.hotspot_x < 0)
        throw std::runtime_error("cursor has no \"hotspot X Y\" line");
    return pic;
}

class Writer {
public:
    void u8(unsigned v) { bytes_.push_back(static_cast<std::uint8_t>(v)); }
    void u16(unsigned v) { u8(v & 0xFF); u8((v >> 8) & 0xFF); }
    void u32(std::uint32_t v) { u16(v & 0xFFFF); u16(v >> 16); }
    std::vector<std::uint8_t>& bytes() { return bytes_; }

private:
    std::vector<std::uint8_t> bytes_;
};

// ICONDIR + one ICONDIRENTRY + the DIB (BITMAPINFOHEADER, palette, XOR
// bitmap, AND mask).  The DIB height is doubled because it covers both
// bitmaps; rows run bottom-up and each is padded to 4 bytes, which at 32
// pixels wide holds for both 1 and 4 bpp without extra padding.
inline std::vector<std::uint8_t> encode(const Picture& pic, Kind kind) {
    const bool cursor = kind == Kind::cursor;
    const int bpp = cursor ? 1 : 4;
    const int colours = cursor ? 2 : 16;
    const int xor_row = kSize * bpp / 8;
    const int and_row = kSize / 8;
    const std::uint32_t image_bytes = (xor_row + and_row) * kSize;
    const std::uint32_t dib_bytes = 40 + 4 * colours + image_bytes;

    Writer w;
    w.u16(0);                  // reserved
    w.u16(cursor ? 2 : 1);     // resource type
    w.u16(1);                  // one image
    w.u8(kSize);
    w.u8(kSize);
    w.u8(cursor ? 0 : colours);
    w.u8(0);                   // reserved
    // Icons keep planes and bit count here; cursors keep the hot spot.
    w.u16(cursor ? pic.hotspot_x : 1);
    w.u16(cursor ? pic.hotspot_y : bpp);
    w.u32(dib_bytes);
    w.u32(6 + 16);             // the image follows the single entry

    w.u32(40);
    w.u32(kSize);
    w.u32(2 * kSize);
    w.u16(1);
    w.u16(bpp);
    w.u32(0);                  // BI_RGB
    w.u32(image_bytes);
    w.u32(0);
    w.u32(0);
    w.u32(0);
    w.u32(0);

    for (int i = 0; i < colours; ++i) {
        std::uint32_t rgb = cursor ? (i ? 0xFFFFFF : 0x000000) : kVgaPalette[i];
        w.u8(rgb & 0xFF);          // RGBQUAD is blue, green, red, 0
        w.u8((rgb >> 8) & 0xFF);
        w.u8((rgb >> 16) & 0xFF);
        w.u8(0);
    }

    // Transparent pixels are AND 1 with colour 0, so the screen shows through
    // unchanged; opaque pixels are AND 0 and draw their colour.
    for (int y = kSize - 1; y >= 0; --y) {
        for (int x = 0; x < kSize; x += 8 / bpp) {
            unsigned byte = 0;
            for (int k = 0; k < 8 / bpp; ++k) {
                int v = pic.pixels[y][x + k];
                byte = (byte << bpp) | static_cast<unsigned>(v < 0 ? 0 : v);
            }
            w.u8(byte);
        }
    }
    for (int y = kSize - 1; y >= 0; --y) {
        for (int x = 0; x < kSize; x += 8) {
            unsigned byte = 0;
            for (int k = 0; k < 8; ++k) byte = (byte << 1) | (pic.pixels[y][x + k] < 0 ? 1u : 0u);
            w.u8(byte);
        }
    }
    return std::move(w.bytes());
}

}  // namespace picture_tool

#ifndef PICTURE_TOOL_NO_MAIN
int main(int argc, char** argv) {
    using namespace picture_tool;
    if (argc != 4 || (std::string(argv[1]) != "cursor" && std::string(argv[1]) != "icon")) {
        std::cerr << "usage: picture_tool cursor|icon IN.txt OUT\n";
        return 2;
    }
    const Kind kind = std::string(argv[1]) == "cursor" ? Kind::cursor : Kind::icon;
    std::ifstream in(argv[2]);
    if (!in) {
        std::cerr << argv[2] << ": cannot open\n";
        return 1;
    }
    std::vector<std::uint8_t> bytes;
    try {
        bytes = encode(parse(in, kind), kind);
    } catch (const std::exception& e) {
        std::cerr << argv[2] << ": " << e.what() << "\n";
        return 1;
    }
    std::ofstream out(argv[3], std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::cerr << argv[3] << ": cannot write\n";
        std::remove(argv[3]);
        return 1;
    }
    return 0;
}
#endif
