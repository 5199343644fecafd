// Course files for tests, made the way a course maker's tool makes them.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "course/stored.h"

namespace coursefiles {

// One hole of a course file: par, yards, left and right id, fairw, the
// sixth and seventh figures, the greenside flag, and the custom texts.
struct Hole {
    double par = 4, yards = 400, left = 8, right = 9, fairw = 40, sixth = 6, seventh = 2, flag = 1;
    std::string lefttext, righttext;
    int tag = 2;   // the tag of every number of the hole
};

inline std::string value(double v, int tag) { return course::encodevalue({v, tag}); }

inline std::string text(const std::string& s) {
    course::File f;
    course::writestring(f, s);
    return f.bytes;
}

inline std::string gcf(const Hole& h) {
    std::string out;
    for (double v : {h.par, h.yards, h.left, h.right, h.fairw, h.sixth, h.seventh}) out += value(v, h.tag);
    return out;
}

inline std::string gcx(const Hole& h) {
    std::string out;
    for (double v : {h.par, h.yards, h.left, h.right}) out += value(v, h.tag);
    if (h.left == 160) out += text(h.lefttext);
    if (h.right == 160) out += text(h.righttext);
    for (double v : {h.fairw, h.sixth, h.seventh, h.flag}) out += value(v, h.tag);
    return out;
}

// Eighteen holes alike but for their yards, 300 + the hole's number.
inline std::string course18(bool x, Hole h = {}) {
    std::string out;
    for (int n = 1; n <= 18; ++n) {
        h.yards = 300 + n;
        out += x ? gcx(h) : gcf(h);
    }
    return out;
}

inline void put(const std::string& path, const std::string& bytes) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace coursefiles
