// The spoken reports with the round's figures set: the end of round report
// in its edge cases, and the hole's report before and after its first time.
#include <gtest/gtest.h>

#include <string>

#include "course/catalogue.h"
#include "course/course.h"
#include "records/report.h"
#include "round/fresh_game.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"

namespace {

using play::rs;

const std::string kHead = "say2 \" Jo  your score is as follows, ";
const std::string kOnCourse1 = " par for the  Amateur Green Grass Country Club Rating 65, is 72.  your score was ";

struct EndCase {
    const char* name;
    int stks;
    int counters[8];   // BAD, DOUBLEBOGEY, Bogey, PARS, BIRDIE, EAGLE, DOUEAG, HOLEINONE
    int firstend;
    std::string counts;
    std::string tail;
    bool applause;
};

const EndCase endCases[] = {
    {"all pars", 72, {0, 0, 0, 18, 0, 0, 0, 0}, 0,
     " 0 awful shots.  0 double bo ghees.  0 bo ghees.  18 pars.  0 birdies.  0 eagles.  0 double eagles.  0 hole in ones. ",
     " 72.  which is  par. ", true},
    {"71 on 72", 71, {0, 0, 0, 17, 1, 0, 0, 0}, 0,
     " 0 awful shots.  0 double bo ghees.  0 bo ghees.  17 pars.  1 birdie.  0 eagles.  0 double eagles.  0 hole in ones. ",
     " 71.  which is  1 stroke  under  par. ", true},
    {"74 on 72", 74, {0, 0, 2, 16, 0, 0, 0, 0}, 0,
     " 0 awful shots.  0 double bo ghees.  2 bo ghees.  16 pars.  0 birdies.  0 eagles.  0 double eagles.  0 hole in ones. ",
     " 74.  which is  2 strokes  over  par. ", false},
    {"one hole in one, a later round", 70, {0, 0, 0, 16, 1, 0, 0, 1}, 1,
     " 0 awful shots.  0 double bo ghees.  0 bo ghees.  16 pars.  1 birdie.  0 eagles.  0 double eagles.  1 hole in one. ",
     " 70.  which is  2 strokes  under  par. ", false},
    {"two holes in one", 68, {0, 0, 0, 16, 0, 0, 0, 2}, 0,
     " 0 awful shots.  0 double bo ghees.  0 bo ghees.  16 pars.  0 birdies.  0 eagles.  0 double eagles.  2 hole in ones. ",
     " 68.  which is  4 strokes  under  par. ", true},
};

TEST(EndReport, TheEdgeCasesWordForWordAndTheApplauseOfTheFirstReportAtOrUnderPar) {
    for (const EndCase& e : endCases) {
        SCOPED_TRACE(e.name);
        auto r = simtest::runInProcess("end\n", [&] {
            roundtest::freshGame();
            rs.nocs = course::GetCors(play::kp());
            rs.c = 1, rs.stks = e.stks, rs.total = 72;
            int* counters[] = {&rs.BAD, &rs.DOUBLEBOGEY, &rs.Bogey, &rs.PARS, &rs.BIRDIE, &rs.EAGLE, &rs.DOUEAG, &rs.HOLEINONE};
            for (int i = 0; i < 8; ++i) *counters[i] = e.counters[i];
            course::cs.firstend = e.firstend;
            records::sayendscore();
            EXPECT_EQ(course::cs.firstend, 1);
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_TRUE(r.has(kHead + e.counts + kOnCourse1 + e.tail + "\"")) << r.dump();
        EXPECT_EQ(r.has("play golf11"), e.applause);
        EXPECT_EQ(r.has("play golf13"), e.applause);
        EXPECT_FALSE(r.has("play golf12"));
    }
}

TEST(EndReport, TheRandomCourseIsNamedAndHasNoRecordSentence) {
    auto r = simtest::runInProcess("end\n", [] {
        roundtest::freshGame();
        rs.nocs = course::GetCors(play::kp());
        rs.c = rs.nocs, rs.stks = 75, rs.total = 72, rs.Bogey = 3, rs.PARS = 15;
        course::cs.firstend = 1;
        records::repeatend();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has(" par for the  Random golf course no rating, is 72.  your score was  75.  which is  3 strokes  over  par. \""))
        << r.dump();
    EXPECT_FALSE(r.has("record"));
}

TEST(HoleReport, TheFirstReportHasNoVerdictWordAndF2ThenStartsWithIt) {
    auto r = simtest::runInProcess("end\n", [] {
        roundtest::freshGame();
        rs.hole = 4, rs.stk = 4, rs.total = 12, rs.stks = 13, rs.sank = 3, rs.virgin = 1;
        records::resaydidonhole();
        records::resaydidonhole();
        EXPECT_EQ(rs.virgin, 0);
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    const std::string rest = " Jo  Your Score On Hole  3 was  4.  Total Par So Far Is 12. Your Current Score Is  13. \"";
    auto at = r.sequence({"say2 \"" + rest, "say2 \" A-par " + rest});
    EXPECT_GT(at.back(), 0) << r.dump();
}

}  // namespace
