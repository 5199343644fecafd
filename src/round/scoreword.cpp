// The verdict of a holed ball: the counter of its class, its sounds and its
// words; and the clapping.
#include <cmath>
#include <string>

#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/holeout.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace play {

namespace {

using sound::play;
namespace stem = sound::stem;
using sound::playaww;

struct Verdict {
    int RoundState::*counter;
    void (*sounds)();   // play holds until its sound ends, playaww does not
    const char* off;    // holed from off the green
    const char* on;     // holed on the green
};

// Indexed by the class, 1 to 8.
const Verdict verdicts[] = {
    {},
    {&RoundState::DOUBLEBOGEY, [] { play(stem::error); playaww(); play(stem::error); },
     " and is in the hole for A-double bo ghee ", " A-double bo ghee "},
    {&RoundState::Bogey, [] { playaww(); play(stem::error); },
     " and is in the hole for A-bo ghee, maybe the next hole will be better ",
     " A-bo ghee, maybe the next hole will be better "},
    {&RoundState::PARS, [] { play(stem::par); }, " and is in the hole for par, keep up the good work ",
     " A-par, keep up the good work "},
    {&RoundState::BAD, [] { playaww(); play(stem::worse); },
     " and is in the hole. maybe you had better get your money back ",
     " maybe you had better get your money back "},
    {&RoundState::BIRDIE, [] { play(stem::birdie); }, " and is in the hole for A-birdy ", " A-birdy "},
    {&RoundState::HOLEINONE, [] { play(stem::holeInOne); }, " and is in the hole for A-hole in one ", " A-hole in one "},
    {&RoundState::EAGLE, [] { play(stem::eagle); }, " and is in the hole for an eagle, you should be on the tour ",
     " an eagle, you should be on the tour "},
    {&RoundState::DOUEAG, [] { play(stem::eagle); play(stem::birdie); },
     " and is in the hole for A-double eagle, your name must be tiger ",
     " A-double eagle, your name must be tiger "},
};

const Verdict& verdict(int sank) {
    if (sank < 1 || sank > 8) throw platform::Failure("no score word for class " + std::to_string(sank));
    return verdicts[sank];
}

}  // namespace

std::string verdicttext(int sank, int greensaid) {
    const Verdict& v = verdict(sank);
    return greensaid == 0 ? v.off : v.on;
}

void scoreword() {
    if (rs.stk < rs.par) applause();
    const Verdict& v = verdict(rs.sank);
    rs.*v.counter += 1;
    v.sounds();
    voice::say2(verdicttext(rs.sank, rs.greensaid));
}

void applause() {
    if (sound::bk.cowtog == 1 || rs.noclap == 1 || rs.misuse == 1) return;
    switch (int(std::floor(platform::U() * 6)) + 1) {
        case 1: sound::playclap1(); break;
        case 2: sound::playclap2(); break;
        case 3: sound::playclap3(); break;
        case 4: sound::playclap1(); sound::playclap2(); break;
        case 5: sound::playclap1(); sound::playclap3(); break;
        default: sound::playclap2(); sound::playclap3(); break;
    }
}

}  // namespace play
