// The program entry: start-up in its order, then the main menu.
#include "session/entry.h"

#include "course/catalogue.h"
#include "course/course.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "records/dates.h"
#include "round/state.h"
#include "session/leaving.h"
#include "session/manuals.h"
#include "session/menu.h"
#include "session/settings.h"
#include "session/startup.h"
#include "session/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "sound/wave_table.h"
#include "voice/state.h"

namespace session {

namespace {

using sound::bk;

void wireEvents() {
    auto& os = platform::os();
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    input::fkeys.speckeys = speckeys;
    input::fkeys.readins = readins;
    input::fkeys.ReadHints = ReadHints;
    input::fkeys.adjrate = adjrate;
    input::fkeys.adjvol = adjvol;
    input::fkeys.changevoice2 = [] { changevoice(2); };
    os.setKeyHandler([](int code) { input::Form_KeyDown(code); });
    os.setCloseHandler(Form_QueryUnload);
    os.setEndHandler(endrequested);
}

// The voice object, and whether any voice was found.
bool voicefound() {
    platform::attempt([] { platform::os().createVoice(); });
    return nov() >= 0;
}

void novoices() {
    platform::attempt([] {
        platform::os().messageBox("Sorry but I couldn't find any voices to use\rPlease contact Tobrell");
    });
    silentshutdown();
}

void defaults() {
    ss.nv = 0;
    voice::vs.vr = 0;
    ss.vv = 95;
    bk.wavol = 0;
    bk.wavol2 = 0;
    bk.powav = 0;
    voice::vs.keytog = 0;
    bk.cowtog = 0;
    play::rs.washed = play::rs.nsaves = play::rs.savedexit = play::rs.resumeskip = 0;
}

// The wave files must all be there with their sizes, and the power
// indicators must run at their rate; otherwise the game cannot be played.
bool wavesPass() {
    sound::checkwaves();
    if (bk.fq == sound::failedCheck) return false;
    sound::CheckHitWav();
    if (bk.fq == sound::failedCheck) return false;
    sound::checkputtwav();
    return bk.fq != sound::failedCheck;
}

void today() {
    Date d = readdate(records::systemdate());
    ss.mm = d.mm;
    ss.dd = d.dd;
    ss.yy = d.yy;
    ss.datefell = d.fell;
}

// The name, then the voice.
void player() {
    input::dy(0.3);
    getplayername();
    play::rs.pn = voice::vs.r;
    input::dy(0.3);
    changevoice(1);
    input::dy(0.2);
}

}  // namespace

void gamemain() {
    auto& os = platform::os();
    os.showWindow(" Greenlark  By Tobrell ");
    wireEvents();
    platform::attempt([&] { os.openSoundDevice(); });
    if (!voicefound()) novoices();
    defaults();
    if (!wavesPass()) {
        sound::corruptFilesEnding();
        shutdown();
    }
    getkp();
    ss.golog = ss.kp + "/golflog.txt";
    sound::CreateSounds();
    sound::countamb();
    bk.fq = sound::indicatorRate;
    bk.cowtog = 0;
    today();
    startup();
    course::cs.fox = 1;
    play::rs.nocs = course::GetCors(ss.kp);
    player();
    powersound();
    questions();
    mainmenu();
    leavegame();
}

}  // namespace session
