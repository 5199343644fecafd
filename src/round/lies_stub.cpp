// Stand-in for the lies and penalties until they exist. Every swing is a
// clean one (irons and the wedge lose 5 from their club value, as from the
// fairway), the greenside zone always drops the ball in the trap, and
// aftershot counts the stroke, reports and prompts: no penalties, no
// misused clubs, no applause.
#include <string>

#include "round/flight.h"
#include "round/lies.h"
#include "round/state.h"
#include "voice/keys.h"
#include "voice/speech.h"

namespace play {

void shotdispatch() {
    if (rs.club >= 8) rs.club -= 5;
    strikeball();
}

void greenside() {
    rs.lie = 5;
    rs.nopause = 1;
    rs.trapped = 1;
    aftershot();
}

void aftershot() {
    rs.stk += 1;
    rs.f1state = 2;
    shotreport();
    if (voice::vs.g.empty()) {
        voice::say2(std::string(clubPrompt) + " ");
        voice::saynoc(rs.noc);
    }
}

}  // namespace play
