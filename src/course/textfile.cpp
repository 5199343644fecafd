#include "course/textfile.h"

#include <cstdlib>

#include "course/codepage.h"
#include "platform/platform.h"

namespace course {

namespace {

bool blank(char c) { return c == ' ' || c == '\t'; }
bool lineEnd(char c) { return c == '\r' || c == '\n'; }

// Consumes one line end at pos: CR LF, a lone CR or a lone LF.
void skipLineEnd(File& f) {
    const std::string& b = f.bytes;
    if (f.pos < b.size() && b[f.pos] == '\r') ++f.pos;
    if (f.pos < b.size() && b[f.pos] == '\n') ++f.pos;
}

// Consumes what ends a field at pos: a comma or a line end.
void skipDelimiter(File& f) {
    if (f.pos >= f.bytes.size()) return;
    if (f.bytes[f.pos] == ',')
        ++f.pos;
    else
        skipLineEnd(f);
}

void mustHaveMore(const File& f) {
    if (atend(f)) throw platform::Failure("read past the end of " + f.path);
}

}  // namespace

std::string printed(long n) { return (n < 0 ? "-" : " ") + std::to_string(n < 0 ? -n : n) + " "; }

std::string bare(long n) { return std::to_string(n); }

void printitem(File& f, const std::string& item) { f.bytes += toCp1252(item); }

void printline(File& f, const std::string& item) { f.bytes += toCp1252(item) + "\r\n"; }

bool atend(const File& f) { return f.pos >= f.bytes.size(); }

std::string readfield(File& f) {
    mustHaveMore(f);
    const std::string& b = f.bytes;
    while (f.pos < b.size() && blank(b[f.pos])) ++f.pos;
    std::string field;
    if (f.pos < b.size() && b[f.pos] == '"') {
        std::size_t close = b.find('"', f.pos + 1);
        if (close == std::string::npos) close = b.size();
        field = b.substr(f.pos + 1, close - f.pos - 1);
        f.pos = close < b.size() ? close + 1 : close;
        // Whatever stands between the closing quote and the delimiter is dropped.
        while (f.pos < b.size() && b[f.pos] != ',' && !lineEnd(b[f.pos])) ++f.pos;
    } else {
        std::size_t start = f.pos;
        while (f.pos < b.size() && b[f.pos] != ',' && !lineEnd(b[f.pos])) ++f.pos;
        field = b.substr(start, f.pos - start);
        while (!field.empty() && blank(field.back())) field.pop_back();
    }
    skipDelimiter(f);
    return toUtf8(field);
}

double readnumber(File& f) {
    std::string field = readfield(f);
    char* end = nullptr;
    double v = std::strtod(field.c_str(), &end);
    return end == field.c_str() ? 0 : v;
}

std::string readline(File& f) {
    mustHaveMore(f);
    const std::string& b = f.bytes;
    std::size_t start = f.pos;
    while (f.pos < b.size() && !lineEnd(b[f.pos])) ++f.pos;
    std::string line = b.substr(start, f.pos - start);
    skipLineEnd(f);
    return toUtf8(line);
}

}  // namespace course
