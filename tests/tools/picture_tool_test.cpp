// Round-trips pictures through picture_tool's encoder and reads the bytes back
// the way Windows does, so row order, bit order and mask polarity are checked
// against the text rather than against the encoder's own arithmetic.

#define PICTURE_TOOL_NO_MAIN
#include "picture_tool.cpp"

#include <tuple>

using namespace picture_tool;

static int passed = 0, failed = 0;

static void check(bool ok, const std::string& what) {
    if (ok) {
        ++passed;
    } else {
        ++failed;
        std::cout << "FAIL: " << what << "\n";
    }
}

static unsigned u16_at(const std::vector<std::uint8_t>& b, size_t at) { return b[at] | (b[at + 1] << 8); }
static std::uint32_t u32_at(const std::vector<std::uint8_t>& b, size_t at) {
    return u16_at(b, at) | (static_cast<std::uint32_t>(u16_at(b, at + 2)) << 16);
}

// Reads pixel (x, y) of the single image: -1 when the AND mask lets the
// screen through, else the palette index.
static int decoded_pixel(const std::vector<std::uint8_t>& b, int x, int y) {
    const size_t dib = u32_at(b, 18);
    const int bpp = u16_at(b, dib + 14);
    const size_t xor_at = dib + 40 + 4 * (1u << bpp);
    const size_t and_at = xor_at + 32 * 32 * bpp / 8;
    const int row = 31 - y;  // bottom-up
    if ((b[and_at + row * 4 + x / 8] >> (7 - x % 8)) & 1) return -1;
    const int bit = x * bpp;
    return (b[xor_at + row * 32 * bpp / 8 + bit / 8] >> (8 - bpp - bit % 8)) & ((1 << bpp) - 1);
}

// A 32x32 picture of `fill` with a few pixels set, as text rows.
static std::string picture_text(char fill, const std::vector<std::tuple<int, int, char>>& marks,
                                const std::string& header = "") {
    std::vector<std::string> rows(32, std::string(32, fill));
    for (auto& [x, y, c] : marks) rows[y][x] = c;
    std::string text = header;
    for (auto& r : rows) text += r + "\n";
    return text;
}

static std::vector<std::uint8_t> encode_text(const std::string& text, Kind kind) {
    std::istringstream in(text);
    return encode(parse(in, kind), kind);
}

static void cursor_round_trip() {
    // Corners and an off-by-one neighbour catch flipped rows and bit order.
    const std::string text = picture_text(
        '.', {{0, 0, '#'}, {31, 0, 'o'}, {1, 0, 'o'}, {0, 31, 'o'}, {30, 31, '#'}, {10, 6, '#'}},
        "; comment\r\nhotspot 10 6\r\n");
    const auto b = encode_text(text, Kind::cursor);
    check(b.size() == 22 + 40 + 8 + 128 + 128, "cursor file size");
    check(u16_at(b, 2) == 2 && u16_at(b, 4) == 1, "cursor directory type and count");
    check(b[6] == 32 && b[7] == 32, "cursor entry size");
    check(u16_at(b, 10) == 10 && u16_at(b, 12) == 6, "cursor hot spot in the entry");
    check(u32_at(b, 14) == b.size() - 22 && u32_at(b, 18) == 22, "cursor entry size and offset");
    check(u32_at(b, 26) == 32 && u32_at(b, 30) == 64 && u16_at(b, 36) == 1, "cursor DIB is 32x64 at 1 bpp");
    check(u32_at(b, 62) == 0 && u32_at(b, 66) == 0xFFFFFF, "cursor colours are black and white");

    std::istringstream in(text);
    const Picture pic = parse(in, Kind::cursor);
    bool same = true;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) same = same && decoded_pixel(b, x, y) == pic.pixels[y][x];
    check(same, "cursor pixels decode to the text");
    check(decoded_pixel(b, 0, 0) == 0 && decoded_pixel(b, 1, 0) == 1 && decoded_pixel(b, 2, 0) == -1,
          "cursor black, white, transparent at the top left");
}

static void icon_round_trip() {
    std::vector<std::tuple<int, int, char>> marks;
    const std::string digits = "0123456789ABCDEF";
    for (int i = 0; i < 16; ++i) marks.emplace_back(i, 31 - i, digits[i]);  // odd and even columns
    marks.emplace_back(31, 0, 'F');
    const auto b = encode_text(picture_text('.', marks), Kind::icon);
    check(b.size() == 22 + 40 + 64 + 512 + 128, "icon file size");
    check(u16_at(b, 2) == 1 && b[8] == 16 && u16_at(b, 10) == 1 && u16_at(b, 12) == 4,
          "icon directory type, colours, planes and bit count");
    check(u16_at(b, 36) == 4 && u32_at(b, 30) == 64, "icon DIB is 32x64 at 4 bpp");
    check(b[62 + 4 * 12] == 0xFF && b[62 + 4 * 12 + 2] == 0, "palette entry 12 is blue in BGR order");
    check(u32_at(b, 62 + 4 * 7) == 0xC0C0C0, "palette entry 7 is silver");
    bool same = true;
    for (int i = 0; i < 16; ++i) same = same && decoded_pixel(b, i, 31 - i) == i;
    check(same, "every palette index decodes where it was drawn");
    check(decoded_pixel(b, 31, 0) == 15 && decoded_pixel(b, 30, 0) == -1 && decoded_pixel(b, 0, 0) == -1,
          "icon transparency");
}

static void rejects_malformed() {
    const std::string good = picture_text('.', {});
    auto rejected = [](const std::string& text, Kind kind) {
        std::istringstream in(text);
        try {
            parse(in, kind);
        } catch (const std::runtime_error&) {
            return true;
        }
        return false;
    };
    std::string narrow = "hotspot 1 1\n" + good;
    narrow.erase(narrow.find('\n', 20) - 1, 1);
    const struct {
        std::string text;
        Kind kind;
        const char* what;
    } cases[] = {
        {good, Kind::cursor, "cursor without hot spot"},
        {"hotspot 1 1\n" + good.substr(33), Kind::cursor, "31 rows"},
        {"hotspot 1 1\n" + good + std::string(32, '.') + "\n", Kind::cursor, "33 rows"},
        {narrow, Kind::cursor, "31-character row"},
        {"hotspot 1 1\n" + picture_text('.', {{5, 5, 'x'}}), Kind::cursor, "unknown cursor character"},
        {picture_text('.', {{5, 5, 'o'}}), Kind::icon, "cursor character in an icon"},
        {picture_text('.', {{5, 5, 'a'}}), Kind::icon, "lower-case hex digit"},
        {"hotspot 32 0\n" + good, Kind::cursor, "hot spot outside"},
        {"hotspot 1\n" + good, Kind::cursor, "hot spot with one number"},
        {"hotspot 1 1 1\n" + good, Kind::cursor, "hot spot with three numbers"},
        {"hotspot 1 1\nhotspot 2 2\n" + good, Kind::cursor, "two hot spots"},
        {"hotspot 1 1\n" + good, Kind::icon, "icon with a hot spot"},
    };
    for (auto& c : cases) check(rejected(c.text, c.kind), std::string("rejects ") + c.what);
    check(!rejected("hotspot 31 31\n" + good, Kind::cursor), "accepts hot spot at the far corner");
}

int main() {
    cursor_round_trip();
    icon_round_trip();
    rejects_malformed();
    std::cout << passed << " passed, " << failed << " failed\n";
    return failed ? 1 : 0;
}
