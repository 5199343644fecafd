// The putting green: ball after ball until "e" or Escape.
#include <cmath>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "practice/green.h"
#include "practice/practice.h"
#include "practice/state.h"
#include "round/power.h"
#include "round/putting.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "voice/speech.h"

namespace practice {

namespace {

// One putt of the ball; false when the indicator failed its check.
bool puttonce() {
    input::dy(0.2);
    input::clk();
    voice::say2(play::ongreen(int(pr.practicefeet)) + play::puttPrompt);
    greenwait();
    countdown();
    sound::checkputtwav();
    if (sound::bk.fq == sound::failedCheck) return false;
    platform::attempt(play::GetPuttPow);
    pr.pgf2 = 2;
    pr.puttpow = play::rs.hitpow / 5.0;
    sound::playputtwav();
    pr.puttfeet = pr.puttpow * 4;
    pr.practicefeet = play::atrest(pr.practicefeet - pr.puttfeet);
    input::dy(pr.puttpow / 4);
    if (pr.practicefeet != 0) {
        input::clk();
        voice::say2(puttwent(pr.puttfeet, false));
    }
    return true;
}

}  // namespace

std::string puttwent(double feet, bool closing) {
    int n = play::nearfeet(feet);
    return " putt went " + std::to_string(n) + (n == 1 ? " foot" : " feet") + (closing ? " " : "");
}

std::string greendistance(int feet) {
    return " you are on the green " + std::to_string(feet) + (feet == 1 ? " foot " : " feet ") + " from the pin ";
}

void newball() {
    pr.pgf1 = 1;
    pr.pgf2 = 1;
    platform::reseedFromClock();
    pr.practicefeet = std::floor(platform::U() * 40) + 1;
}

bool playball() {
    while (pr.practicefeet != 0)
        if (!puttonce()) return false;
    input::clk();
    pr.pgf1 = 2;
    pr.pgf2 = 3;
    sound::playsinkputtwav();
    input::dy(0.3);
    voice::say2(holedPrompt);
    greenwait();
    return input::ks.g2 != "e";
}

void puttting() {
    quietarea();
    input::dy(0.3);
    voice::say2(" Puttting-Practice-Green ");
    try {
        do {
            newball();
        } while (playball());
        if (sound::bk.fq == sound::failedCheck) return;   // the crowd stays off; the menu leaves the game
    } catch (const LeaveArea&) {
    }
    restorecow();
}

}  // namespace practice
