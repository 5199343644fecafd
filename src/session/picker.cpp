#include "session/picker.h"

#include <cmath>
#include <cstdlib>
#include <string>

#include "course/course.h"
#include "input/keys.h"
#include "platform/names.h"
#include "platform/platform.h"
#include "round/records.h"
#include "round/session.h"
#include "round/state.h"
#include "session/state.h"
#include "voice/speech.h"

namespace session {

namespace {

using input::ks;

const char* const kHeader = " Please Pick A-Course To Play. ";
// Only the built-in courses have a digit; the letters search the others.
constexpr int firstSearched = course::builtins + 1;
// A letter this many seconds or less after the entry was said adds to the search.
constexpr double searchPause = 1;

bool isletter(const std::string& g) {
    int code = std::atoi(g.c_str());
    return code >= key::code::A && code <= key::code::Z;
}

// The digit 1 to 6 the key is; 0 for any other key.
int builtinDigit(const std::string& g) {
    int code = std::atoi(g.c_str());
    int d = code - key::code::Digit0;
    return code >= key::code::Digit0 && d >= 1 && d <= course::builtins ? d : 0;
}

void sayentry() {
    input::clk();
    voice::say2(course::cs.cname[ss.sel]);
    ss.stm = std::lround(platform::os().timeOfDay());
}

}  // namespace

void searchcourse(const std::string& letter, double now) {
    if (now - double(ss.stm) > searchPause)
        ss.typed = " " + letter;
    else
        ss.typed += letter;
    for (int a = firstSearched; a <= play::rs.nocs; ++a) {
        if (platform::lower(course::cs.cname[a]).starts_with(ss.typed)) {
            ss.sel = a;
            return;
        }
    }
}

void pickcourse() {
    const int nocs = play::rs.nocs;
    bool header = true;
    while (true) {
        if (header) {
            input::clk();
            voice::say2(kHeader);
            ss.sel = 1;
            header = false;
        }
        sayentry();
        input::getkey();
        double now = platform::os().timeOfDay();
        voice::stopspeech();
        if (ks.g == key::Enter) break;
        if (ks.g == key::Up || ks.g == key::Down) {
            ss.sel += ks.g == key::Up ? -1 : 1;
            if (ss.sel < 1) ss.sel = nocs;
            if (ss.sel > nocs) ss.sel = 1;
            continue;
        }
        if (ks.g == key::F1) {
            header = true;
            continue;
        }
        voice::saykey();
        if (int d = builtinDigit(ks.g)) {
            ss.sel = d;
        } else if (isletter(ks.g)) {
            searchcourse(ks.g2, now);
        } else {
            header = true;
        }
    }
    input::clk();
    play::rs.c = ss.sel;
    platform::attempt([] { play::startlog(play::rs.c); });
    play::loadcourse();
}

}  // namespace session
