// golflog.txt, the log of the last round: the head when a course is
// accepted, two lines for each finished hole, the summary after hole 18,
// and the old record's lines when a record fell.
#pragma once

#include "course/stored.h"

namespace records {

// Replaces the log with the head for catalogue entry a.
void startlog(int a);
// Appends the hole just finished and, from hole 18 on, the summary.
void loggit();
// Ends a summary line: "s" unless the count is 1, then a blank.
void prts(course::File& f, int a);
// Appends the lines of the record this round set or tied.
void doendlog();

}  // namespace records
