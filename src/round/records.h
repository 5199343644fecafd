// What stays of a round: the log, the spoken scores, the course records.
#pragma once

namespace play {

// Starts the round log of course c.
void startlog(int c);
// Appends the finished hole to the log.
void loggit();
// Speaks the score of the hole just finished.
void resaydidonhole();
// The end of round report, and whether a record fell.
void sayendscore();
void SayRecOrNot();
// The course record.
void CheckRecords();

}  // namespace play
