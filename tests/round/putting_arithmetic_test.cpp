// The arithmetic of the green: where a stroke leaves the ball, how it comes
// to rest, how distances are spoken, and when a putt drops whatever its power.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "round/putting.h"
#include "round/state.h"

using play::atrest;
using play::nearfeet;

namespace {

TEST(PuttingArithmetic, ABallComesToRestInWholeFeet) {
    const double rows[][2] = {
        {0, 0},      {1, 0},       {1.4, 0},   {-1.4, 0},  // within 1.4 feet either side: in
        {1.5, 1},    {-1.5, 2},    {2, 2},     {-1, 0},    // a stroke short of 1.5 stays out
        {10.5, 10},  {10.6, 11},   {-10.5, 11}, {-10.7, 11}, {-10.4, 10},
        {-1.8, 2},   {-39, 39},    {40, 40},   {41, 40},   {59, 40},
        {-45, 40},   {0.4, 0},     {15, 15},
    };
    for (const auto& r : rows) EXPECT_EQ(atrest(r[0]), r[1]) << "from " << r[0];
}

// Every putt of every strength from every whole distance, against the same
// rules worked in whole tenths of a foot, where nothing is lost to rounding:
// a reading travels 8 tenths per point.
TEST(PuttingArithmetic, EveryPuttFromEveryDistanceRestsAsInTenths) {
    for (int from = 1; from <= 40; ++from) {
        for (int hitpow = 1; hitpow <= 50; ++hitpow) {
            long tenths = from * 10L - hitpow * 8L;
            long expect;
            if (tenths < -400 || tenths > 400) tenths = 400;
            if (std::labs(tenths) <= 14) {
                expect = 0;
            } else {
                long up = tenths + 4;   // floor of up / 10, also below zero
                long fl = up >= 0 ? up / 10 : -((-up + 9) / 10);
                expect = std::labs(fl);
            }
            double puttfeet = hitpow / 5.0 * 4;
            ASSERT_EQ(atrest(from - puttfeet), double(expect)) << from << " feet, reading " << hitpow;
        }
    }
}

TEST(PuttingArithmetic, TheWorkedGreen) {
    // 30 feet out, a reading of 25: the putt goes 20 feet and the ball
    // rests 10 out; then a reading of 12 goes 9.6 feet and drops.
    double puttpow = 25 / 5.0;
    double puttfeet = puttpow * 4;
    EXPECT_DOUBLE_EQ(puttfeet, 20);
    EXPECT_EQ(atrest(30 - puttfeet), 10);
    EXPECT_DOUBLE_EQ(puttpow / 4, 1.25) << "the pause after the first putt";
    EXPECT_EQ(play::puttwent(puttfeet), " putt went  20 feet ");
    double second = 12 / 5.0 * 4;
    EXPECT_NEAR(10 - second, 0.4, 1e-12);
    EXPECT_EQ(atrest(10 - second), 0);
}

TEST(PuttingArithmetic, HowFarAPuttWentIsSpokenToTheNearestFoot) {
    EXPECT_EQ(nearfeet(9.6), 10);
    EXPECT_EQ(nearfeet(9.5), 10);
    EXPECT_EQ(nearfeet(9.49), 9);
    EXPECT_EQ(nearfeet(39.2), 39);
    EXPECT_EQ(nearfeet(0.8), 1);
    EXPECT_EQ(nearfeet(1.6), 2);
    EXPECT_EQ(nearfeet(20), 20);
    EXPECT_EQ(play::puttwent(0.8), " putt went  1 foot ");
    EXPECT_EQ(play::puttwent(1.6), " putt went  2 feet ");
    EXPECT_EQ(play::puttwent(39.2), " putt went  39 feet ");
}

TEST(PuttingArithmetic, TheDistanceOnTheGreenSaysTooForTwoAndFootForOne) {
    EXPECT_EQ(play::ongreen(2), " You are on the green Too feet from the pin. ");
    EXPECT_EQ(play::ongreen(1), " You are on the green 1 foot from the pin. ");
    EXPECT_EQ(play::ongreen(3), " You are on the green 3 feet from the pin. ");
    EXPECT_EQ(play::ongreen(40), " You are on the green 40 feet from the pin. ");
}

TEST(PuttingArithmetic, APuttDropsFromTheFifthStrokeWashedOrNot) {
    for (int dirty = 0; dirty <= 1; ++dirty) {
        SCOPED_TRACE(dirty);
        play::rs = play::RoundState{};
        play::rs.dirty = dirty;
        for (int stk = 0; stk <= 3; ++stk) {
            play::rs.stk = stk;
            for (int putts = 0; putts <= 3; ++putts) {
                play::rs.putts = putts;
                EXPECT_FALSE(play::forcedin()) << "stroke " << stk + 1 << " after " << putts << " putts";
            }
        }
        for (int stk = 4; stk <= 12; ++stk) {
            play::rs.stk = stk;
            play::rs.putts = 1;
            EXPECT_TRUE(play::forcedin()) << "stroke " << stk + 1;
        }
        // More than six putts drop by themselves too.
        play::rs.stk = 0;
        play::rs.putts = 7;
        EXPECT_TRUE(play::forcedin());
        play::rs.putts = 6;
        EXPECT_FALSE(play::forcedin());
    }
}

}  // namespace
