#include "records/coursefile.h"

#include <cstdlib>

#include "course/course.h"
#include "course/textfile.h"
#include "platform/platform.h"
#include "records/state.h"

namespace records {

namespace {

long whole(const course::Num& n) { return course::whole(n.v); }

// Listing the exact path gives back the name letter for letter.
bool listed(const std::string& path, const std::string& name) {
    auto found = platform::os().list(path);
    return found.size() == 1 && found[0].name == name;
}

}  // namespace

Record defaultrecord() { return {{0}, {6}, {6}, {2006}, " No One "}; }

std::string recordbytes(const Record& rec) {
    course::File f;
    for (const course::Num& n : {rec.strokes, rec.mm, rec.dd, rec.yy}) course::writevalue(f, n);
    course::writestring(f, rec.holder);
    return f.bytes;
}

void writerecord(const std::string& path, const Record& rec) {
    course::File f = course::openreplace(path);
    f.bytes = recordbytes(rec);
    course::closefile(f);
}

Record readrecord(const std::string& path) {
    course::File f = course::openread(path);
    Record rec;
    rec.strokes = course::readvalue(f);
    rec.mm = course::readvalue(f);
    rec.dd = course::readvalue(f);
    rec.yy = course::readvalue(f);
    rec.holder = course::readstring(f);
    return rec;
}

Record recordof(int a) {
    std::string path = grfpath(a);
    if (!listed(path, grfname(a))) writerecord(path, defaultrecord());
    return readrecord(path);
}

bool recordstands(double rec, int score) { return rec > 0 && rec < score; }

std::string recordtext(int c, bool stands, const Record& rec, int total) {
    using voice::spaced;
    long strokes = whole(rec.strokes);
    std::string t = voice::cut(" the record for the " + course::cs.cname[c]) + ". ";
    t += stands ? " is " : " was ";
    t += spaced(strokes);
    if (strokes != 0) {
        t += " strokes or ";
        if (strokes != total) t += spaced(std::labs(strokes - total)) + (strokes < total ? " under " : " over ");
        t += " par ";
    }
    long year = whole(rec.yy);
    t += " by " + rec.holder + " on " + spaced(whole(rec.mm)) + spaced(whole(rec.dd)) +
         spaced(year < 2000 ? year + 2000 : year);
    return t;
}

}  // namespace records
