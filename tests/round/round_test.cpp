// The round driver: the hole's description and a round walked from the
// first tee to the end, on the simulated platform in this process.
#include <gtest/gtest.h>

#include <string>

#include "course/course.h"
#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/holeout.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"

using simtest::runInProcess;

namespace {

void freshGame(int c) {
    roundtest::freshGame();
    play::rs.c = c;
}

// The first tee of course c, to the end of starthole.
simtest::Result firstTee(int c) {
    return runInProcess(roundtest::pickKeys(c) + "expect \"next to the green\"\nend\n", [c] {
        freshGame(c);
        play::newround();
        play::starthole();
    });
}

TEST(RoundDescription, FirstHoleOfEveryBuiltInCourseWordForWord) {
    const char* sides[] = {
        nullptr,
        "501 yards. par  5. on your left is  Deep Rough. on your right is  Trees.",
        "412 yards. par  4. on your left is  A-Big Lake. on your right is  A-Big Lake.",
        "628 yards. par  5. on your left is  Trees. on your right is  Trees.",
        "374 yards. par  3. on your left is  Deep Rough. on your right is  A-Big Lake.",
        "80 yards. par  3. on your left is  A-motel. on your right is  A-club-house.",
        "201 yards. par  3. on your left is  A-club-house. on your right is  A-Pro-shop.",
    };
    for (int c = 1; c <= 6; ++c) {
        SCOPED_TRACE(c);
        auto r = firstTee(c);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(r.count(std::string("say2 \" Jo  You are at hole number  1. distance  ") + sides[c] +
                          " next to the green is A-pond and A-sand trap. \""),
                  1)
            << r.dump();
        EXPECT_EQ(play::rs.total, course::cs.H[1][1]) << "the first par is in total";
        EXPECT_EQ(play::rs.togo, play::rs.holelen);
        EXPECT_EQ(play::rs.savestate, 1);
    }
    // A hole whose flag is 2 has no pond beside the green.
    course::cs.HF[1] = 2;
    EXPECT_TRUE(play::holetext().ends_with("A-Pro-shop. next to the green is A-sand trap. "));
    course::cs.HF[1] = 1;
}

TEST(RoundDescription, WaterIsHeardOnTheSideOfTheLake) {
    // Course 2 has the lake on both sides of its first hole, course 4 on the
    // right, course 1 none; the left loop starts first.
    auto both = firstTee(2), right = firstTee(4), none = firstTee(1);
    int left = both.find("play golf31");
    EXPECT_NE(both.lines[size_t(left)].find("pan=-800 loop"), std::string::npos) << both.dump();
    EXPECT_NE(both.lines[size_t(both.find("play golf31", left + 1))].find("pan=800 loop"), std::string::npos);
    EXPECT_EQ(right.count("play golf31"), 1);
    EXPECT_TRUE(right.has("pan=800 loop"));
    EXPECT_EQ(none.count("play golf31"), 0);
}

// Every hole played in par by a shot that drops the ball, as the green step
// takes a ball at 0; the rest of the hole is the driver's own.
TEST(RoundWalk, CourseOneFromTheFirstTeeToTheEnd) {
    std::string script = roundtest::pickKeys(1);
    for (int h = 1; h <= 18; ++h)
        script += "expect \"hole number  " + std::to_string(h) + ".\"\nexpect \"press any key\"\nkey Space\n";
    script += "expect \"press any key\"\nkey F1\nexpect \"press any key\"\nkey Space\nend\n";
    int totals[19] = {}, parsum = 0;
    auto r = runInProcess(script, [&] {
        freshGame(1);
        play::newround();
        while (play::rs.hole != 19) {
            play::starthole();
            totals[play::rs.hole] = play::rs.total;
            play::rs.lie = 1;
            play::rs.stk = play::rs.par - 1;
            play::rs.remain = 0;
            play::greenstep();
            play::sinkball();
            play::endhole();
        }
        play::endround();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    for (int h = 1; h <= 18; ++h) EXPECT_EQ(totals[h], parsum += course::cs.H[h][1]) << "hole " << h;
    EXPECT_EQ(play::rs.total, 72);
    EXPECT_EQ(play::rs.stks, 72);
    EXPECT_EQ(play::rs.PARS, 18);
    EXPECT_EQ(play::rs.hole, 19);
    EXPECT_EQ(play::rs.stk, 0);
    // One key at each hole's end; at the round's end F1 asks again.
    EXPECT_EQ(r.count("say2 \" press any key to continue \""), 20);
}

TEST(RoundWalk, NewRoundClearsTheFiguresButTheWashedBallStaysClean) {
    auto r = runInProcess(roundtest::pickKeys(1) + "expect \"next to the green\"\nwait 1\n", [] {
        freshGame(1);
        play::rs.washed = 1, play::rs.hole = 7, play::rs.stks = 30, play::rs.total = 28;
        play::rs.PARS = 4, play::rs.HOLEINONE = 1, play::rs.stk = 3, play::rs.hookset = 0;
        play::playround();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("hole number  1."));
    EXPECT_EQ(play::rs.stks + play::rs.PARS + play::rs.HOLEINONE + play::rs.stk, 0);
    EXPECT_EQ(play::rs.total, 5);
    EXPECT_EQ(play::rs.dirty, 0);
    EXPECT_EQ(play::rs.hookset, 3);
}

}  // namespace
