// Today's date, taken apart by position from the system's short date text.
#include <cctype>
#include <optional>

#include "session/startup.h"

namespace session {

namespace {

bool digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// The whole part of the number at the start of s: blanks skipped, a sign,
// the digits; 0 when none. Held below a billion.
long leading(const std::string& s) {
    std::size_t i = 0;
    while (i < s.size() && s[i] == ' ') ++i;
    bool minus = i < s.size() && s[i] == '-';
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
    long n = 0;
    for (; i < s.size() && digit(s[i]); ++i)
        if (n < 100000000) n = n * 10 + (s[i] - '0');
    return minus ? -n : n;
}

// The first character at or after from that is not a digit.
std::optional<std::size_t> nondigit(const std::string& s, std::size_t from) {
    for (std::size_t i = from; i < s.size(); ++i)
        if (!digit(s[i])) return i;
    return std::nullopt;
}

std::string piece(const std::string& s, std::size_t from, std::size_t n) {
    return from < s.size() ? s.substr(from, n) : std::string();
}

std::optional<Date> takeApart(const std::string& text) {
    if (text.size() < 5) return std::nullopt;
    Date d;
    d.mm = int(leading(text));
    if (d.mm < 1) return std::nullopt;
    auto sep = nondigit(text, 0);
    if (!sep) return std::nullopt;
    d.dd = int(leading(piece(text, *sep + 1, 2)));
    if (d.dd < 1) return std::nullopt;
    // On from the character after the day's first one.
    auto sep2 = nondigit(text, *sep + 2);
    if (!sep2) return std::nullopt;
    d.yy = int(leading(piece(text, *sep2 + 1, 4)));
    if (d.yy < 1) return std::nullopt;
    return d;
}

}  // namespace

Date readdate(const std::string& text) { return takeApart(text).value_or(fallbackDate); }

}  // namespace session
