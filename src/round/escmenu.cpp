// The two Escape menus of a round: at the beginning of a hole the game can
// be saved; after the first swing it can only be left.
#include "input/keys.h"
#include "platform/platform.h"
#include "round/inplay.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/patterns.h"

namespace play {

namespace {

const char* const kReturn = " return to game ";
const char* const kQuit = " quit game and return to main menu ";
const char* const kExit = " exit program ";

// Back to the prompt that the menu interrupted, which takes the key as F1.
void backtogame() {
    sound::playcrowdwav();
    input::clk();
    input::ks.g = key::F1;
}

void silence() {
    sound::StopAllSounds();
    sound::stopWater();
}

}  // namespace

void escmenu() {
    input::clk();
    silence();
    voice::Menu m;
    m.header = " select. ";
    m.entries = {" save and exit game ", kQuit, kExit, kReturn};
    switch (voice::menu(m)) {
        case 1:
            rs.savedexit = 1;
            savegame();
            break;
        case 2:
            platform::attempt(deletesave);
            throw LeaveRound{};
        case 3:
            leavegame();
            break;
        default:
            break;
    }
    backtogame();
}

void escmenu2() {
    silence();
    input::clk();
    voice::Menu m;
    m.header = " note, you can only save the game at the beginning of a hole. select ";
    m.entries = {kReturn, kQuit, kExit};
    m.resetOnF1 = m.resetOnOther = true;
    switch (voice::menu(m)) {
        case 2:
            throw LeaveRound{};
        case 3:
            leavegame();
            break;
        default:
            break;
    }
    backtogame();
}

}  // namespace play
