// The two course file formats. A .gcf holds seven values per hole; a .gcx
// record holds par, yards, left and right id, the custom text of each side
// whose id is 160, the fairway figure, the sixth and seventh figures and
// the greenside flag.
#pragma once

#include <string>

#include "course/course.h"

namespace course {

// What a course file fills: the hole table, the par's tag, the custom texts
// and the greenside flags of holes 1..18.
struct HoleData {
    int H[holeSlots][fieldSlots] = {};
    int partag[holeSlots] = {};
    std::string HS[holeSlots][textSlots];
    int HF[holeSlots] = {};
};

// Reads a whole course from the bytes of a file. A file that ends before its
// last field, or holds a damaged text, throws platform::Failure. Bytes behind
// the last field are ignored.
HoleData readcourse(const std::string& bytes, bool gcx, const std::string& path);

// Whether a file name is read as a .gcx: its last three characters in lower
// case are "gcx".
bool isgcx(const std::string& file);

}  // namespace course
