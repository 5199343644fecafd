// The countdowns and the power readings of a swing and a putt.
#include "round/power.h"

#include "input/keys.h"
#include "platform/platform.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "sound/wave_table.h"

namespace play {

int hitpowFrom(long position, long length) {
    if (position == 0) position = 1;
    long p = position * 100 / length;
    int h = int(p > 50 ? 100 - p : p);
    return h == 0 ? 1 : h;
}

void ticks() {
    for (int i = 0; i < 3; ++i) {
        sound::play3(sound::stem::tick);
        input::dy(0.3);
    }
}

namespace {

void countdownhead() {
    sound::StopAllSounds();
    sound::playcrowdwav();
    input::dy(0.6);
    ticks();
}

// Plays the indicator once into pb; true when a key came during it.
bool indicatorpass(const std::string& stem) {
    auto& os = platform::os();
    sound::releaseField(sound::bk.pb);
    sound::bk.pb = sound::loadbuffer(stem, sound::bk.wavol2);
    os.play(sound::bk.pb, 0);
    do {
        os.yield();
    } while (input::ks.g.empty() && os.getStatus(sound::bk.pb) == platform::statusPlaying);
    if (!input::ks.g.empty()) return true;
    os.stop(sound::bk.pb);
    sound::releaseField(sound::bk.pb);
    return false;
}

// The reading itself, once the indicator's check has been made. With no
// key the indicator plays again from its start, without end.
void reading(const std::string& stem, long length) {
    sound::StopAllSounds();
    sound::playcrowdwav();
    input::clk();
    while (!indicatorpass(stem)) {
    }
    auto& os = platform::os();
    long position = os.getCurrentPosition(sound::bk.pb).play;
    os.stop(sound::bk.pb);
    sound::releaseField(sound::bk.pb);
    rs.hitpow = hitpowFrom(position, length);
    input::ks.wckp = 0;
}

}  // namespace

void GetHitPow() {
    input::ks.wckp = 1;
    sound::CheckHitWav();
    if (sound::bk.fq == sound::failedCheck) return;   // the reading is skipped
    reading(sound::bk.powav == 0 ? sound::stem::hitIndicator : sound::stem::hitIndicatorBeeps, sound::hitIndicatorBytes);
}

void GetPuttPow() {
    input::ks.wckp = 1;
    sound::checkputtwav();
    reading(sound::bk.powav == 0 ? sound::stem::puttIndicator : sound::stem::puttIndicatorBeeps, sound::puttIndicatorBytes);
}

void swing() {
    rs.savestate = 2;
    input::clk();
    countdownhead();
    sound::CheckHitWav();
    if (sound::bk.fq == sound::failedCheck) leavegame();
    rs.noclap = 0;
    rs.misuse = 0;
    GetHitPow();
    rs.pw = rs.hitpow * 2 / 100.0;
}

void puttswing() {
    countdownhead();
    sound::checkputtwav();
    if (sound::bk.fq == sound::failedCheck) leavegame();
    rs.pw = 0;
    rs.noclap = 0;
    GetPuttPow();
}

}  // namespace play
