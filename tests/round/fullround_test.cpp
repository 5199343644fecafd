// Eighteen holes of course 1 played by ear to the end of the round: once in
// this process, where the card can be held against the round's figures, and
// once through greenlark-sim from the name prompt on, judged by what was
// heard alone.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/fullround_caddie.h"
#include "round/fullround_play.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/ambient.h"
#include "sound/bank.h"

using caddie::Caddie;
using caddie::playInProcess;
using caddie::playThroughSim;

namespace {

const int course1Pars[18] = {5, 3, 5, 4, 4, 4, 3, 4, 4, 4, 4, 3, 5, 4, 4, 3, 4, 5};

void expectCardsOfCourseOne(const Caddie& c, const std::string& dump) {
    ASSERT_TRUE(c.over()) << dump;
    ASSERT_EQ(c.cards().size(), 18u) << dump;
    for (int h = 0; h < 18; ++h) {
        SCOPED_TRACE("hole " + std::to_string(h + 1));
        const auto& card = c.cards()[size_t(h)];
        EXPECT_EQ(card.par, course1Pars[h]);
        EXPECT_GE(card.strokes, 1);
        EXPECT_TRUE(card.verdictHeard) << "the verdict for " << card.strokes << " on par " << card.par;
    }
}

TEST(FullRound, CourseOneToTheEndWithTheCardAndTheCountersAgreeing) {
    Caddie c({"expect \" Please Pick A-Course To Play. \"", "key Enter"});   // the first course
    std::vector<int> stk, sank;
    auto r = playInProcess(
        c,
        [] {
            roundtest::freshGame();
            sound::bk.ab = sound::loadbuffer("golf0", 0);
            play::rs.c = 1;
            platform::reseed(platform::os().tick());
            play::playround();
        },
        [&] {
            // Inside the wait at the end of each hole, before its key.
            if (c.cards().size() > stk.size()) {
                stk.push_back(play::rs.stk);
                sank.push_back(play::rs.sank);
            }
        });
    ASSERT_EQ(r.code, 0) << r.dump();
    expectCardsOfCourseOne(c, r.dump());
    ASSERT_EQ(stk.size(), 18u);
    int sum = 0, classes[9] = {};
    for (int h = 0; h < 18; ++h) {
        EXPECT_EQ(stk[size_t(h)], c.cards()[size_t(h)].strokes) << "hole " << h + 1 << ": counted as heard";
        sum += stk[size_t(h)];
        classes[sank[size_t(h)]] += 1;
    }
    const auto& rs = play::rs;
    EXPECT_EQ(rs.hole, 19);
    EXPECT_EQ(rs.total, 72);
    EXPECT_EQ(rs.stks, sum);
    EXPECT_EQ(rs.DOUBLEBOGEY + rs.Bogey + rs.PARS + rs.BAD + rs.BIRDIE + rs.HOLEINONE + rs.EAGLE + rs.DOUEAG, 18);
    EXPECT_EQ(rs.DOUBLEBOGEY, classes[1]);
    EXPECT_EQ(rs.Bogey, classes[2]);
    EXPECT_EQ(rs.PARS, classes[3]);
    EXPECT_EQ(rs.BAD, classes[4]);
    EXPECT_EQ(rs.BIRDIE, classes[5]);
    EXPECT_EQ(rs.HOLEINONE, classes[6]);
    EXPECT_EQ(rs.EAGLE, classes[7]);
    EXPECT_EQ(rs.DOUEAG, classes[8]);
    // After the last hole's key, the end of the round asks for one more.
    size_t last = c.holeEnds().back();
    int ends = 0;
    for (size_t i = last; i < r.lines.size(); ++i) ends += r.lines[i].find("say2 \" press any key to continue \"") != std::string::npos;
    EXPECT_EQ(ends, 1) << r.dump();
}

TEST(FullRound, CourseOneThroughTheSimulatorByEar) {
    Caddie c(caddie::scriptLines(simtest::kToTheTee));
    auto r = playThroughSim(c);
    ASSERT_EQ(r.code, 0) << r.dump();
    expectCardsOfCourseOne(c, r.dump());
    // The caddie misuses a club where it can: off the deck after most tees,
    // and in the trap once the ball lies there.
    EXPECT_GT(r.count("say2 \" Where Did You Learn To Play Golf? You Don't Hit A-Driver In The Fairway \""), 0);
    EXPECT_GT(r.count("say2 \" Where Did You Learn To Play Golf? You Don't Hit  A-Wood  In A-sand trap. \""), 0);
    for (int h = 1; h <= 18; ++h) {
        int at = -1;
        for (size_t i = 0; i < r.lines.size() && at < 0; ++i)
            if (r.lines[i].find("You are at hole number  " + std::to_string(h) + ".") != std::string::npos) at = int(i);
        EXPECT_GE(at, 0) << "hole " << h;
    }
}

}  // namespace
