// Today's date for the records and the log, from the platform's date text.
#include <cctype>

#include "platform/platform.h"
#include "records/dates.h"
#include "records/state.h"

namespace records {

namespace {

// The whole number at pos, digits only; pos moves past it.
long number(const std::string& s, std::size_t& pos) {
    long n = 0;
    for (; pos < s.size() && std::isdigit(static_cast<unsigned char>(s[pos])); ++pos)
        if (n < 100000) n = n * 10 + (s[pos] - '0');
    return n;
}

}  // namespace

bool datenumbers(const std::string& text, long& m, long& d, long& y) {
    std::size_t pos = 0;
    long parts[3] = {};
    for (long& part : parts) {
        if (pos >= text.size() || !std::isdigit(static_cast<unsigned char>(text[pos]))) return false;
        part = number(text, pos);
        if (part < 1) return false;
        if (&part != &parts[2]) ++pos;
    }
    m = parts[0], d = parts[1], y = parts[2];
    return true;
}

std::string systemdate() {
    std::string text;
    platform::attempt([&] { text = platform::os().dateText(); });
    return text;
}

Today today() {
    long m = 0, d = 0, y = 0;
    if (!datenumbers(systemdate(), m, d, y)) return {{11, course::tagShort}, {11, course::tagShort}, {2001, course::tagShort}};
    return {{double(m), course::tagDouble}, {double(d), course::tagDouble}, {double(y), course::tagDouble}};
}

}  // namespace records
