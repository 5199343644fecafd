// dorecs: golfrecords.txt, the records of every course that has a name.
#include "course/course.h"
#include "course/textfile.h"
#include "records/coursefile.h"
#include "records/courserecord.h"
#include "records/state.h"
#include "round/state.h"

namespace records {

namespace {

long whole(const course::Num& n) { return course::whole(n.v); }

void printrecord(course::File& f, int a, const Record& rec) {
    course::printline(f, course::cs.cname[a] + " record");
    course::printline(f, course::bare(whole(rec.strokes)));
    course::printline(f, padded(whole(rec.mm)) + "-" + padded(whole(rec.dd)) + "-" + course::bare(whole(rec.yy)));
    course::printline(f, "By " + rec.holder);
}

}  // namespace

void dorecs() {
    course::File f = course::openreplace(recordsfile());
    course::printline(f, title);
    for (int a = 1; a < play::rs.nocs && a < course::catSlots; ++a) printrecord(f, a, recordof(a));
    course::closefile(f);
}

}  // namespace records
