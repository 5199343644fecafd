// The arrival report on the green: the pauses after the stroke, the shot's
// length, the clapping, the distance to the pin and the putt prompt.
#include <string>

#include "input/keys.h"
#include "round/holeout.h"
#include "round/putting.h"
#include "round/state.h"
#include "voice/speech.h"

namespace play {

std::string ongreen(int feet) {
    return std::string(" You are on the green ") + (feet == 2 ? "Too" : std::to_string(feet)) +
           (feet == 1 ? " foot" : " feet") + " from the pin. ";
}

void sayongreen() {
    rs.greensaid = 1;
    input::clk();
    voice::say2(ongreen(nearfeet(rs.remain)));
}

void sayputtprompt() {
    input::clk();
    voice::say2(puttPrompt);
}

void greenloop() {
    rs.onputt = 1;
    if (rs.nopause == 1) {   // out of the greenside trap: no wedge pause
        rs.nopause = 0;
        rs.wedge = 0;
    }
    input::dy(rs.pw);   // 0 after a putt
    if (rs.wedge == 1) {
        rs.wedge = 0;
        input::dy(1);
    }
    if (rs.greensaid != 1) voice::say2(" shot went " + spaced(rs.yds) + " yards");
    rs.f1state = 3;
    if (rs.lie == lie::fairway && rs.pw > 0.97) applause();
    if (rs.firstapp == 1 && rs.remain < 10) applause();
    sayongreen();
    rs.firstapp = 0;
    sayputtprompt();
}

}  // namespace play
