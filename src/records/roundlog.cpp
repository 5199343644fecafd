#include "records/roundlog.h"

#include <cstdio>

#include "course/course.h"
#include "course/textfile.h"
#include "records/dates.h"
#include "records/state.h"
#include "round/state.h"
#include "session/startup.h"

namespace records {

namespace {

using course::bare;
using course::printed;
using course::printitem;
using course::printline;
using play::rs;

// The system date as MM-DD-YYYY with its leading zeros, and a blank.
std::string logdate() {
    session::Date d = session::readdate(systemdate());
    char text[40];
    std::snprintf(text, sizeof text, "%02d-%02d-%04d ", d.mm, d.dd, d.yy);
    return text;
}

void summary(course::File& f) {
    printline(f, "So you had");
    for (const ScoreCount& c : scorecounts) {
        printitem(f, bare(rs.*c.counter) + c.logged);
        prts(f, rs.*c.counter);
    }
}

long whole(const course::Num& n) { return course::whole(n.v); }

}  // namespace

void startlog(int a) {
    course::File f = course::openreplace(golog());
    printline(f, title);
    printline(f, logdate());
    printline(f, course::cs.cname[a]);
    course::closefile(f);
}

void loggit() {
    course::File f = course::openappend(golog());
    printline(f, "hole number" + printed(rs.hole) + "par" + printed(rs.par) + "you shot a" + printed(rs.stk));
    printline(f, "total par so far" + printed(rs.total) + "your score" + printed(rs.stks));
    if (rs.hole >= 18) summary(f);
    course::closefile(f);
}

void prts(course::File& f, int a) { printline(f, a == 1 ? " " : "s"); }

void doendlog() {
    course::File f = course::openappend(golog());
    printline(f, "Your score of " + bare(rs.stks) +
                     (whole(rc.old0) == rs.stks ? " ties the record " : " sets a new record."));
    printline(f, "The old record was " + bare(whole(rc.old0)));
    printline(f, " on " + padded(whole(rc.old1)) + "-" + padded(whole(rc.old2)) + "-" + bare(whole(rc.old3)));
    printline(f, "By " + rc.oldpn);
    course::closefile(f);
}

}  // namespace records
