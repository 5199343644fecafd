#include "platform/script_words.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "platform/names.h"

namespace platform::script {

namespace {

const std::map<std::string, int>& namedKeys() {
    static const std::map<std::string, int> keys = {
        {"enter", 13},  {"escape", 27}, {"space", 32},  {"backspace", 8}, {"up", 38},
        {"down", 40},   {"shift", 16},  {"ctrl", 17},   {"alt", 18},      {"pause", 19},
        {"scrolllock", 145}, {"numplus", 107}, {"numpoint", 110}, {"comma", 188}};
    return keys;
}

// The names as a script writes them.
const std::map<int, std::string>& writtenNames() {
    static const std::map<int, std::string> names = {
        {13, "Enter"}, {27, "Escape"}, {32, "Space"}, {8, "Backspace"}, {38, "Up"},
        {40, "Down"}, {16, "Shift"}, {17, "Ctrl"}, {18, "Alt"}, {19, "Pause"},
        {145, "ScrollLock"}, {107, "NumPlus"}, {110, "NumPoint"}, {188, "Comma"}};
    return names;
}

bool allDigits(const std::string& s) {
    if (s.empty()) return false;
    for (char c : s)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

}  // namespace

std::string quote(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\r': out += "\\r"; break;
            case '\n': out += "\\n"; break;
            default:
                if (static_cast<unsigned char>(c) < 32) {
                    char hex[5];
                    std::snprintf(hex, sizeof hex, "\\x%02X", unsigned(static_cast<unsigned char>(c)));
                    out += hex;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

int keyCode(const std::string& name) {
    if (name.size() > 1 && name[0] == '#' && allDigits(name.substr(1))) {
        long v = std::strtol(name.c_str() + 1, nullptr, 10);
        return v >= 0 && v <= 255 ? int(v) : -1;
    }
    std::string n = platform::lower(name);
    auto it = namedKeys().find(n);
    if (it != namedKeys().end()) return it->second;
    if (n.size() == 1 && n[0] >= 'a' && n[0] <= 'z') return n[0] - 32;
    if (n.size() == 1 && n[0] >= '0' && n[0] <= '9') return n[0];
    if (n.size() == 4 && n.rfind("num", 0) == 0 && std::isdigit(static_cast<unsigned char>(n[3])))
        return 96 + (n[3] - '0');
    if (n.size() >= 2 && n[0] == 'f' && allDigits(n.substr(1))) {
        int f = std::atoi(n.c_str() + 1);
        if (f >= 1 && f <= 12) return 111 + f;
    }
    return -1;
}

std::string keyName(int code) {
    auto it = writtenNames().find(code);
    if (it != writtenNames().end()) return it->second;
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')) return std::string(1, char(code));
    if (code >= 96 && code <= 105) return "Num" + std::to_string(code - 96);
    if (code >= 112 && code <= 123) return "F" + std::to_string(code - 111);
    return "#" + std::to_string(code);
}

}  // namespace platform::script
