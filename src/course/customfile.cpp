#include "course/customfile.h"

#include "course/stored.h"
#include "platform/names.h"

namespace course {

namespace {

// A field of the hole table: any tag, held to a whole number the game can
// count with.
int field(File& f) { return whole(readvalue(f).v); }

void readpar(File& f, HoleData& d, int hole) {
    Num par = readvalue(f);
    d.H[hole][1] = whole(par.v);
    d.partag[hole] = par.tag;
}

void readgcfhole(File& f, HoleData& d, int hole) {
    readpar(f, d, hole);
    for (int k = 2; k <= 7; ++k) d.H[hole][k] = field(f);
    d.HF[hole] = 1;
}

void readgcxhole(File& f, HoleData& d, int hole) {
    readpar(f, d, hole);
    d.H[hole][2] = field(f);
    Num left = readvalue(f), right = readvalue(f);
    d.H[hole][3] = whole(left.v);
    d.H[hole][4] = whole(right.v);
    if (left.v == customLoc) d.HS[hole][1] = readstring(f);
    if (right.v == customLoc) d.HS[hole][2] = readstring(f);
    for (int k = 5; k <= 7; ++k) d.H[hole][k] = field(f);
    d.HF[hole] = field(f);
}

}  // namespace

HoleData readcourse(const std::string& bytes, bool gcx, const std::string& path) {
    File f;
    f.path = path;
    f.bytes = bytes;
    HoleData d;
    for (int hole = 1; hole <= 18; ++hole) {
        if (gcx)
            readgcxhole(f, d, hole);
        else
            readgcfhole(f, d, hole);
    }
    return d;
}

bool isgcx(const std::string& file) {
    return file.size() >= 3 && platform::lower(file.substr(file.size() - 3)) == "gcx";
}

}  // namespace course
