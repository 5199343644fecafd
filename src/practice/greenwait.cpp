// The green's key wait and its short answers to F1 and F2.
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "practice/green.h"
#include "practice/state.h"
#include "voice/speech.h"

namespace practice {

namespace {

using input::ks;

void spend() {
    ks.g.clear();
    ks.g2.clear();
}

// F1: the short reminders, one after another while no key comes; a key
// cuts them, and the wait takes it.
void greenf1() {
    static const char* const putting[] = {"ssb", "pak", "wrtp", nullptr};
    static const char* const holed[] = {"pak", "or", "e2", "exit", nullptr};
    spend();
    for (const char* const* t = pr.pgf1 == 1 ? putting : holed; *t; ++t) {
        voice::say(*t);
        platform::os().yield();   // what was pressed meanwhile comes in
        if (!ks.g.empty()) return;
    }
}

// F2: the ball holed, or how far the last putt went and where the ball is.
void greenf2() {
    spend();
    if (pr.pgf2 == 3) return voice::say("pg");
    if (pr.pgf2 == 2) voice::say2(puttwent(pr.puttfeet, true));
    voice::say2(greendistance(int(pr.practicefeet)));
}

}  // namespace

void greenwait() {
    auto& os = platform::os();
    while (true) {
        while (ks.g.empty()) os.yield();
        voice::stopspeech();
        if (ks.g == key::F1) {
            greenf1();
        } else if (ks.g == key::F2) {
            greenf2();
        } else if (ks.g == key::Escape) {
            throw LeaveArea{};
        } else {
            return;
        }
    }
}

}  // namespace practice
