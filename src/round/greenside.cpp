// The ring 16 to 25 yards from the green: the sand trap, or on a hole with
// a pond, the first ball there one time in three into the water.
#include "course/course.h"
#include "platform/rnd.h"
#include "round/lies.h"
#include "round/state.h"

namespace play {

namespace {

int holeflag() {
    bool known = rs.hole >= 0 && rs.hole < course::holeSlots;
    return known ? course::cs.HF[rs.hole] : 0;
}

}  // namespace

void greenside() {
    if (greensidepick(platform::U(), holeflag(), rs.trapped) == 2) {
        rs.lie = lie::pond;
        rs.inpond = 1;
        rs.stk -= 1;   // the pond costs one stroke less than the penalty
    } else {
        rs.lie = lie::trap;
        rs.nopause = 1;
        rs.trapped = 1;
    }
    aftershot();
}

}  // namespace play
