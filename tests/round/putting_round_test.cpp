// The first hole of course 1 through greenlark-sim, from the tee to the cup.
// The shots are chosen as the reports come in: each run plays the script so
// far, which the game replays exactly, and the next shot is added from what
// was heard. On the green every putt is meant to miss; the one that is the
// fifth stroke of the hole drops all the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <regex>
#include <string>

#include "sim_harness.h"

using simtest::runBinary;

namespace {

using simtest::kToTheTee;

const char* kPrompt = "say2 \" Press any key when you are ready to putt, press the space bar to putt. \"";

int lastIndex(const simtest::Result& r, const std::string& what) {
    int last = -1;
    for (int i = r.find(what); i >= 0; i = r.find(what, i + 1)) last = i;
    return last;
}

// The last number that the pattern's first group caught; -1 if none.
int lastNumber(const simtest::Result& r, const std::string& pattern) {
    std::regex re(pattern);
    int n = -1;
    for (const auto& l : r.lines) {
        std::smatch m;
        if (std::regex_search(l, m, re)) n = m[1] == "Too" ? 2 : std::stoi(m[1]);
    }
    return n;
}

// A swing with the 1 wood, or the pitching wedge ("p", "w") at the reading
// that should carry it a few yards short of the green.
std::string swing(int togo) {
    if (togo > 230) return "expect \"Select Your Club\"\nkey 1\nkey Enter\nat golf7 50 Space\n";
    int reading = std::clamp(int(std::lround((togo - 4) * 50 / 108.0)), 1, 50);
    return "expect \"Select Your Club\"\nkey P\nkey W\nat golf7 " + std::to_string(reading) + " Space\n";
}

// A putt that cannot drop by its own length: the weakest, 0.8 feet, from 3
// feet out or more; from 2 the strongest, 40 feet.
std::string missingPutt(int feet) {
    int reading = feet >= 3 ? 1 : 50;
    return "expect \"ready to putt\"\nkey Space\nat golf6 " + std::to_string(reading) + " Space\n";
}

int countMatching(const simtest::Result& r, const std::string& pattern) {
    std::regex re(pattern);
    int n = 0;
    for (const auto& l : r.lines) n += std::regex_search(l, re) ? 1 : 0;
    return n;
}

TEST(PuttingRound, FirstHoleFromTheTeeTheFifthStrokeDropsAfterAMiss) {
    std::string script = kToTheTee;
    const std::string settle = "wait 12\n";
    int strokes = 0, arrival = 0, putts = 0;
    simtest::Result r;
    for (int turn = 0; turn < 12; ++turn) {
        r = runBinary(script + settle);
        ASSERT_EQ(r.code, 0) << r.dump();
        script += settle;
        int club = lastIndex(r, "Select Your Club"), green = lastIndex(r, kPrompt);
        int done = lastIndex(r, "press any key to continue");
        if (done > club && done > green) break;
        ++strokes;
        if (green > club) {
            if (arrival == 0) arrival = strokes - 1;
            int feet = lastNumber(r, R"(You are on the green (Too|\d+) f)");
            ASSERT_GT(feet, 0) << r.dump();
            script += missingPutt(feet);
            ++putts;
            continue;
        }
        int togo = lastNumber(r, R"((?:distance|it's) +(\d+) yards)");
        ASSERT_GT(togo, 0) << r.dump();
        script += swing(togo);
    }
    ASSERT_GT(arrival, 0) << "the ball never reached the green\n" << r.dump();
    ASSERT_LE(arrival, 3) << "the green was reached too late to show a miss; choose the shots anew\n"
                          << r.dump();
    // Every putt before the fifth stroke missed, and was told; the fifth
    // dropped, so the hole ended there.
    EXPECT_EQ(strokes, 5) << r.dump();
    EXPECT_EQ(putts, 5 - arrival);
    EXPECT_EQ(r.count("play golf9 "), putts - 1) << "a groan for each miss";
    EXPECT_EQ(r.count("say2 \" putt went "), putts - 1);
    EXPECT_EQ(r.count(kPrompt), putts);
    EXPECT_EQ(countMatching(r, R"(say2 " shot went  \d+ yards"$)"), 1) << "the approach's length, at the arrival";
    int lastPutt = lastIndex(r, "play golf17 ");
    ASSERT_GT(lastPutt, 0) << r.dump();
    EXPECT_EQ(r.find("putt went", lastPutt), -1);
    EXPECT_EQ(r.find("You are on the green", lastPutt), -1);
    EXPECT_GT(r.find("press any key to continue", lastPutt), lastPutt);
}

}  // namespace
