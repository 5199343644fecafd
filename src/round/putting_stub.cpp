// Stand-in for putting until it exists: settle counts the stroke and takes
// a ball within 1.4 feet in; the green only says the putt prompt, and every
// putt, after its countdown and reading, drops.
#include <cmath>

#include "round/power.h"
#include "round/putting.h"
#include "round/state.h"
#include "voice/keys.h"
#include "voice/speech.h"
#include "round/inplay.h"

namespace play {

void settle() {
    if (rs.remain < -40 || rs.remain > 40) rs.remain = 40;
    if (std::fabs(rs.remain) <= 1.4) rs.remain = 0;
    rs.stk += 1;
    rs.remain = std::fabs(std::floor(rs.remain + 0.4));
}

void greenloop() {
    rs.onputt = 1;
    rs.f1state = 3;
    voice::clk();
    rs.firstapp = 0;
    voice::say2(" Press any key when you are ready to putt, press the space bar to putt. ");
}

void putt() {
    keywait();
    voice::vs.g.clear();
    puttswing();
    rs.putts += 1;
    rs.remain = 0;
}

}  // namespace play
