// The ball washer and what a washed ball does to the rounds behind it, on
// the simulated platform in this process.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "input/keys.h"
#include "platform/rnd.h"
#include "practice/practice.h"
#include "round/driver.h"
#include "round/state.h"
#include "round/inplay_support.h"
#include "round/session.h"
#include "session/savedgame.h"
#include "sim_harness.h"
#include "sound/bank.h"
#include "practice/practice_support.h"

using simtest::runInProcess;

namespace {

TEST(BallWasher, TheWasherRunsOverAQuietCrowdUntilAKey) {
    bool returned = false;
    auto r = runInProcess("wait 3\nkey Space\nend\n", [&] {
        roundtest::freshGame();
        sound::bk.wavol = -300;
        sound::bk.cowtog = 1;   // the crowd is heard here all the same
        input::ks.g = "32";     // pressed before the washing: dropped
        input::ks.g2 = " ";
        practice::ballwasher();
        returned = true;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(returned);
    const int key = r.find("key 32");
    const int made = r.find("setvol golf31 #");   // the last buffer the fresh program made
    ASSERT_GE(key, 0) << r.dump();
    ASSERT_GE(made, 0) << r.dump();
    for (int at : r.sequence({"setvol golf10 #", "play golf10 ", "play golf30 "}, made))
        EXPECT_TRUE(at > made && at < key) << r.dump();
    EXPECT_TRUE(r.lines[size_t(r.find("setvol golf10 #", made))].ends_with(" -500"));
    EXPECT_TRUE(r.has("vol=-500 pan=0 loop")) << "the crowd loops 200 below the effects";
    int washer = r.find("play golf30 ");
    EXPECT_TRUE(r.lines[size_t(washer)].ends_with("vol=-300 pan=0 loop")) << r.dump();
    // Nothing ends before the key; after it both stop, the washer's buffer
    // goes, and the crowd is left level with the effects.
    for (int at : r.sequence({"stop golf30 ", "release golf30 ", "stop golf10 ", "setvol golf10 #"}, key))
        EXPECT_GT(at, key) << r.dump();
    EXPECT_TRUE(r.lines[size_t(r.find("setvol golf10 #", key))].ends_with(" -300"));
    EXPECT_EQ(r.count("say"), 0) << "nothing is spoken";
    EXPECT_EQ(sound::bk.sb, 0);
}

TEST(BallWasher, AtTheLowestVolumeTheCrowdStillComesOnAndGoesOff) {
    // 200 below -5000 is a volume the device refuses: the crowd plays at
    // the one it had.
    auto r = runInProcess("wait 1\nkey Space\nend\n", [&] {
        roundtest::freshGame();
        sound::bk.wavol = -5000;
        practice::ballwasher();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    const int key = r.find("key 32");
    for (int at : r.sequence({"play golf10 ", "play golf30 "}, r.find("setvol golf31 #")))
        EXPECT_TRUE(at >= 0 && at < key) << r.dump();
    for (int at : r.sequence({"stop golf30 ", "stop golf10 "}, key)) EXPECT_GT(at, key) << r.dump();
}

// The length of a 1 wood at full power off the first tee of a round begun
// with the ball washed or not, the generator seeded with seed. A resumed
// round takes up a game saved at the first tee with the other ball.
int drive(int washed, std::uint64_t seed, bool resumed) {
    int yds = -1, dirty = -1, wasresumed = -1;
    std::string docs = simtest::tempDir();
    // A new round picks the first course; a resumed one has its course.
    std::string pick = resumed ? "" : roundtest::pickKeys(1);
    auto r = runInProcess(pick + "expect \"Select Your Club\"\n" + inplay::kDrive, [&] {
        inplay::freshRound(1);
        play::rs.dirty = washed;   // the other ball, as a saved game might hold it
        if (resumed) {
            play::rs.total = 5;    // the par of the first hole
            platform::os().makeDir(play::kp());
            platform::os().writeFile(session::savepath(), session::savedform());
        }
        play::rs.washed = washed;
        platform::reseed(seed);
        try {
            play::playround();
        } catch (...) {
            yds = play::rs.yds, dirty = play::rs.dirty, wasresumed = play::rs.resumed;
            throw;
        }
    }, docs);
    std::filesystem::remove_all(docs);
    EXPECT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(dirty, 1 - washed);
    EXPECT_EQ(wasresumed, resumed ? 1 : 0);
    return yds;
}

TEST(BallWasher, AWashedBallGoesFurtherInTheRoundsBehindItResumedOrNot) {
    for (bool resumed : {false, true}) {
        SCOPED_TRACE(resumed);
        int shortest[2] = {1000, 1000}, longest[2] = {0, 0};
        for (std::uint64_t seed = 1; seed <= 40; ++seed) {
            for (int washed : {0, 1}) {
                int yds = drive(washed, seed, resumed);
                shortest[washed] = std::min(shortest[washed], yds);
                longest[washed] = std::max(longest[washed], yds);
            }
        }
        EXPECT_GE(shortest[1], 291);
        EXPECT_LE(longest[1], 311);
        EXPECT_GT(longest[1], 308) << "beyond what a dirty ball can reach";
        EXPECT_GE(shortest[0], 288);
        EXPECT_LE(longest[0], 308);
        EXPECT_LT(shortest[0], 291) << "short of what a washed ball can reach";
    }
}

}  // namespace
