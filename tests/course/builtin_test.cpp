#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "course/builtin.h"
#include "course/course.h"

namespace {

using course::cs;

void fillTable(int v) {
    for (auto& row : cs.H) std::fill(std::begin(row), std::end(row), v);
}

int parSum() {
    int sum = 0;
    for (int hole = 1; hole <= 18; ++hole) sum += cs.H[hole][1];
    return sum;
}

struct Range {
    int lo, hi;
};

TEST(CourseBuiltin, EachCourseHasEighteenHolesAndItsParSum) {
    const std::array<int, 7> pars = {0, 72, 72, 72, 72, 54, 72};
    // From the last to the first, so each load must overwrite the one before.
    for (int a = 6; a >= 1; --a) {
        fillTable(0);
        course::SetHolesData(a);
        EXPECT_EQ(parSum(), pars[a]) << "course " << a;
        for (int hole = 1; hole <= 18; ++hole)
            EXPECT_GT(cs.H[hole][2], 0) << "course " << a << " hole " << hole;
    }
}

TEST(CourseBuiltin, WritesOnlyHolesOneTo18FieldsOneTo7) {
    for (int a = 1; a <= 6; ++a) {
        fillTable(-1);
        course::SetHolesData(a);
        for (int hole = 0; hole < course::holeSlots; ++hole)
            for (int k = 0; k < course::fieldSlots; ++k) {
                bool used = hole >= 1 && hole <= 18 && k >= 1 && k <= 7;
                EXPECT_EQ(cs.H[hole][k] == -1, !used)
                    << "course " << a << " H(" << hole << "," << k << ")";
            }
    }
}

TEST(CourseBuiltin, FieldsStayInTheirRangesAndReachBothEnds) {
    const Range ranges[8] = {{}, {3, 6}, {80, 853}, {1, 44}, {1, 162},
                             {10, 86}, {2, 12}, {1, 3}};
    int lo[8], hi[8];
    std::fill(std::begin(lo), std::end(lo), 100000);
    std::fill(std::begin(hi), std::end(hi), -100000);
    for (int a = 1; a <= 6; ++a) {
        course::SetHolesData(a);
        for (int hole = 1; hole <= 18; ++hole)
            for (int k = 1; k <= 7; ++k) {
                lo[k] = std::min(lo[k], cs.H[hole][k]);
                hi[k] = std::max(hi[k], cs.H[hole][k]);
            }
    }
    for (int k = 1; k <= 7; ++k) {
        EXPECT_EQ(lo[k], ranges[k].lo) << "field " << k;
        EXPECT_EQ(hi[k], ranges[k].hi) << "field " << k;
    }
}

TEST(CourseBuiltin, SpotRowsMatchTheirTables) {
    const int c1h1[8] = {0, 5, 501, 2, 3, 60, 6, 3};
    const int c3h10[8] = {0, 3, 197, 6, 3, 75, 3, 1};
    const int c6h18[8] = {0, 3, 101, 14, 2, 86, 6, 3};
    struct {
        int a, hole;
        const int* row;
    } spots[] = {{1, 1, c1h1}, {3, 10, c3h10}, {6, 18, c6h18}};
    for (const auto& s : spots) {
        course::SetHolesData(s.a);
        for (int k = 1; k <= 7; ++k)
            EXPECT_EQ(cs.H[s.hole][k], s.row[k])
                << "course " << s.a << " hole " << s.hole << " field " << k;
    }
}

TEST(CourseBuiltin, ChipAndPuttCourseIsAllPar3From80To303Yards) {
    course::SetHolesData(5);
    int shortest = 100000, longest = 0;
    for (int hole = 1; hole <= 18; ++hole) {
        EXPECT_EQ(cs.H[hole][1], 3) << hole;
        shortest = std::min(shortest, cs.H[hole][2]);
        longest = std::max(longest, cs.H[hole][2]);
    }
    EXPECT_EQ(shortest, 80);
    EXPECT_EQ(longest, 303);
}

TEST(CourseBuiltin, ParAndLengthAreIndependent) {
    course::SetHolesData(4);
    EXPECT_EQ(cs.H[1][1], 3);
    EXPECT_EQ(cs.H[1][2], 374);
}

TEST(CourseBuiltin, OnlyHoles6And10OfCourse6ArePar6) {
    for (int a = 1; a <= 6; ++a) {
        course::SetHolesData(a);
        for (int hole = 1; hole <= 18; ++hole) {
            bool expected = a == 6 && (hole == 6 || hole == 10);
            EXPECT_EQ(cs.H[hole][1] == 6, expected)
                << "course " << a << " hole " << hole;
        }
    }
}

TEST(CourseBuiltin, Course6Has160OnTheRightOfHoles16And17) {
    course::SetHolesData(6);
    for (int hole = 1; hole <= 18; ++hole)
        EXPECT_EQ(cs.H[hole][4] == course::customLoc, hole == 16 || hole == 17)
            << hole;
}

TEST(CourseBuiltin, SetsFoxAndFirstendAndLeavesHsAndHfAlone) {
    cs.fox = 2;
    cs.firstend = 1;
    cs.HF[3] = 2;
    cs.HS[3][1] = "kept";
    course::SetHolesData(2);
    EXPECT_EQ(cs.fox, 1);
    EXPECT_EQ(cs.firstend, 0);
    EXPECT_EQ(cs.HF[3], 2);
    EXPECT_EQ(cs.HS[3][1], "kept");
    cs.HF[3] = 1;
    cs.HS[3][1].clear();
}

TEST(CourseBuiltin, NumberOutsideOneToSixLeavesTheTable) {
    course::SetHolesData(1);
    for (int a : {0, 7, -1}) {
        cs.fox = 2;
        cs.firstend = 1;
        course::SetHolesData(a);
        EXPECT_EQ(parSum(), 72) << a;
        EXPECT_EQ(cs.H[1][2], 501) << a;
        EXPECT_EQ(cs.fox, 1) << a;
        EXPECT_EQ(cs.firstend, 0) << a;
    }
}

class CourseBuiltinNames : public ::testing::Test {
protected:
    void SetUp() override {
        for (int a = 0; a <= 7; ++a) cs.cname[a] = cs.cfile[a] = "";
        course::fillBuiltinNames();
    }
};

TEST_F(CourseBuiltinNames, FillsSlotsOneToSixOnly) {
    EXPECT_EQ(std::size(cs.cname), 2223u);
    EXPECT_EQ(std::size(cs.cfile), 2223u);
    EXPECT_EQ(cs.cname[0], "");
    EXPECT_EQ(cs.cfile[0], "");
    EXPECT_EQ(cs.cname[7], "");
    EXPECT_EQ(cs.cfile[7], "");
    for (int a = 1; a <= 6; ++a) {
        EXPECT_FALSE(cs.cname[a].empty()) << a;
        EXPECT_FALSE(cs.cfile[a].empty()) << a;
    }
}

TEST_F(CourseBuiltinNames, SpotNamesAndFiles) {
    EXPECT_EQ(cs.cname[1], " Amateur Green Grass Country Club Rating 65 ");
    EXPECT_EQ(cs.cname[4], " Erie Lake Contry Club rating 69 ");
    EXPECT_EQ(cs.cname[5], " Harlo chip and putt golf course rating 48 ");
    EXPECT_EQ(cs.cfile[6], "golfOstrey Memorial golf course rating 75.gcf");
}

TEST_F(CourseBuiltinNames, FileIsGolfPlusTheNamePlusGcfSaveCourse3) {
    for (int a = 1; a <= 6; ++a) {
        const std::string& n = cs.cname[a];
        ASSERT_GE(n.size(), 3u);
        EXPECT_EQ(n.front(), ' ') << a;
        EXPECT_EQ(n.back(), ' ') << a;
        EXPECT_NE(n[1], ' ') << a;
        EXPECT_NE(n[n.size() - 2], ' ') << a;
        std::string fromName = "golf" + n.substr(1, n.size() - 2) + ".gcf";
        EXPECT_EQ(cs.cfile[a] == fromName, a != 3) << a;
    }
    // The spoken name of course 3 has a point the file name lacks.
    EXPECT_EQ(cs.cname[3], " Swamp Grass USA. Rating 72 ");
    EXPECT_EQ(cs.cfile[3], "golfSwamp Grass USA Rating 72.gcf");
}

}  // namespace
