#include <gtest/gtest.h>

#include <set>
#include <string>

#include "course/course.h"
#include "course/locs.h"

namespace {

using course::cs;

class CourseLocs : public ::testing::Test {
protected:
    void SetUp() override { course::fillLocs(); }
};

TEST_F(CourseLocs, IdsOneTo162HoldTextAndTheRestStayEmpty) {
    EXPECT_EQ(cs.locs[0], "");
    for (int id = 1; id <= 162; ++id) EXPECT_FALSE(cs.locs[id].empty()) << id;
    for (int id = 163; id <= 165; ++id) EXPECT_EQ(cs.locs[id], "") << id;
}

TEST_F(CourseLocs, EveryTextCarriesItsOwnBlanksAndIsDistinct) {
    std::set<std::string> seen;
    for (int id = 1; id <= 162; ++id) {
        const std::string& t = cs.locs[id];
        EXPECT_EQ(t.front(), ' ') << id;
        EXPECT_EQ(t.back(), ' ') << id;
        EXPECT_TRUE(seen.insert(t).second) << "repeated text at " << id;
    }
}

TEST_F(CourseLocs, LieNamesAreTheFirstSevenIds) {
    namespace lie = course::lie;
    EXPECT_EQ(cs.locs[lie::fairway], " Fairway ");
    EXPECT_EQ(cs.locs[lie::rough], " Deep Rough ");
    EXPECT_EQ(cs.locs[lie::trees], " Trees ");
    EXPECT_EQ(cs.locs[lie::adjacent], " Adjacent Fairway ");
    EXPECT_EQ(cs.locs[lie::trap], " A-Sand Trap ");
    EXPECT_EQ(cs.locs[lie::pond], " A-Big Lake ");
    EXPECT_EQ(cs.locs[lie::outofbounds], " Out Of Bounds ");
}

TEST_F(CourseLocs, SpotTextsKeepHyphensCapitalsAndBlanks) {
    EXPECT_EQ(cs.locs[48], " an-airport ");
    EXPECT_EQ(cs.locs[52], " iris-beds ");
    EXPECT_EQ(cs.locs[54], " the-side-of A-mountain ");
    EXPECT_EQ(cs.locs[55], " train-tracks ");
    EXPECT_EQ(cs.locs[59], " An-up-hill-slope ");
    EXPECT_EQ(cs.locs[91], " A-K-F-C ");
    EXPECT_EQ(cs.locs[145],
              " an-Irish-Pub-filled-with-Saint-Patrick's-Day-revelers ");
    EXPECT_EQ(cs.locs[160], " A-cemetery ");
    EXPECT_EQ(cs.locs[161], " A-turkey-farm ");
    EXPECT_EQ(cs.locs[162], " A-cow-pasture ");
}

TEST_F(CourseLocs, TwoTextsEndInTwoBlanks) {
    EXPECT_EQ(cs.locs[115], " A-slope-covered-with-autumn-leaves  ");
    EXPECT_EQ(cs.locs[128], " A-three-legged-turkey  ");
    int doubled = 0;
    for (int id = 1; id <= 162; ++id)
        if (cs.locs[id].ends_with("  ")) ++doubled;
    EXPECT_EQ(doubled, 2);
}

TEST_F(CourseLocs, FillingAgainClearsStrayTextInTheEmptySlots) {
    cs.locs[0] = "x";
    cs.locs[164] = "y";
    cs.locs[3] = "z";
    course::fillLocs();
    EXPECT_EQ(cs.locs[0], "");
    EXPECT_EQ(cs.locs[164], "");
    EXPECT_EQ(cs.locs[3], " Trees ");
}

}  // namespace
