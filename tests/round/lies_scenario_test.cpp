// Lies and penalties as the player hears them, on course 1 in this process:
// a ball into the pond and its replay, a shot dumped in the trap, a wood in
// the trap and a driver off the deck chosen by keys; then the dispatch of
// every lie and club, and the penalty for a ball out of bounds.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

#include "course/course.h"
#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/club.h"
#include "round/driver.h"
#include "round/flight.h"
#include "round/fresh_game.h"
#include "round/lies.h"
#include "round/power.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"

using namespace play;
using simtest::runInProcess;

namespace {

// Course 1 loaded and hole h begun, as the driver leaves it at the tee.
void teeOf(int h) {
    roundtest::freshGame();
    sound::bk.ab = sound::loadbuffer("golf0", 0);   // as start-up leaves it
    rs.c = 1;
    loadcourse();
    rs.hole = h;
    starthole();
    rs.lie = 1;
}

// The ball at rest in the greenside trap of the hole, as a landing left it.
void inTheTrap() {
    rs.lie = 5, rs.trapped = 1, rs.nopause = 1, rs.stk = 1;
    rs.lasttogo = rs.holelen, rs.togo = 20, rs.remain = 20, rs.offl = 3.2, rs.yds = rs.holelen - 20;
}

// A seed from which the draws the routine makes start with what pred wants.
std::uint64_t seedWhere(const std::function<bool()>& pred) {
    for (std::uint64_t s = 1;; ++s) {
        platform::reseed(s);
        if (pred()) return s;
    }
}

// The club prompt after a shot, with its closing blank, and the pointer.
const std::string prompt =
    "say2 \" Select Your Club.              1 to 9 For Irons, 1 to 4 For woods, or PW For Pitching Wedge. \"";

// The next line spoken after line from.
int nextSaid(const simtest::Result& r, int from) { return r.find("say", from + 1); }

int claps(const simtest::Result& r) {
    return r.count("play golf11 ") + r.count("play golf12 ") + r.count("play golf13 ");
}

// Hole 2 of course 1, par 3 with a pond, 165 yards: a full swing from the
// tee comes down 20-odd yards short, and the draw sends it into the water.
TEST(LiesScenario, BallIntoThePondCostsTwoAndIsReplayedFromTheTee) {
    std::uint64_t seed = seedWhere([] {
        platform::U();   // landball's draw for the yards off line
        return greensidepick(platform::U(), 1, 0) == 2;
    });
    int afterPond = -1, togoAfterPond = -1, afterReplay = -1;
    auto r = runInProcess(R"(expect "penalty stroke accessed"
expect "Select Your Club"
key 1
expect " wood "
key Enter
at golf7 10 Space
expect "Select Your Club"
end
)",
                          [&] {
                              teeOf(2);
                              rs.pw = 1.0, rs.yds = 145;
                              platform::reseed(seed);
                              landball();
                              afterPond = rs.stk, togoAfterPond = rs.togo;
                              pickclub();
                              swing();
                              shotdispatch();
                              afterReplay = rs.stk;
                          });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(afterPond, 2) << "the pond costs two strokes";
    EXPECT_EQ(togoAfterPond, 165) << "replayed from where the shot started";
    EXPECT_EQ(afterReplay, 3);
    // Splash, groan, the penalty sound, then the words, the report and the
    // prompt, in that order.
    auto at = r.sequence({"play golf5 ", "play golf9 ", "play golf23 ",
                          "say2 \" shot went  into A-pond,  penalty stroke accessed \"",
                          "say2 \" shot went  0 yards. it's  165 yards from the green and is  0 yards  off line in the "
                          " Fairway. \""});
    ASSERT_GE(at[3], 0) << r.dump();
    int text = at[3], report = at[4];
    ASSERT_EQ(nextSaid(r, text), report) << r.dump();
    EXPECT_EQ(r.find(prompt, report), nextSaid(r, report));
    EXPECT_EQ(r.find("say2 \" 1\"", report), nextSaid(r, nextSaid(r, report)));
    EXPECT_FALSE(r.has("out of bounds"));
    // A full swing into the pond earns no clapping.
    EXPECT_EQ(claps(r), 0) << r.dump();
    // The driver on the tee again is a clean swing: the strike, no reproach.
    int space = r.find("key 32", report);
    ASSERT_GT(space, report) << r.dump();
    EXPECT_GT(r.find("play golf1 ", space), space) << r.dump();
    EXPECT_FALSE(r.has("play golf3 "));
    EXPECT_FALSE(r.has("Where Did You Learn"));
    EXPECT_GT(r.find(" shot went ", space), space);
}

TEST(LiesScenario, SandShotDumpedStaysInTheTrapForOneStroke) {
    std::uint64_t seed = seedWhere([] { return platform::U() < 13.0 / 150; });
    auto r = runInProcess("end\n", [&] {
        teeOf(2);
        inTheTrap();
        rs.club = 20, rs.pw = 0.5;
        platform::reseed(seed);
        shotdispatch();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.stk, 2);
    EXPECT_EQ(rs.lie, 5);
    EXPECT_EQ(rs.togo, 20);
    EXPECT_EQ(rs.yds, 0);
    auto at = r.sequence({"play golf2 ", "play golf8 ", "say2 \" you dumped it, shot still in the trap \"",
                          "play golf9 ",
                          "say2 \" shot went  0 yards. it's  20 yards from the green and is  3 yards  off line in "
                          " A-Sand Trap. \""});
    ASSERT_GE(at[4], 0) << r.dump();
    int report = at[4];
    EXPECT_EQ(r.find(prompt), nextSaid(r, report));
    EXPECT_FALSE(r.has("play golf1 ")) << "no strike";
}

// A wood chosen by keys with the ball in the trap: the swing, the reproach
// and the ball still in the trap; everything sounding is then cut off and
// the crowd starts again before the report.
simtest::Result woodInTheTrap(const char* digit) {
    return runInProcess(std::string(R"(expect "Select Your Club"
key )") + digit + R"(
expect " wood "
key Enter
at golf7 50 Space
expect "Select Your Club"
end
)",
                        [] {
                            teeOf(2);
                            inTheTrap();
                            clubprompt();
                            pickclub();
                            swing();
                            shotdispatch();
                        });
}

TEST(LiesScenario, WoodInTheTrapByKeys) {
    for (const char* digit : {"1", "2"}) {
        SCOPED_TRACE(digit);
        auto r = woodInTheTrap(digit);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(rs.stk, 2);
        EXPECT_EQ(rs.lie, 5);
        EXPECT_EQ(rs.togo, 20);
        EXPECT_EQ(rs.misuse, 1);
        EXPECT_EQ(rs.misusestop, 0);
        int space = r.find("key 32");
        int swish = r.find("play golf3 ", space);
        std::string club = digit == std::string("1") ? " A-Driver " : " A-Wood ";
        int scold = r.find("say2 \" Where Did You Learn To Play Golf? You Don't Hit " + club + " In A-sand trap. \"");
        int dumped = r.find("say2 \" you dumped it, shot still in the trap \"", scold);
        int aww = r.find("play golf9 ", dumped);
        int cut = r.find("stop golf9 ", aww);
        int crowd = r.find("play golf10 ", cut);
        int report = r.find(
            "say2 \" shot went  0 yards. it's  20 yards from the green and is  3 yards  off line in  A-Sand Trap. \"");
        ASSERT_GT(swish, space) << r.dump();
        ASSERT_GT(scold, swish) << r.dump();
        ASSERT_GT(dumped, scold) << r.dump();
        ASSERT_GT(aww, dumped) << r.dump();
        ASSERT_GT(cut, aww) << r.dump();
        ASSERT_GT(crowd, cut) << r.dump();
        ASSERT_GT(report, crowd) << r.dump();
        EXPECT_EQ(r.find(prompt, report), nextSaid(r, report));
        EXPECT_EQ(r.find("play golf1 ", space), -1) << "no strike";
        EXPECT_FALSE(r.has("In The Fairway")) << "the trap is tested first";
    }
}

// The driver chosen by keys away from the tee, at full power: a swish, the
// reproach and a short mis-hit, and no clapping for the full swing.
TEST(LiesScenario, DriverOffTheDeckByKeys) {
    auto r = runInProcess(R"(expect "Select Your Club"
key 1
expect " wood "
key Enter
at golf7 50 Space
expect "Select Your Club"
end
)",
                          [] {
                              teeOf(1);
                              rs.togo = 300, rs.lasttogo = 501;
                              clubprompt();
                              pickclub();
                              swing();
                              shotdispatch();
                          });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.pw, 1.0);
    EXPECT_EQ(rs.stk, 1);
    EXPECT_LT(rs.yds, 35);
    EXPECT_EQ(rs.togo, int(rs.remain));
    EXPECT_EQ(rs.lasttogo, 300);
    EXPECT_EQ(rs.lie, 1);
    auto at = r.sequence({"key 32", "play golf3 ",
                          "say2 \" Where Did You Learn To Play Golf? You Don't Hit A-Driver In The Fairway \"",
                          "stop golf10 ", "play golf10 ",
                          "say2 \" shot went  " + std::to_string(rs.yds) + " yards. it's  " + std::to_string(rs.togo) +
                              " yards from the green"});
    ASSERT_GE(at[5], 0) << r.dump();
    int space = at[0], report = at[5];
    EXPECT_EQ(r.find(prompt, report), nextSaid(r, report));
    EXPECT_EQ(r.find("play golf1 ", space), -1) << "no strike";
    EXPECT_FALSE(r.has("play golf18 ")) << "no full-swing sound";
    EXPECT_EQ(claps(r), 0) << r.dump();
}

// ---- the dispatch, with club and lie set and the swing given

struct Shot {
    double club;
    int lie;
    int togo;             // 501 is the tee of hole 1
    double roll;          // the first draw, where the lie rolls
    const char* heard;    // the sound that tells the path, or ""
    const char* words;    // what is said before the report, or ""
    double clubAfter;     // the club value the flight used
};

TEST(LiesDispatch, EveryLieAndClub) {
    const Shot shots[] = {
        {4, 1, 300, 0.5, "play golf1 ", "", 4},           // a 4 wood from the fairway is clean
        {1, 1, 501, 0.5, "play golf1 ", "", 1},           // the driver at the tee
        {12.5, 2, 300, 0.5, "play golf1 ", "", 7.5},      // an iron plays the rough as the fairway
        {20, 3, 300, 0.5, "play golf1 ", "", 15},         // so does the wedge in the trees
        {13.5, 4, 300, 0.5, "play golf1 ", "", 8.5},
        {3, 2, 300, 0.5, "play golf1 ", "", 3},           // a wood out of the rough, good roll
        {3, 3, 300, 0.5, "play golf1 ", "", 3},
        {3, 2, 300, 0.3, "", " you dumped it, shot still in the trap ", 3},   // no sound of its own
        {3, 3, 300, 0.3, "play golf14 ", " you hit a tree, try again ", 3},
        {20, 5, 200, 0.5, "play golf2 ", "", 15},         // a sand shot that escapes
    };
    for (const Shot& s : shots) {
        SCOPED_TRACE(std::to_string(s.club) + " at lie " + std::to_string(s.lie));
        std::uint64_t seed = seedWhere([&] { return std::abs(platform::U() - s.roll) < 0.05; });
        double pwAfter = 0;
        auto r = runInProcess("end\n", [&] {
            teeOf(1);
            rs.club = s.club, rs.lie = s.lie, rs.togo = s.togo, rs.pw = 0.5;
            platform::reseed(seed);
            shotdispatch();
            pwAfter = rs.pw;
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        if (*s.heard) {
            EXPECT_TRUE(r.has(s.heard)) << r.dump();
        }
        EXPECT_EQ(rs.club, s.clubAfter);
        EXPECT_EQ(rs.stk, 1);
        EXPECT_FALSE(r.has("Where Did You Learn"));
        bool clean = std::string(s.heard) == "play golf1 ";
        EXPECT_EQ(r.has("play golf1 "), clean) << r.dump();
        if (*s.words) {
            // A mis-hit: a short shot whatever the swing.
            int words = r.find(std::string("say2 \"") + s.words + "\"");
            EXPECT_GE(words, 0) << r.dump();
            EXPECT_GT(r.find(" shot went ", words), words);
            EXPECT_LT(rs.yds, 35);
            EXPECT_FALSE(r.has("play golf9 ")) << "a mis-hit is no dumped shot";
        }
        if (s.lie == 5) {
            // Out of the sand at 0.5 x 30..49 per cent of the wedge's 98..118.
            EXPECT_GE(pwAfter, 0.15);
            EXPECT_LE(pwAfter, 0.24);
            EXPECT_LE(rs.yds, 118 * 0.24);
            EXPECT_GT(r.find("play golf8 "), r.find("play golf2 ")) << "the crowd after the sand";
        }
    }
}

// Out of the sand but wide of the fairway's margin, the ball keeps its lie.
TEST(LiesDispatch, SandShotWideOfTheMarginStaysInTheTrap) {
    std::uint64_t seed = seedWhere([] { return platform::U() > 0.5; });
    auto r = runInProcess("end\n", [&] {
        teeOf(1);
        inTheTrap();
        rs.togo = 200, rs.fairw = 0, rs.club = 20, rs.pw = 1.0;
        platform::reseed(seed);
        shotdispatch();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.lie, 5);
    EXPECT_EQ(rs.stk, 2);
    EXPECT_GT(rs.yds, 0);
    EXPECT_TRUE(r.has("off line in  A-Sand Trap. ")) << r.dump();
}

// The pond is only there for a first ball on a hole that has one.
TEST(LiesScenario, NoPondBesideTheGreenWithoutOneOrAfterTheTrap) {
    std::uint64_t seed = seedWhere([] { return greensidepick(platform::U(), 1, 0) == 2; });
    for (int which : {0, 1}) {
        SCOPED_TRACE(which == 0 ? "no pond" : "trapped");
        auto r = runInProcess("end\n", [&] {
            teeOf(2);
            if (which == 0) course::cs.HF[2] = 2;
            if (which == 1) rs.trapped = 1;
            rs.togo = 20, rs.remain = 20, rs.lasttogo = 150, rs.yds = 130;
            platform::reseed(seed);
            greenside();
        });
        course::cs.HF[2] = 1;
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(rs.lie, 5);
        EXPECT_EQ(rs.stk, 1);
        EXPECT_EQ(rs.trapped, 1);
        EXPECT_EQ(rs.nopause, 1);
        EXPECT_EQ(rs.togo, 20);
        EXPECT_FALSE(r.has("play golf5 "));
        EXPECT_TRUE(r.has("yards from the green and is  0 yards  off line in  A-Sand Trap. ")) << r.dump();
    }
}

// ---- the penalty sequence in aftershot

TEST(LiesPenalty, OutOfBoundsCostsThreeAndHasItsOwnWords) {
    for (int lie : {7, 9}) {
        SCOPED_TRACE(lie);
        auto r = runInProcess("end\n", [lie] {
            teeOf(1);
            rs.stk = 2, rs.lie = lie, rs.lasttogo = 240, rs.togo = 60, rs.remain = 60, rs.offl = 55;
            rs.yds = 180, rs.pw = 1.0;
            aftershot();
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(rs.stk, 5);
        EXPECT_EQ(rs.lie, 1);
        EXPECT_EQ(rs.togo, 240);
        EXPECT_EQ(rs.noclap, 1);
        EXPECT_EQ(rs.f1state, 2);
        // The "golf14" of out of bounds only for the lie of that name.
        int thud = r.find("play golf14 ");
        int aww = r.find("play golf9 ");
        EXPECT_EQ(thud >= 0, lie == 7) << r.dump();
        ASSERT_GT(aww, thud) << r.dump();
        int text = r.find("say2 \" shot went  out of bounds,  penalty stroke accessed \"", r.find("play golf23 ", aww));
        ASSERT_GT(text, aww) << r.dump();
        EXPECT_EQ(r.find("say2 \" shot went  0 yards. it's  240 yards from the green and is  0 yards  off line in the  "
                         "Fairway. \""),
                  nextSaid(r, text))
            << r.dump();
        EXPECT_EQ(claps(r), 0);
        EXPECT_FALSE(r.has("play golf5 "));
    }
}

TEST(LiesPenalty, AFullSwingToTheFairwayIsApplauded) {
    auto r = runInProcess("end\n", [] {
        teeOf(1);
        rs.lie = 1, rs.pw = 1.0, rs.yds = 300, rs.remain = 201, rs.togo = 201;
        aftershot();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_GT(claps(r), 0) << r.dump();
    int report = r.find("say2 \" shot went ");
    for (const char* clap : {"play golf11 ", "play golf12 ", "play golf13 "})
        if (r.has(clap)) {
            EXPECT_LT(r.find(clap), report);
        }
    EXPECT_EQ(rs.stk, 1);
}

}  // namespace
