// The power sound menu and the three opening questions. A golf.cfg beside
// the program or in kp marks a later run: everything is asked with no.
#include "input/keys.h"
#include "platform/rnd.h"
#include "round/inplay.h"
#include "round/state.h"
#include "session/config.h"
#include "session/manuals.h"
#include "session/startup.h"
#include "session/state.h"
#include "sound/bank.h"
#include "voice/patterns.h"

namespace session {

namespace {

using play::rs;

bool laterRun() { return !cfgpath("").empty() || !cfgpath(ss.kp).empty(); }

// Asks until no; each yes reads the manual and asks again with again.
void offer(voice::Question q, void (*manual)(), bool again) {
    while (voice::yesno(q)) {
        manual();
        q.first = again;
    }
}

voice::Question question(const char* text, bool first, bool repeatWith) {
    voice::Question q;
    q.text = rs.pn + text;
    q.first = first;
    q.f1Answer = repeatWith;
    q.otherAnswer = repeatWith ? 1 : 0;
    return q;
}

}  // namespace

void powersound() {
    voice::Menu m;
    m.header = " " + rs.pn + " select power indicator sound files ";
    m.entries = {" regular ", " alternative with beeps "};
    m.start = sound::bk.powav + 1;
    m.resetOnF1 = true;
    m.resetOnOther = true;
    sound::bk.powav = voice::menu(m) - 1;
    input::clk();
}

void questions() {
    bool later = laterRun();
    platform::reseedFromClock();
    offer(question(" Would you like to read the instructions?", !later, true), readins, true);

    voice::Question keys = question(" Would you like to read the special key instructions?", false, false);
    keys.beforeOther = [] { play::notchoice(); };
    if (!later) speckeys();
    offer(keys, speckeys, false);

    offer(question(" Would you like to read the hints?", !later, true), ReadHints, true);
}

}  // namespace session
