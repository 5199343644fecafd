// The spoken scores: the report after each hole, the report after hole 18,
// the record sentence said again, and the repeat of both at the end.
#pragma once

namespace records {

// The score of the hole just finished (hole is already raised); the
// verdict word first unless it is the hole's first report.
void resaydidonhole();
// Every kind of hole counted, par, the score and how far off par; the
// applause of the run's first end report for a round at or under par.
void sayendscore();
// The record sentence once more, with the record as it was before the round.
void SayRecOrNot();
// F1 to F8 at the end of the round: the report and the record sentence.
void repeatend();
// Yields while the big applause plays and no key has come.
void clapwait();

}  // namespace records
