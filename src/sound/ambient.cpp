#include "sound/ambient.h"

#include <cmath>
#include <initializer_list>

#include "course/course.h"
#include "platform/names.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "platform/ticks.h"
#include "sound/bank.h"
#include "sound/wave_table.h"

namespace sound {

Ambient am;

namespace {

int Int(double x) { return int(std::floor(x)); }
std::uint32_t now() { return platform::os().tick(); }

struct FlagRow {
    int Ambient::*flag;
    std::initializer_list<int> ids;
};

// Which location ids set which flag, in the order they are walked.
const FlagRow kRows[] = {
    {&Ambient::ajaf, {4}},
    {&Ambient::water, {6, 9, 53}},
    {&Ambient::chicken, {12}},
    {&Ambient::siren, {20, 26, 34}},
    {&Ambient::cars, {24, 39, 75, 99}},
    {&Ambient::horse, {25, 117}},
    {&Ambient::parklot, {30, 32, 64, 67, 68, 70, 74, 75, 86, 91, 93, 97, 99, 100, 102, 108, 111, 112, 119, 122,
                         123, 125, 127, 130, 132, 140, 141, 144}},
    {&Ambient::pig, {33}},
    {&Ambient::swim, {44}},
    {&Ambient::airplane, {48}},
    {&Ambient::train, {55}},
    {&Ambient::deer, {153, 154}},
    {&Ambient::santa, {154, 155}},
    {&Ambient::turkey, {161}},
    {&Ambient::cow, {162}},
};

// The flag each location sound 14..37 needs.
int Ambient::* const kSoundFlag[] = {
    &Ambient::cow,     &Ambient::chicken, &Ambient::turkey,   &Ambient::cow,      &Ambient::horse,
    &Ambient::chicken, &Ambient::ajaf,    &Ambient::siren,    &Ambient::siren,    &Ambient::siren,
    &Ambient::train,   &Ambient::train,   &Ambient::parklot,  &Ambient::airplane, &Ambient::parklot,
    &Ambient::airplane, &Ambient::cars,   &Ambient::swim,     &Ambient::parklot,  &Ambient::cars,
    &Ambient::airplane, &Ambient::pig,    &Ambient::deer,     &Ambient::santa};

bool abPlaying() {
    int status = 0;
    if (!platform::attempt([&] { status = platform::os().getStatus(bk.ab); })) return false;
    return status == platform::statusPlaying;
}

void choose() {
    do {
        am.ambno = 1 + Int(platform::ambientU() * am.namb);
        int* flag = ambflag(am.ambno);
        if (!flag || *flag != 0) break;
    } while (true);
    am.ambname = "amb" + std::to_string(am.ambno);
}

void placeAndPlay() {
    int* flag = ambflag(am.ambno);
    if (flag) {
        am.side = 1;
        if (*flag == 1) am.side = -1;
        if (*flag > 2) am.side = ambside();
        am.pan = (800 + Int(platform::ambientU() * 100)) * am.side;
    } else {
        am.pan = Int(platform::ambientU() * 1200) - 600;
        if (platform::lower(am.ambname) == "amb11") am.pan = 0;
    }
    platform::attempt([] {
        auto& os = platform::os();
        os.setPan(bk.ab, am.pan);
        os.yield();
        os.play(bk.ab, 0);
    });
}

}  // namespace

int* ambflag(int ambno) {
    if (ambno < firstPlaceAmb || ambno > 37) return nullptr;
    return &(am.*kSoundFlag[ambno - firstPlaceAmb]);
}

void countamb() {
    int n = 0;
    platform::attempt([&] {
        for (const auto& e : platform::os().list("amb*.wav")) {
            if (e.isDir) continue;
            if (++n >= 2220) break;
        }
    });
    am.namb = n;
}

void chamb(int hole) {
    int left = course::cs.H[hole][3], right = course::cs.H[hole][4];
    for (const FlagRow& row : kRows) am.*row.flag = 0;
    for (const FlagRow& row : kRows) {
        for (int id : row.ids) {
            if (left == id) am.*row.flag = 1;
            if (right == id) am.*row.flag = am.*row.flag + 2;
        }
    }
}

void startwater() {
    auto& os = platform::os();
    auto loopAt = [&](int id, int pan) {
        platform::attempt([&] {
            os.setPan(id, pan);
            os.play(id, 1);
        });
    };
    if (am.water == 1) loopAt(bk.wb1, -800);
    if (am.water == 2) loopAt(bk.wb1, 800);
    if (am.water == 3) {
        loopAt(bk.wb2, -800);
        loopAt(bk.wb1, 800);
    }
}

void ambenter() {
    am.ambwait = 1025 + Int(platform::ambientU() * 2050);
    am.nexttick = now() + am.ambwait;
    platform::os().dueAt(am.nexttick + 1);
}

void ambpass() {
    if (platform::later(now(), am.nexttick)) ambtick();
}

void ambtick() {
    if (bk.cowtog == 1) return;
    if (platform::os().runningState() == platform::speechRunning) {
        am.nexttick = now() + am.ambwait;
        return;
    }
    bool fresh = am.ambinit == 0;
    am.ambinit = 1;
    if (fresh || !abPlaying()) {
        releaseField(bk.ab);   // dropping the old sound silences it
        choose();
        if (platform::attempt([] { bk.ab = loadbuffer(am.ambname, bk.wavol, true); })) placeAndPlay();
    }
    am.ambwait = 1025 + Int(platform::ambientU() * 5250);
    am.nexttick = now() + am.ambwait;
    platform::os().dueAt(am.nexttick + 1);
}

int ambside() { return platform::ambientU() < 0.5 ? -1 : 1; }

}  // namespace sound
