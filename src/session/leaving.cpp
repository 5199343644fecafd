// The way out: leavegame and the closing steps every exit joins.
#include "session/leaving.h"

#include "input/keys.h"
#include "platform/platform.h"
#include "round/state.h"
#include "session/config.h"
#include "session/savedgame.h"
#include "session/startup.h"
#include "session/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace session {

namespace {

using sound::bk;

bool launcherThere() {
    bool found = false;
    platform::attempt([&] {
        for (const auto& e : platform::os().list(launcherName))
            if (!e.isDir) found = true;
    });
    return found;
}

void nolauncher() {
    auto& os = platform::os();
    platform::attempt([&] { os.beep(); });
    input::dy(0.1);
    platform::attempt([&] { os.beep(); });
    input::dy(0.1);
    voice::say("Sorry, but I could not find the Brindlewick game menu program.");
    input::dy(0.2);
    voice::say(" Exiting program. ");
}

// The sound buffers, the sound device and the voice, in this order.
void release() {
    auto& os = platform::os();
    for (int* field : {&bk.sb, &bk.wb1, &bk.b_golf1, &bk.b_golf2, &bk.b_golf3, &bk.b_golf4, &bk.b_golf5, &bk.b_golf8,
                       &bk.b_golf9, &bk.b_golf10, &bk.b_golf11, &bk.b_golf12, &bk.b_golf13})
        sound::releaseField(*field);
    platform::attempt([&] { os.closeSoundDevice(); });
    platform::attempt([&] { os.releaseVoice(); });
}

// Before start-up knew the player's folder there is no golf.cfg to write.
void saveconfig() {
    if (!ss.kp.empty()) platform::attempt(writeconfig);
}

void closing(bool heard) {
    saveconfig();
    ss.playdeck = launcherThere() ? 1 : 0;
    if (!ss.playdeck && heard) nolauncher();
    release();
    ss.qr = 1;
    if (ss.playdeck) platform::attempt([] { platform::os().startProgram(std::string("./") + launcherName); });
    platform::os().endProcess();
}

}  // namespace

void leavegame() {
    // The mark of no saved game replaces the file whole, so a disk that
    // refuses it leaves the old one as it was.
    if (play::rs.savedexit == 0) platform::attempt(clearsave);
    sound::play2(sound::stem::jingle);
    sound::playgolfwav();
    flourish();
    voice::say(" Thank you for playing Greenlark. By Tobrell ");
    sound::StopAllSounds();
    input::dy(0.3);
    shutdown();
}

void shutdown() { closing(true); }

void silentshutdown() { closing(false); }

void endrequested() {
    saveconfig();
    release();
    ss.qr = 1;
    platform::os().endProcess();
}

void egg2() { sound::play(sound::stem::jingleEnd); }

void Form_QueryUnload() {
    input::clk();
    if (ss.qr == 1) platform::os().endProcess();
    egg2();
    voice::stopspeech();
    voice::say(" Please use the escape key to exit the game. ");
    input::clk();
    input::ks.g = key::F1;
}

}  // namespace session
