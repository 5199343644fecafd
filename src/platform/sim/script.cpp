#include "platform/sim/script.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <sstream>


namespace sim {

namespace {

bool allDigits(const std::string& s) {
    if (s.empty()) return false;
    for (char c : s)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

// Cuts a comment: a # at the start, or after a blank and not before a digit,
// outside double quotes.
std::string stripComment(const std::string& s) {
    bool quoted = false;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\\' && quoted) {
            ++i;
            continue;
        }
        if (s[i] == '"') quoted = !quoted;
        if (s[i] != '#' || quoted) continue;
        bool atWordStart = i == 0 || std::isspace(static_cast<unsigned char>(s[i - 1]));
        bool code = i + 1 < s.size() && std::isdigit(static_cast<unsigned char>(s[i + 1]));
        bool lineStart = s.find_first_not_of(" \t") == i;
        if (lineStart || (atWordStart && !code)) return s.substr(0, i);
    }
    return s;
}

std::string trim(const std::string& s) {
    size_t a = s.find_first_not_of(" \t\r\n");
    if (a == std::string::npos) return "";
    size_t b = s.find_last_not_of(" \t\r\n");
    return s.substr(a, b - a + 1);
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// TEXT as written: bare, or in double quotes with the escapes of the
// transcript: \" \\ \r \n and \xHH.
bool parseText(const std::string& rest, std::string& out) {
    std::string t = trim(rest);
    if (t.empty() || t[0] != '"') {
        out = t;
        return !out.empty();
    }
    out.clear();
    for (size_t i = 1; i < t.size(); ++i) {
        if (t[i] == '\\' && i + 3 < t.size() && t[i + 1] == 'x' && hexDigit(t[i + 2]) >= 0 &&
            hexDigit(t[i + 3]) >= 0) {
            out += char(hexDigit(t[i + 2]) * 16 + hexDigit(t[i + 3]));
            i += 3;
        } else if (t[i] == '\\' && i + 1 < t.size()) {
            char n = t[++i];
            out += n == 'n' ? '\n' : n == 'r' ? '\r' : n;
        } else if (t[i] == '"') {
            return trim(t.substr(i + 1)).empty();
        } else {
            out += t[i];
        }
    }
    return false;
}

bool parseNumber(const std::string& s, double& out) {
    char* end = nullptr;
    out = std::strtod(s.c_str(), &end);
    return !s.empty() && end && *end == 0 && out >= 0;
}

std::vector<int> typedKeys(const std::string& text) {
    std::vector<int> keys;
    for (char c : text) {
        if (c >= 'A' && c <= 'Z') {
            keys.push_back(16);
            keys.push_back(c);
        } else if (c >= 'a' && c <= 'z') {
            keys.push_back(c - 32);
        } else if ((c >= '0' && c <= '9') || c == ' ') {
            keys.push_back(c);
        }
    }
    return keys;
}

}  // namespace

std::optional<Command> parseLine(const std::string& raw, int line, std::string& error) {
    std::string s = trim(stripComment(raw));
    if (s.empty()) return std::nullopt;
    std::istringstream in(s);
    std::string word;
    in >> word;
    std::string rest;
    std::getline(in, rest);
    Command c;
    c.line = line;
    auto bad = [&](const std::string& why) {
        error = "line " + std::to_string(line) + ": " + why;
        return std::nullopt;
    };
    if (word == "key") {
        c.op = Op::Key;
        std::istringstream ks(rest);
        std::string k;
        while (ks >> k) {
            int code = keyCode(k);
            if (code < 0) return bad("unknown key " + k);
            c.keys.push_back(code);
        }
        if (c.keys.empty()) return bad("key needs a key");
    } else if (word == "type") {
        c.op = Op::Key;
        std::string text;
        if (!parseText(rest, text)) return bad("type needs a text");
        c.keys = typedKeys(text);
    } else if (word == "wait") {
        c.op = Op::Wait;
        if (!parseNumber(trim(rest), c.seconds)) return bad("wait needs seconds");
    } else if (word == "expect" || word == "expect-sound") {
        c.op = word == "expect" ? Op::Expect : Op::ExpectSound;
        if (!parseText(rest, c.text)) return bad(word + " needs a text");
    } else if (word == "quiet" || word == "close" || word == "end") {
        c.op = word == "quiet" ? Op::Quiet : word == "close" ? Op::Close : Op::End;
        if (!trim(rest).empty()) return bad(word + " takes nothing");
    } else if (word == "at") {
        c.op = Op::At;
        std::istringstream as(rest);
        std::string pct, key, extra;
        as >> c.text >> pct >> key;
        int code = keyCode(key);
        if (c.text.empty() || !parseNumber(pct, c.percent) || code < 0 || (as >> extra))
            return bad("at needs STEM PERCENT KEY");
        c.keys.push_back(code);
    } else if (word == "seed") {
        c.op = Op::Seed;
        std::string n = trim(rest);
        errno = 0;
        c.seed = std::strtoull(n.c_str(), nullptr, 10);
        if (!allDigits(n) || errno == ERANGE) return bad("seed needs a whole number");
    } else {
        return bad("unknown command " + word);
    }
    return c;
}

}  // namespace sim
