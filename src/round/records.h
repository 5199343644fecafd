// What stays of a round: the log, the spoken scores, the course records.
// The routines live in the records room; the round calls them by these names.
#pragma once

#include "records/roundlog.h"

namespace play {

// Starts the round log of course c; appends the finished hole to it.
using records::loggit;
using records::startlog;
// Speaks the score of the hole just finished.
void resaydidonhole();
// The end of round report, and whether a record fell.
void sayendscore();
void SayRecOrNot();
// The course record.
void CheckRecords();

}  // namespace play
