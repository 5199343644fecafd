// The end of a hole and the end of the round.
#include <cstdlib>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/inplay.h"
#include "round/records.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

void endhole() {
    rs.putts = 0;
    rs.stks += rs.stk;
    platform::attempt(loggit);
    rs.hole += 1;
    platform::reseedFromClock();
    input::dy(0.5);
    rs.f1state = 4;
    rs.virgin = 1;
    platform::attempt(resaydidonhole);
    input::clk();
    voice::say2(anyKeyPrompt);
    keywait();
    rs.stk = 0;
}

namespace {

// The end's own wait: no ambience, and no key is swallowed.
int endkey() {
    voice::say2(anyKeyPrompt);
    input::clk();
    while (input::ks.g.empty()) platform::os().yield();
    return std::atoi(input::ks.g.c_str());
}

}  // namespace

void endround() {
    platform::attempt(clearsave);
    sound::StopAllSounds();
    sound::stopWater();
    platform::attempt(sayendscore);
    input::clk();
    if (rs.c != rs.nocs) platform::attempt(CheckRecords);
    for (int code = endkey(); code >= key::code::F1 && code <= key::code::F8; code = endkey()) repeatend();
    rs.resumed = 0;
}

}  // namespace play
