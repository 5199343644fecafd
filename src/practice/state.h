// What the practice areas keep for themselves. The range has its own club,
// swing and length, the green its own ball and putt, so nothing of a round
// is touched but the club pointer and the power reading.
#pragma once

namespace practice {

struct PracticeState {
    // ---- the range, for one visit
    double club = 0;     // club value, the distance formula's after the iron cut
    double pw = 0;       // swing fraction of the last shot
    int yds = 0;         // yards the last shot went
    double keynum = 0;   // numeric value of the last key the range's wait took
    int wi = 0;          // wood or iron answer: 1 wood, 2 iron
    int pflag = 0;       // 1 once "p" was pressed at this prompt
    int rangef1 = 1;     // what F1 repeats: 1 the club prompt, 2 the continue prompt
    int rangef2 = 1;     // what F2 says: 1 before a shot, 2 after it

    // ---- the green
    double practicefeet = 0;   // feet from the pin of this ball; whole at rest
    double puttpow = 0;        // strength of the last putt, hitpow / 5
    double puttfeet = 0;       // feet the last putt travelled
    int pgf1 = 1;              // what F1 says: 1 putting, 2 ball holed
    int pgf2 = 1;              // what F2 says: 1 new ball, 2 after a miss, 3 ball holed

    // ---- both areas
    int savedcow = 0;    // cowtog as it was on entry
};

extern PracticeState pr;

// Thrown out of an area's key wait by Escape; the area's entry catches it.
struct LeaveArea {};

// Crowd and ambience off for the visit; what the player had is kept.
void quietarea();
// The crowd setting back as it was on entry.
void restorecow();
// The countdown of a practice shot: no crowd is started and nothing is
// stopped, only the three ticks after a pause.
void countdown();

}  // namespace practice
