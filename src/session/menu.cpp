// The main menu: where start-up ends, where every round, practice visit and
// reading comes back to, and the way out of the program.
#include "session/menu.h"

#include <cstdlib>
#include <string>

#include "course/catalogue.h"
#include "course/course.h"
#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "practice/practice.h"
#include "records/reading.h"
#include "round/driver.h"
#include "round/session.h"
#include "round/state.h"
#include "session/settings.h"
#include "session/state.h"
#include "sound/bank.h"
#include "voice/patterns.h"
#include "voice/speech.h"

namespace session {

namespace {

using input::ks;

namespace entry {
inline constexpr int golfcourse = 1;
inline constexpr int washer = 2;
inline constexpr int range = 3;
inline constexpr int green = 4;
inline constexpr int log = 5;
inline constexpr int records = 6;
inline constexpr int exitgame = 7;
}  // namespace entry

const char* const kEntries[] = {
    " 1. golf-course ",
    " 2. use ball washer ",
    " 3. driving-range ",
    " 4. puttting-practice-green ",
    " 5. reed golf log file ",
    " 6. reed golf records file ",
    " 7. exit-game ",
};

// The digits 1 to 7 go straight to their entry, Escape to the last.
int hotkey(const std::string& g, const std::string&) {
    if (g == key::Escape) return entry::exitgame;
    int d = std::atoi(g.c_str()) - key::code::Digit0;
    return d >= entry::golfcourse && d <= entry::exitgame ? d : 0;
}

// Until the ball was washed the menu offers the washer first.
int choose() {
    voice::Menu m;
    m.header = " select ";
    m.entries.assign(std::begin(kEntries), std::end(kEntries));
    m.start = play::rs.washed == 1 ? entry::golfcourse : entry::washer;
    m.resetOnF1 = true;
    m.resetOnOther = true;
    m.hot = hotkey;
    ss.sel = voice::menu(m);
    return ss.sel;
}

// Entries 2 to 6: what they run.
void runentry(int sel) {
    switch (sel) {
        case entry::washer:
            platform::attempt(practice::ballwasher);
            play::rs.washed = 1;
            break;
        case entry::range: platform::attempt(practice::driving); break;
        case entry::green: platform::attempt(practice::puttting); break;
        case entry::log: platform::attempt(records::ReadLog); break;
        case entry::records: platform::attempt(records::ReadRecords); break;
        default: break;
    }
}

}  // namespace

void mainmenu() {
    wiresettings();
    // A program that has not read the place names and the catalogue yet
    // reads them before the first round.
    if (course::cs.locs[1].empty()) course::fillLocs();
    if (play::rs.nocs == 0) play::rs.nocs = course::GetCors(play::kp());
    while (true) {
        platform::reseedFromClock();
        input::clk();
        int sel = choose();
        if (sel == entry::golfcourse) {
            platform::attempt(play::playround);
            continue;
        }
        if (sel == entry::exitgame) play::leavegame();
        runentry(sel);
        // A wave file that failed its check on the way ends the game.
        if (sound::bk.fq == sound::failedCheck) play::leavegame();
    }
}

}  // namespace session
