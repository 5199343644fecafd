// The program entry: until start-up and the main menu are here, the game
// opens its window, asks the player's name, reads it back and plays a round
// on the first built-in course.
#include "session/entry.h"

#include "session/menu.h"

#include "input/keys.h"
#include "platform/platform.h"
#include "round/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "sound/wave_table.h"
#include "voice/getter.h"
#include "voice/patterns.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace session {

namespace {

void wireEvents() {
    auto& os = platform::os();
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    os.setKeyHandler([](int code) { input::Form_KeyDown(code); });
    os.setCloseHandler([] {
        input::clk();
        input::ks.g = key::F1;
    });
}

// The wave files must all be there with their sizes, and the power
// indicators must run at their rate; otherwise the game cannot be played.
bool wavesPass() {
    sound::checkwaves();
    if (sound::bk.fq == sound::failedCheck) return false;
    sound::CheckHitWav();
    if (sound::bk.fq == sound::failedCheck) return false;
    sound::checkputtwav();
    return sound::bk.fq != sound::failedCheck;
}

}  // namespace

void gamemain() {
    auto& os = platform::os();
    os.showWindow(" Greenlark  By Tobrell ");
    wireEvents();
    platform::attempt([&] { os.createVoice(); });
    platform::attempt([&] { os.openSoundDevice(); });
    if (!wavesPass()) {
        sound::corruptFilesEnding();
        os.endProcess();
    }
    sound::CreateSounds();
    sound::countamb();
    sound::bk.fq = sound::indicatorRate;
    // The opening jingle runs on in the ambient buffer while the game goes on.
    platform::attempt([] {
        sound::bk.ab = sound::loadbuffer(sound::stem::jingle, sound::bk.wavol);
        platform::os().play(sound::bk.ab, 0);
    });
    while (true) {
        input::clk();
        voice::getter(" Please enter your name. ");
        if (input::ks.g == key::Escape) break;
        std::string name = " " + voice::vs.r + " ";
        voice::Question q;
        q.text = " Is " + name + " correct for your name?";
        if (voice::yesno(q)) {
            voice::say(" Hello " + name + ". ");
            play::rs.pn = name;
            mainmenu();
            break;
        }
    }
    platform::attempt([&] { os.releaseVoice(); });
    os.endProcess();
}

}  // namespace session
