// F11: three volumes, one stage each, every change heard at once on the
// thing changed: the voice, the effects with the sand strike, the ticks and
// power indicators with the power sample.
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "session/settings.h"
#include "session/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace session {

namespace {

using input::ks;
using sound::bk;

constexpr int loudestVoice = 100, voiceStep = 5;
constexpr int loudest = 0, quietest = -5000, soundStep = 100;

void setvoicevolume() {
    platform::attempt([] { platform::os().setVolume(ss.vv); });
}

// The voice: at 0 it says " minimum " at once.
void voicestage() {
    while (true) {
        voice::say2(" use the up and down arrow keys to raise and lower the volume of this voice. "
                    "  Press enter when you have the volume set the way that you want it. ");
        input::getkey();
        while (ks.g == key::Up || ks.g == key::Down) {
            ss.vv += ks.g == key::Up ? voiceStep : -voiceStep;
            const char* word = ks.g == key::Up ? " louder " : " quieter ";
            if (ss.vv >= loudestVoice) ss.vv = loudestVoice, word = " maximum ";
            if (ss.vv <= 0) ss.vv = 0, word = " minimum ";
            setvoicevolume();
            voice::say2(word);
            input::getkey();
        }
        if (ks.g == key::Enter) return;
        if (ks.g != key::F1) voice::saykey();
    }
}

bool samplePlaying() {
    int status = 0;
    platform::attempt([&] { status = platform::os().getStatus(bk.sb); });
    return status == platform::statusPlaying;
}

// Until the sample has ended or a key came.
void samplewait() {
    while (samplePlaying() && ks.g.empty()) platform::os().yield();
}

// The sample once more at the new volume; a key only cuts it short.
void sample(int vol) {
    auto& os = platform::os();
    input::clk();
    platform::attempt([&] { os.play(bk.sb, 0); });
    platform::attempt([&] { os.setVolumeDb(bk.sb, vol); });
    os.yield();
    samplewait();
    platform::attempt([&] { os.stop(bk.sb); });
    platform::attempt([&] { os.setCurrentPosition(bk.sb, 0); });
    platform::attempt([&] { os.restore(bk.sb); });
}

// A sound volume: at the bottom the press that reaches -5000 still says
// " quieter ", and only the next says " minimum ".
void soundstage(const char* stem, int& vol) {
    auto& os = platform::os();
    sound::releaseField(bk.sb);
    platform::attempt([&] { bk.sb = sound::loadbuffer(stem, vol); });
    platform::attempt([&] { os.play(bk.sb, 0); });
    samplewait();
    while (true) {
        voice::say2(" use the up and down arrow keys to adjust the volume. and then press enter. ");
        input::getkey();
        while (ks.g == key::Up || ks.g == key::Down) {
            vol += ks.g == key::Up ? soundStep : -soundStep;
            const char* word = ks.g == key::Up ? " louder " : " quieter ";
            if (vol >= loudest) vol = loudest, word = " maximum ";
            if (vol < quietest) vol = quietest, word = " minimum ";
            voice::say2(word);
            sample(vol);
            input::getkey();
        }
        if (ks.g == key::Enter) break;
        if (ks.g != key::F1) voice::saykey();
    }
    input::clk();
    platform::attempt([&] { os.stop(bk.sb); });
}

}  // namespace

void adjvol() {
    voice::stopspeech();
    sound::StopAllSounds();
    sound::stopWater();
    input::clk();
    voicestage();
    input::clk();
    soundstage(sound::stem::sandStrike, bk.wavol);
    input::clk();
    soundstage(sound::stem::powerSample, bk.wavol2);
    // The preloaded effects take the new volume; the crowd comes back, the
    // water does not.
    for (int id : {bk.b_golf1, bk.b_golf2, bk.b_golf3, bk.b_golf4, bk.b_golf5, bk.b_golf8, bk.b_golf9, bk.b_golf10,
                   bk.b_golf11, bk.b_golf12, bk.b_golf13, bk.b_golf17})
        platform::attempt([&] { platform::os().setVolumeDb(id, bk.wavol); });
    sound::playcrowdwav();
    ks.g = key::F1;
}

}  // namespace session
