// The rolls of the lies: the escape from the sand and its power cut, the
// wood from the rough or the trees, and the greenside pick.
#include <gtest/gtest.h>

#include "round/lies.h"

using namespace play;

namespace {

const double top = 1 - 1e-9;

TEST(LiesRolls, SandEscapeFailsThirteenOrFourteenTimesInAHundredAndFifty) {
    // Washed: stuck below u = 13/150; dirty: below 14/150.
    EXPECT_LT(escaperoll(12.99 / 150, 0, 3), escapeNeeded);
    EXPECT_GE(escaperoll(13.001 / 150, 0, 3), escapeNeeded);
    EXPECT_LT(escaperoll(13.99 / 150, 1, 3), escapeNeeded);
    EXPECT_GE(escaperoll(14.001 / 150, 1, 3), escapeNeeded);
    EXPECT_DOUBLE_EQ(escaperoll(top, 0, 3), 150 * top);
    // The unused fourth selector rolls out of a hundred.
    EXPECT_LT(escaperoll(14.001 / 150, 1, 4), escapeNeeded);
    EXPECT_LT(escaperoll(13.99 / 100, 1, 4), escapeNeeded);
    EXPECT_GE(escaperoll(14.001 / 100, 1, 4), escapeNeeded);
}

TEST(LiesRolls, SandPowerIsCutToThirtyToFortyNinePerCent) {
    // The share is floor(u x 20) + 30.
    EXPECT_DOUBLE_EQ(sandpower(1.00, top), 0.49);
    EXPECT_DOUBLE_EQ(sandpower(1.00, 0), 0.30);
    EXPECT_DOUBLE_EQ(sandpower(1.00, 0.5), 0.40);
    // Floored to hundredths: 0.58 x 0.30 = 0.174, 0.58 x 0.49 = 0.2842.
    EXPECT_DOUBLE_EQ(sandpower(0.58, 0), 0.17);
    EXPECT_DOUBLE_EQ(sandpower(0.58, top), 0.28);
    // The least swing is floored to 0 and raised again to 0.02.
    EXPECT_DOUBLE_EQ(sandpower(0.02, 0), 0.02);
    EXPECT_DOUBLE_EQ(sandpower(0.06, 0), 0.02);
    EXPECT_DOUBLE_EQ(sandpower(0.08, 0.5), 0.03);
}

TEST(LiesRolls, RoughAndTreesNeedEighteenOutOfFifty) {
    EXPECT_EQ(roughroll(0.3601, 0), roughNeeded);
    EXPECT_LT(roughroll(0.3599, 0), roughNeeded);
    // A dirty ball takes one off the roll.
    EXPECT_EQ(roughroll(0.3801, 1), roughNeeded);
    EXPECT_LT(roughroll(0.3799, 1), roughNeeded);
    EXPECT_EQ(roughroll(top, 0), 49);
    EXPECT_EQ(roughroll(0, 1), -1);
}

TEST(LiesRolls, GreensidePickTheTrapTheLakeOrTheTrapAgain) {
    EXPECT_EQ(greensidepick(0, 1, 0), 1);
    EXPECT_EQ(greensidepick(0.3333, 1, 0), 1);
    EXPECT_EQ(greensidepick(0.3334, 1, 0), 2);
    EXPECT_EQ(greensidepick(0.6666, 1, 0), 2);
    EXPECT_EQ(greensidepick(0.6667, 1, 0), 3);
    EXPECT_EQ(greensidepick(top, 1, 0), 3);
    // No pond beside the green, or a ball that was in the trap already.
    EXPECT_EQ(greensidepick(0.5, 2, 0), 1);
    EXPECT_EQ(greensidepick(0.5, 1, 1), 1);
}

}  // namespace
