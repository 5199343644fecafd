// The six built-in courses and the place names, as the tables load them.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "course/builtin.h"
#include "course/course.h"
#include "course/locs.h"

namespace {

using course::cs;

// The sums of each field over the eighteen holes: a typing slip in a row of
// a course changes one of them.
TEST(CourseBuiltin, EachCourseLoadsItsOwnEighteenHoles) {
    const int sums[7][8] = {{},
                            {0, 72, 6347, 90, 61, 1224, 104, 38},  {0, 72, 7470, 66, 83, 1065, 103, 43},
                            {0, 72, 8173, 66, 65, 901, 94, 47},    {0, 72, 8328, 77, 74, 935, 108, 54},
                            {0, 54, 3146, 237, 383, 554, 108, 54}, {0, 72, 7207, 307, 1379, 1083, 108, 54}};
    for (int a = 6; a >= 1; --a) {   // from the last, so each load must overwrite the one before
        for (auto& row : cs.H)
            for (int& v : row) v = -1;
        cs.fox = 2, cs.firstend = 1, cs.HF[3] = 2, cs.HS[3][1] = "kept";
        course::SetHolesData(a);
        for (int k = 1; k <= 7; ++k) {
            int sum = 0;
            for (int hole = 1; hole <= 18; ++hole) sum += cs.H[hole][k];
            EXPECT_EQ(sum, sums[a][k]) << "course " << a << " field " << k;
        }
        for (int k = 0; k < course::fieldSlots; ++k) {
            EXPECT_EQ(cs.H[0][k], -1);
            EXPECT_EQ(cs.H[19][k], -1);
        }
        EXPECT_EQ(cs.H[1][0] + cs.H[1][8], -2) << "only fields 1 to 7 are written";
        EXPECT_EQ(cs.fox, 1);
        EXPECT_EQ(cs.firstend, 0);
        EXPECT_EQ(cs.HF[3], 2) << "the flags and texts are the loader's";
        EXPECT_EQ(cs.HS[3][1], "kept");
    }
    for (int a : {0, 7, -1}) {
        course::SetHolesData(a);
        EXPECT_EQ(cs.H[1][2], 501) << "a number outside 1..6 leaves course 1 in the table";
    }

    course::fillBuiltinNames();
    cs.cname[7] = "";
    EXPECT_EQ(cs.cname[1], " Amateur Green Grass Country Club Rating 65 ");
    for (int a = 1; a <= 6; ++a) {
        const std::string& n = cs.cname[a];
        ASSERT_GE(n.size(), 3u);
        EXPECT_TRUE(n.front() == ' ' && n.back() == ' ' && n[1] != ' ' && n[n.size() - 2] != ' ') << n;
        EXPECT_EQ(cs.cfile[a] == "golf" + n.substr(1, n.size() - 2) + ".gcf", a != 3) << a;
    }
    // The spoken name of course 3 has a point the file name lacks.
    EXPECT_EQ(cs.cfile[3], "golfSwamp Grass USA Rating 72.gcf");
    EXPECT_EQ(cs.cname[0] + cs.cname[7], "");
}

TEST(CourseLocs, OneHundredSixtyTwoDistinctNamesEachWithItsBlanks) {
    cs.locs[0] = "x", cs.locs[164] = "y", cs.locs[3] = "z";
    course::fillLocs();
    EXPECT_EQ(cs.locs[0] + cs.locs[163] + cs.locs[164] + cs.locs[165], "") << "filling again clears the empty slots";
    std::set<std::string> seen;
    int doubled = 0;
    for (int id = 1; id <= 162; ++id) {
        const std::string& t = cs.locs[id];
        ASSERT_GE(t.size(), 3u) << id;
        EXPECT_TRUE(t.front() == ' ' && t.back() == ' ') << id;
        EXPECT_TRUE(seen.insert(t).second) << "repeated text at " << id;
        doubled += t.ends_with("  ");
    }
    EXPECT_EQ(doubled, 2);
    const std::pair<int, const char*> spots[] = {
        {1, " Fairway "}, {2, " Deep Rough "}, {3, " Trees "}, {4, " Adjacent Fairway "}, {5, " A-Sand Trap "},
        {6, " A-Big Lake "}, {7, " Out Of Bounds "}, {54, " the-side-of A-mountain "}, {91, " A-K-F-C "},
        {115, " A-slope-covered-with-autumn-leaves  "},
        {145, " an-Irish-Pub-filled-with-Saint-Patrick's-Day-revelers "}, {160, " A-cemetery "},
        {162, " A-cow-pasture "}};
    for (auto [id, text] : spots) EXPECT_EQ(cs.locs[id], text) << id;
}

}  // namespace
