#include "voice/speech.h"

#include "input/keys.h"
#include "platform/platform.h"
#include "voice/state.h"
#include "voice/text.h"

namespace voice {

using input::ks;

void say(const std::string& text) { platform::os().speak(text, platform::speakWait); }
void say2(const std::string& text) { platform::os().speak(text, platform::speakQueue); }
void stopspeech() { platform::os().speak("", platform::speakPurge); }

void saynoc(int noc) {
    if (noc < 10)
        say2(spaced(noc));
    else
        say2(" pitching wedge ");
}

namespace {
void namekey(int flag) {
    if (vs.keytog == 1) return;
    auto& os = platform::os();
    os.setRate(vs.vr + 5);
    stopspeech();
    if (ks.g != key::F1) os.speak(ks.g2, flag);
    os.setRate(vs.vr);
}
}  // namespace

void saykey() { namekey(platform::speakQueue); }
void saykey2() { namekey(platform::speakWait); }

void speechwait(double first) {
    auto& os = platform::os();
    input::dy(first);
    do {
        os.yield();
    } while (os.runningState() == platform::speechRunning && ks.g.empty());
    if (!ks.g.empty()) stopspeech();
}

}  // namespace voice
