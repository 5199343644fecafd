// The driving range: the club, the countdown, the swing and its length, over
// and over until "e" or Escape.
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "practice/practice.h"
#include "practice/range.h"
#include "practice/state.h"
#include "round/flight.h"
#include "round/power.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "sound/wave_table.h"
#include "voice/speech.h"
#include "voice/text.h"

namespace practice {

namespace {

enum class After { again, leave, broken };

// The swing and its length. The range hits a washed ball whatever the
// washer's state.
void hit() {
    platform::attempt(play::GetHitPow);
    pr.pw = play::rs.hitpow * 2 / 100.0;
    if (pr.club >= 8) pr.club -= 5;   // irons and the wedge: no club or lie rules here
    sound::playgolfwav();
    if (pr.pw > 0.97) sound::play(sound::stem::bigSwing);
    pr.yds = play::swingcarry(play::fullcarry(0, pr.club, platform::U()), pr.pw);
    input::dy(pr.yds / 250.0);
}

After rangeshot() {
    pr.rangef1 = 1;
    pr.rangef2 = 1;
    input::dy(0.3);
    input::clk();
    rangeclub();
    countdown();
    sound::CheckHitWav();
    if (sound::bk.fq == sound::failedCheck) {
        platform::attempt([] { platform::os().beep(); });
        return After::broken;
    }
    hit();
    input::clk();
    voice::say2(rangereport(pr.yds));
    pr.rangef1 = 2;
    pr.rangef2 = 2;
    rangewait();
    return input::ks.g == key::E ? After::leave : After::again;
}

}  // namespace

std::string rangereport(int yds) { return " shot went " + voice::spaced(yds) + " yards. " + continuePrompt; }

void driving() {
    pr.club = pr.pw = pr.keynum = 0;   // nothing of the last visit is kept
    pr.yds = pr.wi = pr.pflag = 0;
    input::dy(0.3);
    voice::say(" Driving-Range. ");
    quietarea();
    try {
        After after = After::again;
        while (after == After::again) after = rangeshot();
        if (after == After::broken) return;   // the crowd stays off; the menu leaves the game
    } catch (const LeaveArea&) {
    }
    restorecow();
}

}  // namespace practice
