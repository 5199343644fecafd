// The records room's shared fields: the course record as it was read and as
// it stood before this round, and where the log and the records lie.
#pragma once

#include <string>

#include "course/stored.h"
#include "round/state.h"

namespace records {

struct RecordState {
    course::Num recs;              // strokes of the record as read; the score once renewed
    course::Num recd[4];           // its month, day and year in 1..3
    course::Num old0;              // strokes of the record before this round was compared
    course::Num old1, old2, old3;  // month, day and year of that record
    std::string oldpn;             // holder of that record, a blank at each end
};

extern RecordState rc;

// Today's month, day and year as start-up took them from the system date:
// real numbers, whole numbers when the date could not be read.
struct Today {
    course::Num mm, dd, yy;
};
Today today();

// The round log, the list of records, and the record file of catalogue
// entry a: cfile without its last four characters, plus ".grf".
std::string golog();
std::string recordsfile();
std::string grfname(int a);
std::string grfpath(int a);

// The title that heads the log and the list of records.
inline constexpr const char* title = "Greenlark   By Tobrell";

// The eight score counters in the order the log and the end report give
// them, with the word the log writes and the word the voice is given.
struct ScoreCount {
    int play::RoundState::*counter;
    const char* logged;
    const char* spoken;
};
extern const ScoreCount scorecounts[8];

// A month or day with a "0" before it below 10; the number as it stands
// otherwise.
std::string padded(long n);

}  // namespace records
