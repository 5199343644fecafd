// The order of a round: its start, the hole loop and the shots of a hole.
#include "round/driver.h"

#include "course/stored.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/club.h"
#include "round/holeout.h"
#include "round/inplay.h"
#include "round/lies.h"
#include "round/power.h"
#include "round/putting.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

namespace {

// Under the error rule: a step that fails is abandoned and the round goes on.
template <class F>
void step(F f) {
    platform::attempt(f);
}

}  // namespace

void playround() {
    rs.nsaves = 0;
    step(loadgame);
    input::clk();
    rs.dirty = rs.washed == 1 ? 0 : 1;
    rs.hookset = 3;
    rs.stk = 0;
    rs.putts = 0;
    rs.onputt = 0;
    if (rs.resumed != 1) newround();
    try {
        holeloop();
    } catch (const LeaveRound&) {
    }
}

void newround() {
    rs.hole = 1;
    rs.stks = 0;
    rs.total = 0;
    rs.totaltag = course::tagShort;
    rs.BAD = rs.DOUBLEBOGEY = rs.Bogey = rs.PARS = 0;
    rs.BIRDIE = rs.EAGLE = rs.DOUEAG = rs.HOLEINONE = 0;
    step(pickcourse);
    input::clk();
}

void holeloop() {
    while (true) {
        sound::stopWater();
        if (rs.hole == 19) {
            step(endround);
            return;
        }
        playhole();
    }
}

void playhole() {
    step(starthole);
    rs.lie = lie::fairway;
    shotcycle();
    rs.onputt = 0;
    step(sinkball);
    step(endhole);
}

void shotcycle() {
    rs.holed = 0;
    step(clubprompt);
    while (rs.holed == 0) {
        step(pickclub);
        step(swing);
        step(shotdispatch);
    }
}

void greenstep() {
    while (true) {
        step(settle);
        if (rs.remain == 0) {
            rs.holed = 1;
            return;
        }
        step(greenloop);
        step(putt);
    }
}

}  // namespace play
