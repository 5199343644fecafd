// Stand-in for the key wait of play until the in-play commands exist. The
// ambient sounds come and go while it waits; there are no Escape menus, no
// log review, no c, k or F3. It stops the voice, swallows the keys that only
// hush it, repeats the stage's prompt at F1 and its report at F2, takes
// Escape as "quit game and return to main menu", and hands every other key
// back named.
#include <cstdlib>

#include "platform/platform.h"
#include "round/driver.h"
#include "round/flight.h"
#include "round/inplay.h"
#include "round/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "voice/keys.h"
#include "voice/speech.h"

namespace play {

namespace {

using voice::vs;

bool hushonly(const std::string& g) {
    return g == "119" || g == "17" || g == "18" || g == "19" || g == "145";
}

void repeatprompt() {
    voice::clk();
    if (rs.f1state == 1 || rs.f1state == 2) {
        voice::say2(std::string(clubPrompt) + " ");
        voice::saynoc(rs.noc);
    } else if (rs.f1state == 3) {
        voice::say2(" Press any key when you are ready to putt, press the space bar to putt. ");
    } else if (rs.f1state == 4) {
        voice::say2(anyKeyPrompt);
    }
}

void repeatreport() {
    if (rs.f1state == 1) describehole();
    if (rs.f1state == 2) shotreport();
}

}  // namespace

void keywait() {
    auto& os = platform::os();
    sound::ambenter();
    while (true) {
        while (vs.g.empty()) {
            os.yield();
            sound::ambpass();
        }
        voice::stopspeech();
        if (vs.g == "38" || vs.g == "40") return;
        if (hushonly(vs.g)) {
            voice::clk();
            continue;
        }
        rs.keynum = std::atof(vs.g.c_str());
        if (vs.g == "27") {
            sound::StopAllSounds();
            sound::stopWater();
            throw LeaveRound{};
        }
        if (vs.g == "112") {
            repeatprompt();
            continue;
        }
        if (vs.g == "113") {
            vs.g.clear();
            platform::attempt(repeatreport);
            continue;
        }
        voice::saykey2();
        return;
    }
}

}  // namespace play
