// What a player hears on the green, on the simulated platform in this
// process: the arrival report, putts that miss and putts that drop, the
// forced hole-out, and a ball holed straight from the approach.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/putting.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"

using simtest::runInProcess;

namespace {

const std::string kPrompt =
    "say2 \" Press any key when you are ready to putt, press the space bar to putt. \"";

std::string onGreen(const std::string& n) { return "say2 \" You are on the green " + n + " from the pin. \""; }

void freshGreen() { roundtest::freshGame(); }

// A shot that has just reached the green, feet from the pin, as the landing
// leaves it: a first arrival, the stroke not yet counted.
void arrive(double feet, int stkBefore, int yds) {
    freshGreen();
    play::rs.par = 4;
    play::rs.stk = stkBefore;
    play::rs.yds = yds;
    play::rs.lie = 1;
    play::rs.pw = 0.5;
    play::rs.firstapp = 1;
    play::rs.remain = feet;
}

// The green step on a ball arrive() left, with more settings by tweak; the
// platform exists only inside the run.
simtest::Result onTheGreen(const std::string& script, double feet, int stkBefore, int yds,
                           const std::function<void()>& tweak = [] {}) {
    return runInProcess(script, [&] {
        arrive(feet, stkBefore, yds);
        tweak();
        play::greenstep();
    });
}

// One putt: the key that starts it, and the indicator caught at percent.
std::string putt(const std::string& key, int percent) {
    return "expect \"ready to putt\"\nkey " + key + "\nat golf6 " + std::to_string(percent) + " Space\n";
}

int countBetween(const simtest::Result& r, const std::string& what, int from, int to) {
    int n = 0;
    for (int i = r.find(what, from); i >= 0 && i < to; i = r.find(what, i + 1)) ++n;
    return n;
}

// The clapping sounds heard from line from up to line to.
int claps(const simtest::Result& r, int from, int to) {
    return countBetween(r, "play golf11 ", from, to) + countBetween(r, "play golf12 ", from, to) +
           countBetween(r, "play golf13 ", from, to);
}

TEST(PuttingGreen, TheWorkedGreenAMissThenADrop) {
    auto r = onTheGreen(putt("Space", 25) + "expect \"putt went\"\n" + putt("Space", 12) + "end\n", 30, 0, 150);
    ASSERT_EQ(r.code, 0) << r.dump();

    // The arrival: the shot's length, the distance, the prompt, in order.
    int shot = r.find("say2 \" shot went  150 yards\"");
    int dist = r.find(onGreen("30 feet"));
    int prompt = r.find(kPrompt);
    ASSERT_GE(shot, 0) << r.dump();
    EXPECT_GT(dist, shot);
    EXPECT_GT(prompt, dist);

    // The first putt: three ticks, the indicator, the stroke, the groan and
    // how far it went; then the distance and the prompt again.
    int first = r.find("play golf6 ", prompt);
    ASSERT_GT(first, prompt) << r.dump();
    EXPECT_EQ(countBetween(r, "play golf16 ", prompt, first), 3);
    int stroke = r.find("play golf17 ", first);
    int groan = r.find("play golf9 ", stroke);
    int went = r.find("say2 \" putt went  20 feet \"", groan);
    ASSERT_GT(stroke, first) << r.dump();
    ASSERT_GT(groan, stroke) << r.dump();
    ASSERT_GT(went, groan) << r.dump();
    int next = r.find("say", went + 1);
    EXPECT_EQ(next, r.find(onGreen("10 feet"), went)) << r.dump();
    EXPECT_EQ(r.find("say", next + 1), r.find(kPrompt, went)) << r.dump();
    EXPECT_EQ(r.count("shot went"), 1) << "the shot's length only at the arrival";

    // The second putt drops: no groan, nothing more said.
    int second = r.find("play golf6 ", went);
    ASSERT_GT(second, went) << r.dump();
    EXPECT_GT(r.find("play golf17 ", second), second);
    EXPECT_EQ(r.find("play golf9 ", second), -1);
    EXPECT_EQ(r.find("say", second), -1) << r.dump();

    EXPECT_EQ(play::rs.hitpow, 12);
    EXPECT_DOUBLE_EQ(play::rs.puttpow, 12 / 5.0);
    EXPECT_EQ(play::rs.remain, 0);
    EXPECT_EQ(play::rs.putts, 2);
    EXPECT_EQ(play::rs.stk, 3) << "the approach and two putts";
    EXPECT_EQ(play::rs.onputt, 1) << "the driver clears it when the ball is holed";
    EXPECT_EQ(play::rs.f1state, 3);
    EXPECT_EQ(play::rs.greensaid, 1);
    EXPECT_EQ(play::rs.firstapp, 0);
    EXPECT_EQ(play::rs.pw, 0);
}

TEST(PuttingGreen, TheArrowsStartAPuttAndTwoFeetIsToo) {
    // From 3 feet a reading of 6 runs 4.8 feet, 1.8 past: out, at rest at 2.
    // From there a reading of 1 leaves it 1.2 short: in.
    auto r = onTheGreen(putt("Up", 6) + "expect \"putt went\"\n" + putt("Down", 1) + "end\n", 3, 1, 90);
    ASSERT_EQ(r.code, 0) << r.dump();
    int up = r.find("key 38");
    ASSERT_GE(up, 0) << r.dump();
    EXPECT_GT(r.find("play golf6 ", up), up) << "the arrow started the countdown";
    int went = r.find("say2 \" putt went  5 feet \"");
    ASSERT_GE(went, 0) << r.dump();
    EXPECT_EQ(r.find("say", went + 1), r.find(onGreen("Too feet"))) << r.dump();
    int down = r.find("key 40", went);
    ASSERT_GT(down, went) << r.dump();
    EXPECT_GT(r.find("play golf6 ", down), down);
    EXPECT_EQ(r.count("putt went"), 1);
    // The first arrival, 3 feet out, is clapped; the miss to 2 feet is not.
    EXPECT_GE(claps(r, 0, up), 1) << r.dump();
    EXPECT_EQ(claps(r, went, int(r.lines.size())), 0) << r.dump();
    EXPECT_EQ(play::rs.remain, 0);
    EXPECT_EQ(play::rs.stk, 4);
    EXPECT_EQ(play::rs.putts, 2);
}

TEST(PuttingGreen, TheFifthStrokeDropsAtAnyPowerWashedOrNot) {
    for (int dirty = 0; dirty <= 1; ++dirty) {
        SCOPED_TRACE(dirty);
        // The approach is the third stroke; the first putt, the fourth, is
        // played out; the second, the fifth, drops from 19 feet at the
        // weakest reading.
        auto r = onTheGreen(putt("Space", 1) + "expect \"putt went\"\n" + putt("Space", 2) + "end\n", 20, 2,
                            140, [dirty] { play::rs.dirty = dirty; });
        ASSERT_EQ(r.code, 0) << r.dump();
        int went = r.find("say2 \" putt went  1 foot \"");
        ASSERT_GE(went, 0) << r.dump();
        EXPECT_EQ(r.find("say", went + 1), r.find(onGreen("19 feet"))) << r.dump();
        EXPECT_EQ(r.count("putt went"), 1) << "nothing tells of the forced drop";
        EXPECT_EQ(r.count("play golf9 "), 1);
        EXPECT_EQ(r.count("play golf6 "), 2) << r.dump();
        EXPECT_EQ(play::rs.hitpow, 2);
        EXPECT_DOUBLE_EQ(play::rs.puttpow, 0.4);
        EXPECT_DOUBLE_EQ(play::rs.puttfeet, 0.8) << "the forced putt reckons no distance";
        EXPECT_EQ(play::rs.remain, 0);
        EXPECT_EQ(play::rs.stk, 5);
        EXPECT_EQ(play::rs.putts, 2);
    }
}

TEST(PuttingGreen, TheArrivalIsClappedForAFullSwingFromTheFairwayOrACloseBall) {
    struct Case {
        double feet;
        int lie;
        double pw;
        bool clapped;
    } cases[] = {
        {30, 1, 0.5, false}, {30, 1, 0.98, true}, {30, 5, 0.98, false}, {30, 1, 0.97, false},
        {9, 1, 0.5, true},   {10, 1, 0.5, false}, {9, 5, 0.5, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.feet) + " feet, lie " + std::to_string(c.lie) + ", pw " +
                     std::to_string(c.pw));
        auto r = onTheGreen("expect \"ready to putt\"\n", c.feet, 1, 100, [c] {
            play::rs.lie = c.lie;
            play::rs.pw = c.pw;
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        int n = claps(r, 0, r.find(kPrompt));
        if (c.clapped)
            EXPECT_GE(n, 1) << r.dump();
        else
            EXPECT_EQ(n, 0) << r.dump();
    }
}

TEST(PuttingGreen, ABallHoledFromTheApproachHearsNothingHere) {
    for (double feet : {0.0, 1.0}) {
        SCOPED_TRACE(feet);
        auto r = onTheGreen("end\n", feet, 2, 160);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(r.count("say"), 0) << r.dump();
        EXPECT_EQ(play::rs.remain, 0);
        EXPECT_EQ(play::rs.stk, 3) << "the approach counts one stroke";
        EXPECT_EQ(play::rs.greensaid, 0) << "the verdict takes its off-the-green form";
        EXPECT_EQ(play::rs.onputt, 0);
    }
}

TEST(PuttingGreen, ALongApproachIsSpokenAsFortyFeet) {
    for (double feet : {41.0, 59.0}) {
        SCOPED_TRACE(feet);
        auto r = onTheGreen("expect \"ready to putt\"\n", feet, 1, 120, [] {
            play::rs.wedge = 1;
            play::rs.nopause = 1;
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(r.count(onGreen("40 feet")), 1) << r.dump();
        EXPECT_EQ(play::rs.remain, 40);
        EXPECT_EQ(play::rs.stk, 2);
        EXPECT_EQ(play::rs.onputt, 1);
        EXPECT_EQ(play::rs.wedge + play::rs.nopause, 0) << "out of the trap, the wedge pause is dropped";
    }
}

TEST(PuttingGreen, TheRepliesOnTheGreen) {
    auto r = runInProcess("end\n", [] {
        freshGreen();
        play::rs.remain = 1;
        play::sayongreen();
        play::sayputtprompt();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(r.find(onGreen("1 foot")), r.find("say2")) << r.dump();
    EXPECT_EQ(r.count(kPrompt), 1);
    EXPECT_EQ(play::rs.greensaid, 1);
}

}  // namespace
