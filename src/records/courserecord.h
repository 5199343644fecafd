// The course record at the end of a round: compared with the score, said,
// applauded and renewed with its holder; and the list of all records.
#pragma once

namespace records {

// Compares stks with the record of course c and does all that follows.
void CheckRecords();
// Rewrites golfrecords.txt: every catalogue entry but the random course.
void dorecs();

// What a fallen record says first: a tie or a new record.
inline constexpr const char* tiesText = " Which ties the record ";
inline constexpr const char* newRecordText = " which sets A-new record! ";

}  // namespace records
