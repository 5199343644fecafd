// Shared by the key wait tests: the way to the first tee through
// greenlark-sim, a fresh round in this process, and transcript helpers.
#pragma once

#include <string>

#include "course/course.h"
#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/fresh_game.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/ambient.h"
#include "sound/bank.h"

namespace inplay {

// From the program's start to the club prompt of the first tee of course 1.
inline const std::string kToTheTee = std::string(simtest::kToTheTee) + "expect \"Select Your Club\"\nexpect \" 1\"\n";

// A one-wood drive off the first tee, to the report and the prompt behind it.
inline const char* kDrive = R"(key 1
expect " wood "
key Enter
at golf7 50 Space
expect "shot went"
expect " 1"
)";

inline const std::string kPrompt =
    " Select Your Club.              1 to 9 For Irons, 1 to 4 For woods, or PW For Pitching Wedge.";

// The state of a program that has started, with course c loaded and the
// start-up sound in the ambient buffer as the entry leaves it.
inline void freshRound(int c) {
    roundtest::freshGame();
    platform::attempt([] { sound::bk.ab = sound::loadbuffer("golf0", 0); });
    play::rs.c = c;
    play::loadcourse();
}

// Lines matching what between the lines from and to.
inline int countBetween(const simtest::Result& r, const std::string& what, int from, int to) {
    int n = 0;
    for (int i = r.find(what, from); i >= 0 && i < to; i = r.find(what, i + 1)) ++n;
    return n;
}

// The first line at or after from that is a spoken text (say or say2).
inline int nextSpoken(const simtest::Result& r, int from) {
    int a = r.find("say ", from), b = r.find("say2 ", from);
    if (a < 0) return b;
    if (b < 0) return a;
    return a < b ? a : b;
}

// The next Up or Down key at or after line from.
inline int nextArrow(const simtest::Result& r, int from) {
    int up = r.find("key 38", from), down = r.find("key 40", from);
    if (up < 0) return down;
    if (down < 0) return up;
    return up < down ? up : down;
}

// A transcript line without its time; empty for no line.
inline std::string body(const simtest::Result& r, int at) {
    if (at < 0) return "";
    const std::string& l = r.lines[size_t(at)];
    return l.substr(l.find(' ') + 1);
}

// The first spoken line after line at, without its time.
inline std::string spokenAfter(const simtest::Result& r, int at) { return body(r, nextSpoken(r, at + 1)); }

// The voice is stopped after the key at line key, before anything more is
// spoken or another key comes.
inline bool hushedAfter(const simtest::Result& r, int key) {
    int hush = r.find("hush", key + 1);
    if (key < 0 || hush < 0) return false;
    int said = nextSpoken(r, key + 1), next = r.find("key ", key + 1);
    return (said < 0 || hush < said) && (next < 0 || hush < next);
}

}  // namespace inplay
