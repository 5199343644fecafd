// The hole out: the class of a score against par, and the verdict as the
// player hears it, from off the green and on it, with its counter, sounds
// and clapping.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/fresh_game.h"
#include "round/holeout.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"

using namespace play;

namespace {

using roundtest::freshGame;

TEST(HoleOutClassify, EveryRowOfTheTableOnEveryPar) {
    for (int p = 3; p <= 6; ++p) {
        SCOPED_TRACE(p);
        EXPECT_EQ(classify(p + 2, p), 1);
        EXPECT_EQ(classify(p + 1, p), 2);
        EXPECT_EQ(classify(p, p), 3);
        EXPECT_EQ(classify(p + 3, p), 4);
        EXPECT_EQ(classify(p + 9, p), 4);
        EXPECT_EQ(classify(p - 1, p), 5);
        if (p > 3) {
            EXPECT_EQ(classify(p - 2, p), 7);
        }
    }
    EXPECT_EQ(classify(2, 5), 8);
    EXPECT_EQ(classify(3, 6), 8);
    EXPECT_EQ(classify(2, 4), 7);
}

TEST(HoleOutClassify, AHoleInOneIsAlwaysClassSix) {
    // A hole in one would be a birdie on par 2, an eagle on par 3, a double
    // eagle on par 4 and beyond any test on par 5; the last test wins.
    for (int p = 2; p <= 6; ++p) EXPECT_EQ(classify(1, p), 6) << "par " << p;
    // Even a stroke over a par of 0: the test is on the strokes alone.
    EXPECT_EQ(classify(1, 0), 6);
}

TEST(HoleOutClassify, FourOrMoreUnderParIsADoubleEagle) {
    // No test of the table meets 2 strokes on a par 6; such a hole counts
    // with the best class there is rather than repeating the last hole's.
    EXPECT_EQ(classify(2, 6), 8);
    EXPECT_EQ(classify(2, 7), 8);
    EXPECT_EQ(classify(3, 8), 8);
}

struct Row {
    int sank, stk, par;
    int RoundState::*counter;
    std::vector<std::string> sounds;
    const char* off;
    const char* on;
};

const Row rows[] = {
    {1, 6, 4, &RoundState::DOUBLEBOGEY, {"golf19", "golf9", "golf19"},
     " and is in the hole for A-double bo ghee ", " A-double bo ghee "},
    {2, 5, 4, &RoundState::Bogey, {"golf9", "golf19"},
     " and is in the hole for A-bo ghee, maybe the next hole will be better ",
     " A-bo ghee, maybe the next hole will be better "},
    {3, 4, 4, &RoundState::PARS, {"golf21"}, " and is in the hole for par, keep up the good work ",
     " A-par, keep up the good work "},
    {4, 7, 4, &RoundState::BAD, {"golf9", "golf25"},
     " and is in the hole. maybe you had better get your money back ", " maybe you had better get your money back "},
    {5, 3, 4, &RoundState::BIRDIE, {"golf20"}, " and is in the hole for A-birdy ", " A-birdy "},
    {6, 1, 3, &RoundState::HOLEINONE, {"golf24"}, " and is in the hole for A-hole in one ", " A-hole in one "},
    {7, 2, 4, &RoundState::EAGLE, {"golf22"}, " and is in the hole for an eagle, you should be on the tour ",
     " an eagle, you should be on the tour "},
    {8, 2, 5, &RoundState::DOUEAG, {"golf22", "golf20"},
     " and is in the hole for A-double eagle, your name must be tiger ", " A-double eagle, your name must be tiger "},
};

int RoundState::*const counters[] = {&RoundState::BAD,    &RoundState::DOUBLEBOGEY, &RoundState::Bogey,
                                     &RoundState::PARS,   &RoundState::BIRDIE,      &RoundState::EAGLE,
                                     &RoundState::DOUEAG, &RoundState::HOLEINONE};

bool isClap(const std::string& stem) { return stem == "golf11" || stem == "golf12" || stem == "golf13"; }

int claps(const simtest::Result& r) {
    return r.count("play golf11 ") + r.count("play golf12 ") + r.count("play golf13 ");
}

// The stems played from line from up to line to, in order.
std::vector<std::string> played(const simtest::Result& r, int from, int to) {
    std::vector<std::string> out;
    for (int i = r.find("play golf", from); i >= 0 && i < to; i = r.find("play golf", i + 1)) {
        std::string l = r.lines[size_t(i)];
        size_t at = l.find("play ") + 5;
        out.push_back(l.substr(at, l.find(' ', at) - at));
    }
    return out;
}

simtest::Result holeOut(int stk, int par, int greensaid, int cowtog = 0) {
    return simtest::runInProcess("end\n", [=] {
        freshGame();
        sound::bk.cowtog = cowtog;
        rs.stk = stk, rs.par = par, rs.greensaid = greensaid, rs.yds = 152;
        sinkball();
    });
}

TEST(HoleOutVerdict, EveryClassFromOffTheGreenAndOnIt) {
    for (const Row& row : rows) {
        for (int greensaid : {0, 1}) {
            SCOPED_TRACE("class " + std::to_string(row.sank) + " greensaid " + std::to_string(greensaid));
            auto r = holeOut(row.stk, row.par, greensaid);
            ASSERT_EQ(r.code, 0) << r.dump();
            EXPECT_EQ(rs.sank, row.sank);
            for (auto counter : counters) EXPECT_EQ(rs.*counter, counter == row.counter ? 1 : 0);
            // Off the green the length is said first, and waited for.
            int length = r.find("say \" Shot went  152 yards \"");
            EXPECT_EQ(length >= 0, greensaid == 0) << r.dump();
            int sink = r.find("play golf4 ");
            ASSERT_GT(sink, length) << r.dump();
            std::string words = std::string("say2 \"") + (greensaid == 0 ? row.off : row.on) + "\"";
            int said = r.find(words);
            ASSERT_GT(said, sink) << r.dump();
            EXPECT_EQ(r.count("say"), greensaid == 0 ? 2 : 1) << r.dump();
            // The sounds of the class in order, the clapping aside.
            std::vector<std::string> sounds;
            for (const auto& s : played(r, sink + 1, said))
                if (!isClap(s)) sounds.push_back(s);
            EXPECT_EQ(sounds, row.sounds) << r.dump();
            // Under par the clapping starts before the verdict's first sound.
            auto all = played(r, sink + 1, said);
            bool under = row.stk < row.par;
            EXPECT_EQ(!all.empty() && isClap(all[0]), under) << r.dump();
            if (!under) {
                EXPECT_EQ(claps(r), 0);
            }
        }
    }
}

TEST(HoleOutVerdict, WithTheCrowdOffTheVerdictSoundsStillPlay) {
    auto bogey = holeOut(5, 4, 1, 1);
    ASSERT_EQ(bogey.code, 0) << bogey.dump();
    EXPECT_EQ(played(bogey, 0, int(bogey.lines.size())), (std::vector<std::string>{"golf4", "golf19"}));
    auto eagle = holeOut(3, 5, 0, 1);
    EXPECT_EQ(played(eagle, 0, int(eagle.lines.size())), (std::vector<std::string>{"golf4", "golf22"}));
    EXPECT_TRUE(eagle.has("say2 \" and is in the hole for an eagle, you should be on the tour \""));
}

// applause on its own: silent after a penalty or a misused club, otherwise
// one or two of the three claps, started together.
TEST(HoleOutApplause, TheDrawAndWhatSilencesIt) {
    int draws[4] = {};   // claps heard per call: 0, 1 or 2
    bool heard[3] = {};
    platform::reseed(7);
    for (int i = 0; i < 24; ++i) {
        auto r = simtest::runInProcess("end\n", [] {
            freshGame();
            applause();
        });
        draws[claps(r)] += 1;
        for (int k = 0; k < 3; ++k) heard[k] |= r.has("play golf1" + std::to_string(k + 1) + " ");
    }
    EXPECT_EQ(draws[0], 0);
    EXPECT_GT(draws[1], 0);
    EXPECT_GT(draws[2], 0);
    EXPECT_TRUE(heard[0] && heard[1] && heard[2]);
    for (int which = 0; which < 3; ++which) {
        auto r = simtest::runInProcess("end\n", [which] {
            freshGame();
            if (which == 0) rs.noclap = 1;
            if (which == 1) rs.misuse = 1;
            if (which == 2) sound::bk.cowtog = 1;
            applause();
        });
        EXPECT_EQ(claps(r), 0) << which << r.dump();
    }
}

}  // namespace
