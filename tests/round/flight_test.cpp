// The figures of a full shot: distance by club, off line, the yards left,
// the landing zones and the report.
#include <gtest/gtest.h>

#include "course/locs.h"
#include "round/flight.h"
#include "round/state.h"

using namespace play;

namespace {

// A draw a hair under 1. (The very largest draws of a 53-bit generator lie
// so close to 1 that the sum in the formula may round up to the next yard.)
const double top = 1 - 1e-9;

TEST(FlightDistance, FullSwingTableForEveryClubWashedAndDirty) {
    struct Row {
        double club;
        int washedLow, washedHigh, dirtyLow, dirtyHigh;
    } rows[] = {
        {1, 291, 311, 288, 308},     {2, 277, 297, 275, 295},     {3, 263, 283, 261, 281},
        {4, 250, 269, 248, 267},     {5.5, 229, 249, 227, 247},   {6.5, 215, 235, 213, 233},
        {7.5, 201, 221, 200, 220},   {8.5, 188, 208, 186, 206},   {9.5, 174, 194, 173, 193},
        {10.5, 160, 180, 159, 179},  {11.5, 146, 166, 145, 165},  {12.5, 133, 153, 132, 152},
        {13.5, 119, 139, 118, 138},  {15, 98, 118, 98, 118},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.club);
        EXPECT_EQ(swingcarry(fullcarry(0, r.club, 0), 1.0), r.washedLow);
        EXPECT_EQ(swingcarry(fullcarry(0, r.club, top), 1.0), r.washedHigh);
        EXPECT_EQ(swingcarry(fullcarry(1, r.club, 0), 1.0), r.dirtyLow);
        EXPECT_EQ(swingcarry(fullcarry(1, r.club, top), 1.0), r.dirtyHigh);
    }
    // The smallest swing of the driver goes 5 or 6 yards.
    EXPECT_EQ(swingcarry(fullcarry(0, 1, 0), 0.02), 5);
    EXPECT_EQ(swingcarry(fullcarry(0, 1, top), 0.02), 6);
}

TEST(FlightZones, BoundariesOfTheFourZones) {
    EXPECT_EQ(zone(26), Zone::open);
    EXPECT_EQ(zone(25), Zone::greenside);
    EXPECT_EQ(zone(16), Zone::greenside);
    EXPECT_EQ(zone(15), Zone::green);
    EXPECT_EQ(zone(2), Zone::green);
    EXPECT_EQ(zone(1), Zone::hole);
    EXPECT_EQ(zone(0), Zone::hole);
}

TEST(FlightWorkedShot, DriverAtHalfPowerFromFourHundredYards) {
    int full = fullcarry(0, 1, 0.5);
    EXPECT_EQ(full, 301);
    int yds = swingcarry(full, 0.5);
    EXPECT_EQ(yds, 150);
    double offl = offline(yds, 0, 0.3);
    EXPECT_NEAR(offl, 3.864, 0.001);   // 8 x tan(0.45), about 3.87
    int remain = landing(offl, 400, yds);
    EXPECT_EQ(remain, 250);
    EXPECT_EQ(zone(remain), Zone::open);
    // fairw 60 at half power leaves a margin of 50 yards.
    EXPECT_TRUE(onfairway(offl, 60, 0, 0.5));
    EXPECT_TRUE(onfairway(49.99, 60, 0, 0.5));
    EXPECT_FALSE(onfairway(50, 60, 0, 0.5));
}

TEST(FlightLanding, OffLineAndTheWarningPastTheGreen) {
    EXPECT_NEAR(offline(311, 0, top), 36, 0.5);
    EXPECT_NEAR(offline(311, 1, top), 40, 0.5);
    EXPECT_EQ(offline(0, 1, 0.9), 0);
    // Landing on the line of the green leaves only the yards off line.
    EXPECT_EQ(landing(7.9, 200, 200), 7);
    EXPECT_FALSE(overthegreen(200, 200, 7));
    // Past the green 20 yards or more draws the warning, 19 does not.
    EXPECT_EQ(landing(0, 200, 220), 20);
    EXPECT_TRUE(overthegreen(200, 220, 20));
    EXPECT_FALSE(overthegreen(200, 219, 19));
    EXPECT_FALSE(overthegreen(240, 220, 20));
    // A dirty ball has 1.1 yards more of fairway.
    EXPECT_TRUE(onfairway(40.5, 60, 1, 1.0));
    EXPECT_FALSE(onfairway(40.5, 60, 0, 1.0));
}

TEST(FlightReport, WordsOfTheReport) {
    course::fillLocs();
    rs = RoundState{};
    rs.yds = 150, rs.remain = 250, rs.offl = 3.87, rs.lie = 1;
    EXPECT_EQ(shotreporttext(),
              " shot went  150 yards. it's  250 yards from the green and is  3 yards  off line in the  Fairway. ");
    // One yard is singular, and the trap takes no article.
    rs.yds = 0, rs.remain = 18, rs.offl = 1.99, rs.lie = 5;
    EXPECT_EQ(shotreporttext(),
              " shot went  0 yards. it's  18 yards from the green and is  1 yard  off line in  A-Sand Trap. ");
    rs.offl = 0.4;
    EXPECT_NE(shotreporttext().find("is  0 yards  off line"), std::string::npos);
}

}  // namespace
