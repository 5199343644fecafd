// The practice areas as the main menu reaches them: the washer offered
// first until the ball is washed, the range and the green and back, and the
// washed ball in the rounds begun afterwards.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/platform.h"
#include "practice/practice_support.h"
#include "round/fresh_game.h"
#include "round/inplay_support.h"
#include "session/menu.h"
#include "sim_harness.h"
#include "sound/bank.h"

namespace {

const std::string kSelect = "say2 \" select \"";
const std::string kWasher = "say2 \" 2. use ball washer \"";
const std::string kCourse = "say2 \" 1. golf-course \"";

TEST(PracticeFromTheMenu, WasherThenRangeThenGreenEachBackToTheMenuWhichThenOffersTheCourse) {
    auto r = simtest::runBinary(simtest::kToTheMenu + std::string(R"(expect " 2. use ball washer "
key Enter
expect-sound golf30
key Space
expect " select "
expect " 1. golf-course "
key 3 Enter
expect "Driving-Range"
expect "Select Your Club"
expect " 1"
key Escape
expect " select "
expect " 1. golf-course "
key 4 Enter
expect "Puttting-Practice-Green"
expect "ready to putt"
key Escape
expect " select "
expect " 1. golf-course "
key Enter
expect " Please Pick A-Course To Play. "
key Enter
expect "You are at hole number  1."
)"));
    ASSERT_EQ(r.code, 0) << r.dump();
    // The first menu offers the washer; every one after the washing the course.
    int first = r.find(kSelect);
    EXPECT_EQ(r.find("say2", first + 1), r.find(kWasher)) << r.dump();
    int washed = r.find("play golf30 ");
    int menus = 0;
    for (int at = r.find(kSelect, washed); at >= 0; at = r.find(kSelect, at + 1), ++menus)
        EXPECT_EQ(r.find("say2", at + 1), r.find(kCourse, at)) << r.dump();
    EXPECT_EQ(menus, 3);
    EXPECT_EQ(r.count(kWasher), 1);
    // The range and the green were each entered once, from their entries.
    EXPECT_EQ(r.count("Driving-Range"), 1);
    EXPECT_EQ(r.count("Puttting-Practice-Green"), 1);
}

// The yards of a 1 wood at full power off the first tee of a round begun
// from the menu after the ball washer, the draws seeded with seed.
int driveAfterWashing(std::uint64_t seed) {
    auto r = simtest::runInProcess(R"(expect " 2. use ball washer "
key Enter
expect-sound golf30
key Space
seed )" + std::to_string(seed) + R"(
expect " 1. golf-course "
key Enter
expect " Please Pick A-Course To Play. "
key Enter
expect "Select Your Club"
)" + inplay::kDrive,
                                   [] {
                                       roundtest::freshGame();
                                       platform::attempt([] { sound::bk.ab = sound::loadbuffer("golf0", 0); });
                                       session::mainmenu();
                                   });
    EXPECT_EQ(r.code, 0) << r.dump();
    return practicetest::numberAfter(r, r.find("shot went"), "shot went ");
}

TEST(PracticeFromTheMenu, AfterTheWasherAFullDriverGoesAsFarAsAWashedBallGoes) {
    int shortest = 1000, longest = 0;
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        int yds = driveAfterWashing(seed);
        shortest = std::min(shortest, yds);
        longest = std::max(longest, yds);
    }
    EXPECT_GE(shortest, 291);
    EXPECT_LE(longest, 311);
    EXPECT_GT(longest, 308) << "beyond what a dirty ball can reach";
}

}  // namespace
