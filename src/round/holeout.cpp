// The ball in the hole: its length when it came from off the green, the
// sink sound and the class of the hole.
#include "round/holeout.h"

#include "round/state.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

int classify(int stk, int p) {
    // Tested in this order, each on its own: the last that holds counts, so
    // a hole in one overrides the class it would have against par.
    int sank = 0;
    if (stk == p + 2) sank = 1;
    if (stk == p + 1) sank = 2;
    if (stk == p) sank = 3;
    if (stk > p + 2) sank = 4;
    if (stk == p - 1) sank = 5;
    if (stk == p - 2) sank = 7;
    if (stk <= p - 3) sank = 8;
    if (stk == 1) sank = 6;
    return sank;
}

void sinkball() {
    if (rs.greensaid == 0) voice::say(" Shot went " + spaced(rs.yds) + " yards ");
    sound::playsinkputtwav();
    rs.sank = classify(rs.stk, rs.par);
    scoreword();
}

}  // namespace play
