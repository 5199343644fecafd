// The player's voice: offered one after another, at start-up and on F12.
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "round/state.h"
#include "session/settings.h"
#include "session/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace session {

namespace {

using input::ks;
using sound::bk;
using voice::vs;

const char* const kQuestion = " do you wish to use this voice. ";

// The next voice in the list, and from the last the first; the waiting loop
// runs while it is made.
void nextvoice() {
    auto& os = platform::os();
    platform::attempt([&] { os.setCurrentPosition(bk.sb, 0); });
    platform::attempt([&] { os.play(bk.sb, 1); });
    ss.nv += 1;
    voiceinlist();
    makevoice();
}

// The answer, taken as the yes/no question takes it: Enter the present
// answer, the arrows flip it, y and n at once. Any other key, F1 among
// them, asks again: again is then set.
bool answer(bool present, bool& again) {
    again = false;
    while (true) {
        input::getkey();
        if (ks.g == key::Enter) return present;
        if (ks.g == key::Up || ks.g == key::Down) {
            present = !present;
            voice::say2(present ? " yes " : " no ");
            continue;
        }
        if (ks.g != key::F1) {
            voice::saykey2();
            if (ks.g2 == "y") return true;
            if (ks.g2 == "n") return false;
        }
        again = true;
        return false;
    }
}

// Asks until the player keeps a voice; each no moves one voice on.
void ask(int a) {
    input::clk();
    voice::say2(play::rs.pn + kQuestion + (a == 1 ? " yes " : " no "));
    bool present = a == 1;
    while (true) {
        bool again = false;
        bool yes = answer(present, again);
        if (yes) return;
        if (!again) nextvoice();
        input::clk();
        voice::say2(play::rs.pn + " do you wish to use this voice. yes ");
        platform::attempt([] { platform::os().stop(bk.sb); });
        present = true;
    }
}

}  // namespace

int nov() {
    int n = 0;
    platform::attempt([&] { n = platform::os().voiceCount(); });
    return n - 1;
}

void voiceinlist() {
    if (ss.nv < 0 || ss.nv > nov()) ss.nv = 0;
}

void makevoice() {
    auto& os = platform::os();
    voiceinlist();
    platform::attempt([&] { os.releaseVoice(); });
    platform::attempt([&] { os.createVoice(); });
    platform::attempt([&] { os.setRate(vs.vr); });
    platform::attempt([&] { os.setVoice(ss.nv); });
    platform::attempt([&] { os.setVolume(ss.vv); });
}

void changevoice(int a) {
    voice::stopspeech();
    sound::StopAllSounds();
    platform::attempt([] { sound::replaceSb(sound::loadbuffer(sound::stem::voiceWait, bk.wavol)); });
    input::clk();
    // With one voice there is nothing to choose.
    if (nov() > 0) ask(a);
    sound::releaseField(bk.sb);
    if (a == 2) sound::playcrowdwav();
    input::clk();
    ks.g = key::F1;
}

}  // namespace session
