// What stays of a round: the log, the spoken scores, the course records.
// The routines live in the records room; the round calls them by these names.
#pragma once

#include "records/courserecord.h"
#include "records/report.h"
#include "records/roundlog.h"

namespace play {

// Starts the round log of course c; appends the finished hole to it.
using records::loggit;
using records::startlog;
// Speaks the score of the hole just finished.
using records::resaydidonhole;
// The end of round report, its repeat on F1 to F8, and the course record.
using records::CheckRecords;
using records::repeatend;
using records::sayendscore;
using records::SayRecOrNot;

}  // namespace play
