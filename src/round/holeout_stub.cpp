// Stand-in for the hole out until it exists: the hole is classified into
// sank and its counter, silently; no sounds, no verdict, no applause.
#include "round/holeout.h"
#include "round/state.h"

namespace play {

void sinkball() {
    int s = rs.stk, p = rs.par;
    if (s == p + 2) rs.sank = 1;
    if (s == p + 1) rs.sank = 2;
    if (s == p) rs.sank = 3;
    if (s > p + 2) rs.sank = 4;
    if (s == p - 1) rs.sank = 5;
    if (s == p - 2) rs.sank = 7;
    if (s == p - 3) rs.sank = 8;
    if (s == 1) rs.sank = 6;
    int* counters[] = {nullptr,      &rs.DOUBLEBOGEY, &rs.Bogey, &rs.PARS, &rs.BAD,
                       &rs.BIRDIE,   &rs.HOLEINONE,   &rs.EAGLE, &rs.DOUEAG};
    if (rs.sank >= 1 && rs.sank <= 8) *counters[rs.sank] += 1;
}

}  // namespace play
