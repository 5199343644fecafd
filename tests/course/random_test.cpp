// The random course over a few thousand courses: lengths and their pars,
// the two sides of a hole, the fairway figure and the fixed figures.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "course/catalogue.h"
#include "course/course.h"
#include "platform/platform.h"
#include "sim_harness.h"

namespace {

TEST(RandomCourse, EveryRuleHoldsOverThreeThousandCourses) {
    const int courses = 3000;
    std::set<int> lengths, fairws, lefts, rights;
    std::set<std::string> seen;
    int parAt[680] = {};
    bool sharedIds = false;
    int minTotal = 1000, maxTotal = 0;
    auto r = simtest::runInProcess("end\n", [&] {
        for (int h = 1; h <= 18; ++h) {
            course::cs.HF[h] = 7;
            course::cs.HS[h][1] = "kept";
        }
        course::cs.fox = 2;
        for (int n = 0; n < courses; ++n) {
            platform::os().yield();   // a later time of day: a new seed
            course::setrandomcourse();
            ASSERT_EQ(course::cs.fox, 1);
            std::string sig;
            int total = 0;
            std::set<int> ids;
            for (int h = 1; h <= 18; ++h) {
                const int* H = course::cs.H[h];
                ASSERT_GE(H[2], 125);
                ASSERT_LE(H[2], 679);
                lengths.insert(H[2]);
                int par = H[2] > 555 ? 6 : H[2] > 444 ? 5 : H[2] > 333 ? 4 : 3;
                ASSERT_EQ(H[1], par) << H[2] << " yards";
                parAt[H[2]] = H[1];
                ASSERT_GE(H[3], 2);
                ASSERT_LE(H[3], 55);
                ASSERT_GE(H[4], 2);
                ASSERT_LE(H[4], 55);
                ASSERT_NE(H[3], H[4]) << "the two sides of a hole differ";
                lefts.insert(H[3]);
                rights.insert(H[4]);
                sharedIds = sharedIds || ids.count(H[3]) > 0;
                ids.insert(H[3]);
                ASSERT_EQ(H[5] % 5, 0);
                ASSERT_GE(H[5], 10);
                ASSERT_LE(H[5], 90);
                fairws.insert(H[5]);
                ASSERT_EQ(H[6], 6);
                ASSERT_EQ(H[7], 3);
                ASSERT_EQ(course::cs.partag[h], 2);
                total += H[1];
                sig += std::to_string(H[2]) + ",";
            }
            minTotal = std::min(minTotal, total);
            maxTotal = std::max(maxTotal, total);
            seen.insert(sig);
        }
        for (int h = 1; h <= 18; ++h) {
            EXPECT_EQ(course::cs.HF[h], 7) << "the flags are loadcourse's to set";
            EXPECT_EQ(course::cs.HS[h][1], "kept");
        }
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(lengths.size(), 555u) << "every length from 125 to 679 comes up";
    EXPECT_EQ(fairws.size(), 17u) << "every multiple of 5 from 10 to 90";
    EXPECT_EQ(lefts.size(), 54u);
    EXPECT_EQ(rights.size(), 54u);
    EXPECT_EQ(parAt[333], 3);
    EXPECT_EQ(parAt[334], 4);
    EXPECT_EQ(parAt[444], 4);
    EXPECT_EQ(parAt[445], 5);
    EXPECT_EQ(parAt[555], 5);
    EXPECT_EQ(parAt[556], 6);
    EXPECT_GE(minTotal, 54);
    EXPECT_LE(maxTotal, 108);
    EXPECT_TRUE(sharedIds) << "two holes may share an id";
    EXPECT_GT(seen.size(), size_t(courses * 99 / 100)) << "each load makes a new course";
}

}  // namespace
