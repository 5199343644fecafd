// The record of one course: a value file of five fields in the player's
// folder, and what the game says about it.
#pragma once

#include <string>

#include "course/stored.h"

namespace records {

struct Record {
    course::Num strokes;       // 0: nobody has played the course
    course::Num mm, dd, yy;    // the date of the record
    std::string holder;        // a blank at each end
};

// The record of a course nobody has played.
Record defaultrecord();
// The stored form of a record: strokes, month, day, year, holder.
std::string recordbytes(const Record& rec);
// Writes the record to path through the safe writer.
void writerecord(const std::string& path, const Record& rec);
// Reads the five fields; a damaged file throws platform::Failure.
Record readrecord(const std::string& path);
// The record of catalogue entry a, its default file written first when
// listing its path does not give back exactly its name.
Record recordof(int a);

// The record stands if it is above 0 and below the score.
bool recordstands(double rec, int score);
// " the record for the " course, " is " or " was ", the strokes, how far
// off par, the holder and the date; total is this round's par.
std::string recordtext(int c, bool stands, const Record& rec, int total);

}  // namespace records
