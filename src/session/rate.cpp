// F9: the speech rate, heard at each step at the new rate.
#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "session/settings.h"
#include "sound/bank.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace session {

namespace {

using input::ks;
using voice::vs;

void setrate() {
    platform::attempt([] { platform::os().setRate(vs.vr); });
}

// Every key counts here, the stop keys too.
void anykey() {
    ks.g.clear();
    while (ks.g.empty()) platform::os().yield();
}

}  // namespace

void adjrate() {
    voice::stopspeech();
    // The crowd stays off until it is started again; the water goes on.
    sound::StopAllSounds();
    while (true) {
        input::clk();
        setrate();
        voice::say2("to adjust the speech rate, use the arrow keys and then press enter");
        voice::say2(course::bare(vs.vr));
        anykey();
        while (ks.g == key::Up || ks.g == key::Down) {
            vs.vr += ks.g == key::Up ? 1 : -1;
            setrate();
            voice::stopspeech();
            voice::say2(course::bare(vs.vr));
            anykey();
        }
        if (ks.g == key::Enter) break;
    }
    input::clk();
    input::dy(0.1);
    ks.g = key::F1;
}

}  // namespace session
