// The opening: golf.cfg, the jingle, the player's folder filled, the voice
// as the player left it, the strike, a random ending and the title.
#include "session/startup.h"

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/state.h"
#include "session/config.h"
#include "session/settings.h"
#include "session/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace session {

namespace {

using sound::bk;

// The voice as the settings say; a voice index past the list gives voice 0.
void openvoice() {
    auto& os = platform::os();
    voiceinlist();
    platform::attempt([&] { os.setVoice(ss.nv); });
    os.yield();
    platform::attempt([&] { os.setVolume(ss.vv); });
    os.yield();
    platform::attempt([&] { os.setRate(voice::vs.vr); });
    os.yield();
    platform::attempt([&] { os.speak("  ", platform::speakWait); });
    os.yield();
}

// The jingle starts and the game goes on beside it.
void startjingle() {
    platform::attempt([] {
        bk.ab = sound::loadbuffer(sound::stem::jingle, bk.wavol);
        platform::os().play(bk.ab, 0);
    });
}

// A key ends the jingle early and stays in g.
void endjingle() {
    if (bk.ab == 0) return;
    auto& os = platform::os();
    platform::attempt([&] {
        do {
            os.yield();
        } while (os.getStatus(bk.ab) == platform::statusPlaying && input::ks.g.empty());
    });
    platform::attempt([&] { os.stop(bk.ab); });
    sound::releaseField(bk.ab);
}

// The strike, held to its end; it stays in ab.
void strike() {
    auto& os = platform::os();
    platform::attempt([&] {
        bk.ab = sound::loadbuffer(sound::stem::strike, bk.wavol);
        os.play(bk.ab, 0);
        do {
            os.yield();
        } while (os.getStatus(bk.ab) == platform::statusPlaying);
    });
}

}  // namespace

void flourish() {
    input::dy((platform::U() * 4 + 3) / 10);
    switch (int(platform::U() * 3) + 1) {
        case 1: sound::playsplashwav(); break;
        case 2: sound::play(sound::stem::trees); break;
        default: sound::play(sound::stem::jingleEnd); break;
    }
}

void startup() {
    input::clk();
    readconfig();
    startjingle();
    otc();
    platform::os().yield();
    openvoice();
    endjingle();
    strike();
    platform::reseedFromClock();
    flourish();
    course::fillLocs();
    voice::say(" Greenlark. version eleven, By Tobrell ");
}

}  // namespace session
