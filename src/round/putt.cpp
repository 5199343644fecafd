// The putt: the key that starts it, the countdown and the reading, the
// sounds of the stroke, and where it leaves the ball.
#include "input/keys.h"
#include "round/inplay.h"
#include "round/power.h"
#include "round/putting.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

bool forcedin() {
    // The stroke limb is met from the fifth stroke on, washed ball or not,
    // always before the limb of the putts.
    return rs.putts > 6 || (rs.stk - 1) > (rs.dirty * 0.75 + 2);
}

void putt() {
    keywait();   // any key it gives back starts the putt, the arrows too
    input::ks.g.clear();
    puttswing();
    rs.puttpow = rs.hitpow / 5.0;
    sound::playputtwav();
    sound::playcrowdwav();
    sound::playantwav();
    rs.putts += 1;
    if (forcedin()) {   // drops whatever the power, and nothing says so
        rs.remain = 0;
        return;
    }
    rs.puttfeet = rs.puttpow * 4;
    rs.remain -= rs.puttfeet;
}

}  // namespace play
