// The character a key code reads as: cp1252 in lower case, as UTF-8.
#include "input/keys.h"

namespace input {

namespace {

// cp1252 code points for 128..159; the rest of 160..255 are Latin-1 itself.
const char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

int lowerCp1252(int c) {
    if (c >= 'A' && c <= 'Z') return c + 32;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
    if (c == 0x8A || c == 0x8C || c == 0x8E) return c + 16;
    if (c == 0x9F) return 0xFF;
    return c;
}

int upperCp1252(int c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
    if (c == 0x9A || c == 0x9C || c == 0x9E) return c - 16;
    if (c == 0xFF) return 0x9F;
    return c;
}

std::string utf8(char32_t u) {
    std::string s;
    if (u < 0x80) {
        s += char(u);
    } else if (u < 0x800) {
        s += char(0xC0 | (u >> 6));
        s += char(0x80 | (u & 0x3F));
    } else {
        s += char(0xE0 | (u >> 12));
        s += char(0x80 | ((u >> 6) & 0x3F));
        s += char(0x80 | (u & 0x3F));
    }
    return s;
}

std::string cp1252(int c) {
    c &= 0xFF;
    if (c >= 0x80 && c < 0xA0) return utf8(kCp1252High[c - 0x80]);
    return utf8(char32_t(c));
}

int fromCp1252(const std::string& ch) {
    for (int c = 0; c < 256; ++c)
        if (cp1252(c) == ch) return c;
    return -1;
}

}  // namespace

std::string keychar(int code) { return cp1252(lowerCp1252(code & 0xFF)); }

std::string upperkey(const std::string& ch) {
    int c = fromCp1252(ch);
    return c < 0 ? ch : cp1252(upperCp1252(c));
}

}  // namespace input
