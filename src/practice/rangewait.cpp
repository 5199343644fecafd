// The range's key wait and its answers to F1 and F2.
#include <cstdlib>
#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "practice/range.h"
#include "practice/state.h"
#include "round/state.h"
#include "voice/speech.h"

namespace practice {

namespace {

using input::ks;

void spend() {
    ks.g.clear();
    ks.g2.clear();
}

void beep() {
    platform::attempt([] { platform::os().beep(); });
}

// F1: the prompt of the moment, without the club pointer.
void rangef1() {
    voice::say2(pr.rangef1 == 1 ? play::clubPrompt : continuePrompt);
}

// F2: before a shot a hint; after one two beeps and its length.
void rangef2() {
    if (pr.rangef2 == 1) return voice::say("dr");
    input::dy(0.2);
    beep();
    input::dy(0.2);
    beep();
    input::dy(0.2);
    voice::say2(" shot went " + std::to_string(pr.yds) + " yards ");
}

}  // namespace

void rangewait() {
    auto& os = platform::os();
    while (true) {
        while (ks.g.empty()) os.yield();
        voice::stopspeech();
        if (ks.g == key::Up || ks.g == key::Down) return;
        if (input::hushonly(ks.g)) {
            input::clk();
            voice::stopspeech();
            continue;
        }
        voice::saykey2();
        pr.keynum = std::atof(ks.g.c_str());
        if (ks.g == key::Escape) throw LeaveArea{};
        if (ks.g == key::F1) {
            spend();
            rangef1();
        } else if (ks.g == key::F2) {
            spend();
            rangef2();
        } else {
            return;
        }
    }
}

}  // namespace practice
