// What the range and the green have in common: the quiet of the visit and
// the countdown of a shot.
#include "input/keys.h"
#include "practice/state.h"
#include "round/power.h"
#include "sound/bank.h"

namespace practice {

PracticeState pr;

void quietarea() {
    pr.savedcow = sound::bk.cowtog;
    sound::bk.cowtog = 1;
}

void restorecow() { sound::bk.cowtog = pr.savedcow; }

void countdown() {
    input::clk();
    input::dy(0.6);
    play::ticks();
}

}  // namespace practice
