// The shot dispatch: what the lie and the club make of a finished swing.
#include "round/lies.h"

#include <cmath>
#include <string>

#include "input/keys.h"
#include "platform/rnd.h"
#include "round/flight.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace play {

namespace {

constexpr const char* dumpedText = " you dumped it, shot still in the trap ";

double clubcut(double club) { return club - 5; }

// The ball stays where it lay, in the trap, and the stroke counts.
void dumped() {
    sound::playaww();
    rs.lie = lie::trap;
    rs.yds = 0;
    aftershot();
    input::clk();
}

// A short shot in any direction, whatever the swing.
void mishit() {
    rs.yds = int(std::floor(platform::U() * 35));
    landball();
}

void misused() {
    sound::playswingwav();
    rs.misuse = 1;
    rs.misusestop = 1;
}

void woodintrap() {
    misused();
    voice::say2(std::string(" Where Did You Learn To Play Golf? You Don't Hit ") +
                (rs.club == 1 ? " A-Driver " : " A-Wood ") + " In A-sand trap. ");
    input::dy(0.2);
    voice::say2(dumpedText);
    dumped();
}

void driveroffthedeck() {
    misused();
    voice::say2(" Where Did You Learn To Play Golf? You Don't Hit A-Driver In The Fairway ");
    mishit();
}

void sandshot() {
    sound::playsandwav();
    sound::playcrowdwav();
    sound::playantwav();
    if (escaperoll(platform::U(), rs.dirty, rs.hookset) < escapeNeeded) {
        voice::say2(dumpedText);
        dumped();
        return;
    }
    rs.club = clubcut(rs.club);
    rs.pw = sandpower(rs.pw, platform::U());
    carry();
}

void roughortrees() {
    if (roughroll(platform::U(), rs.dirty) >= roughNeeded) {
        strikeball();
        return;
    }
    if (rs.lie == lie::trees) {
        sound::play(sound::stem::trees);
        voice::say2(" you hit a tree, try again ");
    } else {
        voice::say2(dumpedText);
    }
    mishit();
}

}  // namespace

double escaperoll(double u, int dirty, int hookset) { return u * (hookset == 4 ? 100 : 150) - dirty; }

double sandpower(double pw, double u) {
    int share = int(std::floor(u * 20)) + 30;
    double cut = pw * share / 100;
    cut = std::floor(cut * 100) / 100;
    return cut < 0.02 ? 0.02 : cut;
}

int roughroll(double u, int dirty) { return int(std::floor(u * 50 - dirty)); }

int greensidepick(double u, int hf, int trapped) {
    int pick = int(std::floor(u * 3)) + 1;
    if (hf == 2 || trapped == 1) pick = 1;
    return pick;
}

void shotdispatch() {
    if (rs.club < 5 && rs.lie == lie::trap) {
        woodintrap();
    } else if (rs.club == 1 && rs.togo != rs.holelen) {
        driveroffthedeck();
    } else if (rs.club >= 8) {
        if (rs.lie == lie::trap) {
            sandshot();
        } else {
            rs.club = clubcut(rs.club);
            strikeball();
        }
    } else if (rs.lie == lie::rough || rs.lie == lie::trees) {
        roughortrees();
    } else {
        strikeball();
    }
}

}  // namespace play
