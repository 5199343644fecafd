// Custom courses as the player hears them: the texts of a .gcx, its flag of
// 2 that takes the pond away, the word of id 160 elsewhere, and an id outside
// the vocabulary.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "course/catalogue.h"
#include "course/coursefiles.h"
#include "course/course.h"
#include "round/driver.h"
#include "round/inplay_support.h"
#include "round/session.h"
#include "round/state.h"

using play::rs;

namespace {

struct CustomCourse : ::testing::Test {
    std::string docs = simtest::tempDir();
    std::string kp = docs + "/brindlewick";
    void TearDown() override { std::filesystem::remove_all(docs); }
};

std::string moorCourse() {
    std::string bytes;
    for (int hole = 1; hole <= 18; ++hole) {
        coursefiles::Hole h;
        h.par = 3;
        h.yards = 150;
        h.left = hole == 1 ? 160 : 8;
        h.right = hole == 1 ? 52 : hole == 2 ? 500 : 160;
        h.lefttext = "the-old-mill";
        h.righttext = " A-windy-moor ";
        h.flag = hole == 1 ? 2 : 1;
        bytes += coursefiles::gcx(h);
    }
    return bytes;
}

TEST_F(CustomCourse, AGcxHoleSpeaksItsTextAndWithAFlagOfTwoNoPond) {
    coursefiles::put(kp + "/golfMoor.gcx", moorCourse());
    auto r = simtest::runInProcess(roundtest::pickKeys(7) + "expect \"next to the green\"\n", [&] {
        inplay::freshRound(1);
        rs.nocs = course::GetCors(kp);
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("say2 \" Jo  You are at hole number  1. distance  150 yards. par  3. on your left "
                      "is the-old-mill. on your right is  iris-beds. next to the green is A-sand trap. \""))
        << r.dump();
    EXPECT_FALSE(r.has("A-pond"));
}

TEST_F(CustomCourse, TheNextHolesTakeTheirNamesByTheRule) {
    coursefiles::put(kp + "/golfMoor.gcx", moorCourse());
    auto r = simtest::runInProcess("expect \"hole number  3\"\nend\n", [&] {
        inplay::freshRound(1);
        rs.nocs = course::GetCors(kp);
        rs.c = 7;
        play::loadcourse();
        for (rs.hole = 1; rs.hole <= 3; ++rs.hole) play::starthole();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    // Hole 2: id 500 lies outside the vocabulary, so the right keeps hole 1's name.
    EXPECT_TRUE(r.has("on your left is  A-barn. on your right is  iris-beds. next to the green is A-pond and ")) << r.dump();
    EXPECT_TRUE(r.has("hole number  3. distance  150 yards. par  3. on your left is  A-barn. on your right is  A-windy-moor."));
}

TEST_F(CustomCourse, IdOneSixtyIsTheCemeteryOnEveryOtherCourse) {
    coursefiles::put(kp + "/golfMoor.gcx", moorCourse());
    coursefiles::Hole h;
    h.right = 160;
    coursefiles::put(kp + "/golfPlain.gcf", coursefiles::course18(false, h));
    auto r = simtest::runInProcess("expect \"hole number  16\"\nend\n", [&] {
        inplay::freshRound(1);
        rs.nocs = course::GetCors(kp);
        rs.c = 7;   // the .gcx first
        play::loadcourse();
        rs.hole = 1;
        play::starthole();
        rs.c = 8;   // then the .gcf
        play::loadcourse();
        play::starthole();
        rs.c = 6;   // then the built-in course that uses the word
        play::loadcourse();
        rs.hole = 16;
        play::starthole();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(r.count("on your right is  A-cemetery."), 2) << r.dump();
    EXPECT_FALSE(r.has("A-windy-moor")) << "hole 1 of the .gcx has its text on the left only";
}

}  // namespace
