#include "course/stored.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "course/codepage.h"
#include "platform/platform.h"

namespace course {

namespace {

void putLE(std::string& out, std::uint64_t bits, int bytes) {
    for (int i = 0; i < bytes; ++i) out += char((bits >> (8 * i)) & 0xFF);
}

std::uint64_t getLE(File& f, int bytes) {
    if (f.pos > f.bytes.size() || f.bytes.size() - f.pos < std::size_t(bytes))
        throw platform::Failure("read past the end of " + f.path);
    std::uint64_t bits = 0;
    for (int i = 0; i < bytes; ++i) bits |= std::uint64_t(static_cast<unsigned char>(f.bytes[f.pos + i])) << (8 * i);
    f.pos += std::size_t(bytes);
    return bits;
}

bool fits(double v, double lo, double hi) { return v >= lo && v <= hi; }

}  // namespace

int widest(int a, int b) { return a > b ? a : b; }

Num operator+(Num a, Num b) { return {a.v + b.v, widest(a.tag, b.tag)}; }

int whole(double v, int bound) {
    if (std::isnan(v)) return 0;
    double r = std::nearbyint(v);
    if (r > bound) return bound;
    if (r < -bound) return -bound;
    return int(r);
}

std::string encodevalue(Num n) {
    int tag = n.tag;
    double v = n.v;
    if (tag == tagShort || tag == tagLong) {
        v = std::isnan(v) ? 0 : std::nearbyint(v);
        if (tag == tagShort && !fits(v, -32768, 32767)) tag = tagLong;
        if (tag == tagLong && !fits(v, -2147483648.0, 2147483647.0)) tag = tagDouble;
    } else if (tag != tagSingle) {
        tag = tagDouble;
    }
    std::string out;
    putLE(out, std::uint64_t(tag), 2);
    if (tag == tagShort) putLE(out, std::uint16_t(std::int16_t(v)), 2);
    if (tag == tagLong) putLE(out, std::uint32_t(std::int32_t(v)), 4);
    if (tag == tagSingle) putLE(out, std::bit_cast<std::uint32_t>(float(v)), 4);
    if (tag == tagDouble) putLE(out, std::bit_cast<std::uint64_t>(v), 8);
    return out;
}

void writevalue(File& f, Num n) { f.bytes += encodevalue(n); }

void writevalue(File& f, int n) { writevalue(f, Num{double(n), tagShort}); }

Num readvalue(File& f) {
    int tag = int(getLE(f, 2));
    switch (tag) {
        case tagShort: return {double(std::int16_t(getLE(f, 2))), tag};
        case tagLong: return {double(std::int32_t(getLE(f, 4))), tag};
        case tagSingle: return {double(std::bit_cast<float>(std::uint32_t(getLE(f, 4)))), tag};
        case tagDouble: return {std::bit_cast<double>(getLE(f, 8)), tag};
        default: throw platform::Failure("unknown value tag in " + f.path);
    }
}

void writestring(File& f, const std::string& text) {
    std::string bytes = toCp1252(text);
    writevalue(f, Num{double(bytes.size()), tagLong});
    for (char c : bytes) writevalue(f, int(static_cast<unsigned char>(c)));
}

std::string readstring(File& f) {
    double n = readvalue(f).v;
    if (!(n >= 0 && n <= maxStringChars)) throw platform::Failure("damaged string in " + f.path);
    int count = whole(n, maxStringChars);
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        double code = readvalue(f).v;
        if (!(code > -0.5 && code < 255.5)) throw platform::Failure("no such character in " + f.path);
        bytes += char(whole(code, 255));
    }
    return toUtf8(bytes);
}

File openread(const std::string& path) {
    File f;
    f.path = path;
    f.bytes = platform::os().readFile(path);
    return f;
}

File openreplace(const std::string& path) {
    File f;
    f.path = path;
    f.mode = File::replacing;
    return f;
}

File openappend(const std::string& path) {
    File f;
    f.path = path;
    f.mode = File::appending;
    return f;
}

void closefile(File& f) {
    if (f.mode == File::replacing) platform::os().writeFile(f.path, f.bytes);
    if (f.mode == File::appending) platform::os().appendFile(f.path, f.bytes);
    f.mode = File::reading;
    f.pos = f.bytes.size();
}

}  // namespace course
