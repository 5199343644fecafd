// The green step: where a stroke left the ball, brought to rest in whole
// feet from the pin, the stroke counted, and a missed putt told.
#include <cmath>

#include "input/keys.h"
#include "round/putting.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

namespace {

// A putt travels fifths of a reading times four, which a double cannot hold
// exactly: 5 - 6.4 comes out a hair beyond -1.4. This much slack keeps the
// limits in and lets 27.6 round up as it should.
constexpr double slack = 1e-9;

}  // namespace

double atrest(double remain) {
    if (remain < -40 || remain > 40) remain = 40;   // a long approach
    if (std::fabs(remain) <= 1.4 + slack) return 0;
    return std::fabs(std::floor(remain + 0.4 + slack));
}

int nearfeet(double feet) { return int(std::floor(feet + 0.5 + slack)); }

std::string puttwent(double feet) {
    int n = nearfeet(feet);
    return " putt went " + spaced(n) + (n == 1 ? " foot " : " feet ");
}

void settle() {
    rs.remain = atrest(rs.remain);
    rs.stk += 1;
    input::dy(rs.puttpow / 4);
    if (rs.remain == 0 || rs.onputt != 1) return;
    // Out after a putt: it missed.
    sound::playaww();
    voice::say2(puttwent(rs.puttfeet));
}

}  // namespace play
