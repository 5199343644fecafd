#include "course/codepage.h"

#include <cstdint>

namespace course {

namespace {

// Unicode of the bytes 0x80 to 0x9F; the rest map to themselves.
const std::uint16_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::uint32_t unicodeOf(unsigned char b) { return b >= 0x80 && b < 0xA0 ? kHigh[b - 0x80] : b; }

void putUtf8(std::string& out, std::uint32_t u) {
    if (u < 0x80) {
        out += char(u);
    } else if (u < 0x800) {
        out += char(0xC0 | (u >> 6));
        out += char(0x80 | (u & 0x3F));
    } else {
        out += char(0xE0 | (u >> 12));
        out += char(0x80 | ((u >> 6) & 0x3F));
        out += char(0x80 | (u & 0x3F));
    }
}

char byteOf(std::uint32_t u) {
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return char(u);
    for (int i = 0; i < 32; ++i)
        if (kHigh[i] == u) return char(0x80 + i);
    return '?';
}

// The next code point of UTF-8 text at i, moving i past it; 0xFFFFFFFF for a
// broken sequence (i then moves one byte).
std::uint32_t nextCode(const std::string& s, size_t& i) {
    unsigned char b = static_cast<unsigned char>(s[i]);
    int more = b < 0x80 ? 0 : (b >> 5) == 6 ? 1 : (b >> 4) == 14 ? 2 : (b >> 3) == 30 ? 3 : -1;
    if (more < 0 || i + size_t(more) >= s.size()) {
        ++i;
        return 0xFFFFFFFF;
    }
    std::uint32_t u = more == 0 ? b : more == 1 ? (b & 0x1F) : more == 2 ? (b & 0x0F) : (b & 0x07);
    for (int k = 1; k <= more; ++k) {
        unsigned char t = static_cast<unsigned char>(s[i + size_t(k)]);
        if ((t & 0xC0) != 0x80) {
            ++i;
            return 0xFFFFFFFF;
        }
        u = (u << 6) | (t & 0x3F);
    }
    i += size_t(more) + 1;
    return u;
}

}  // namespace

std::string toUtf8(const std::string& bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (char c : bytes) putUtf8(out, unicodeOf(static_cast<unsigned char>(c)));
    return out;
}

std::string toCp1252(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size();) out += byteOf(nextCode(text, i));
    return out;
}

}  // namespace course
