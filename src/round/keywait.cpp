// The key wait of a round. It idles with the ambience going until a key
// comes, stops the voice, carries out the commands of play and hands back to
// its caller only the keys that the caller's prompt has to answer.
#include <cstdlib>
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "round/driver.h"
#include "round/flight.h"
#include "round/inplay.h"
#include "round/putting.h"
#include "round/records.h"
#include "round/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace play {

namespace {

using input::ks;
using voice::vs;

// Where the wait goes on after a key.
enum class Next {
    caller,   // give the key back
    fresh,    // new idle timing, then idle
    idle,     // idle on, timing as it was
    handle,   // take the key now in g without idling
};

void idle() {
    auto& os = platform::os();
    do {
        os.yield();
        sound::ambpass();
    } while (ks.g.empty());
}

// A report or prompt said again: the key is spent first, so that a routine
// abandoned before its own clk cannot leave it behind to run once more.
void redo(void (*routine)()) {
    ks.g.clear();
    platform::attempt(routine);
}

void crowdtoggle() {
    voice::saykey();
    auto& bk = sound::bk;
    bk.cowtog = 1 - bk.cowtog;
    if (bk.cowtog == 1) {
        sound::StopAllSounds();
        sound::stopWater();
    } else {
        sound::playcrowdwav();
    }
    input::clk();
}

void keytoggle() {
    vs.keytog = 1 - vs.keytog;
    voice::say(vs.keytog == 0 ? " key toggle on " : " key toggle off ");
    input::clk();
}

void repeatprompt() {
    int stage = rs.f1state;
    if (stage == 3) return redo(sayputtprompt);
    input::clk();
    if (stage == 4) return voice::say2(anyKeyPrompt);
    voice::say2(std::string(clubPrompt) + " ");
    voice::saynoc(rs.noc);
}

void repeatreport() {
    void (*reports[])() = {describehole, shotreport, sayongreen, resaydidonhole};
    redo(reports[rs.f1state - 1]);
}

void saybag() {
    input::clk();
    voice::say2(rs.pn + bagText);
}

bool hasstage() { return rs.f1state >= 1 && rs.f1state <= 4; }

// The row of the table that fits the key in g.
Next row(const std::string& g) {
    if (g == key::Escape) {
        if (rs.savestate != 2) escmenu(); else escmenu2();
        return Next::caller;
    }
    if (g == key::F7) {
        logreview();
        return Next::handle;
    }
    if (ks.g2 == "c") crowdtoggle();
    else if (ks.g2 == "k") keytoggle();
    else if (g == key::F1 && hasstage()) repeatprompt();
    else if (g == key::F2 && hasstage()) repeatreport();
    else if (g == key::F3) saybag();
    else {
        voice::saykey2();
        return Next::caller;
    }
    return Next::fresh;
}

// What the key in g does: the voice stops, the keys that only hush it
// are dropped, and the others set keynum and find their row.
Next command() {
    voice::stopspeech();
    const std::string g = ks.g;
    if (g == key::Up || g == key::Down) return Next::caller;
    if (input::hushonly(g)) {
        input::clk();
        return Next::idle;
    }
    rs.keynum = std::atof(g.c_str());
    Next next = Next::fresh;
    // A command abandoned by a failure must not leave its key to run again.
    if (!platform::attempt([&] { next = row(g); })) input::clk();
    return next;
}

}  // namespace

void keywait() {
    Next next = Next::fresh;
    while (true) {
        if (next == Next::fresh) sound::ambenter();
        if (next != Next::handle) idle();
        next = command();
        if (next == Next::caller) return;
    }
}

}  // namespace play
