// The close of a shot that stays off the green: the stroke, a penalty with
// its replay, the report and the club prompt.
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "round/flight.h"
#include "round/holeout.h"
#include "round/lies.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace play {

namespace {

// The ball in the water or out of bounds: a penalty stroke, and the ball is
// played again from where the shot started, as from the fairway.
void penalty() {
    if (rs.lie == lie::pond) sound::playsplashwav();
    if (rs.lie == lie::outofbounds) sound::play(sound::stem::trees);
    sound::playaww();
    sound::play(sound::stem::penalty);
    rs.noclap = 1;
    std::string t = " shot went ";
    t += rs.inpond == 1 ? " into A-pond, " : " out of bounds, ";
    rs.inpond = 0;
    rs.stk += 1;
    voice::say2(t + " penalty stroke accessed ");
    rs.lie = lie::fairway;
    rs.togo = rs.lasttogo;
    rs.yds = 0;
    rs.offl = 0;
    rs.remain = rs.lasttogo;
}

// After a misused club: everything still sounding is cut off and the crowd
// starts again.
void restartcrowd() {
    rs.misusestop = 0;
    sound::StopAllSounds();
    platform::os().yield();
    sound::playcrowdwav();
    platform::os().yield();
}

}  // namespace

void aftershot() {
    rs.stk += 1;
    while (rs.lie > lie::trap) {
        penalty();
        rs.stk += 1;
    }
    if (rs.misusestop == 1) restartcrowd();
    if (rs.lie == lie::trees) sound::play(sound::stem::trees);
    rs.f1state = 2;
    if (rs.lie == lie::fairway && rs.pw > 0.97) applause();
    shotreport();
    if (input::ks.g.empty()) {
        voice::say2(std::string(clubPrompt) + " ");
        voice::saynoc(rs.noc);
    }
}

}  // namespace play
