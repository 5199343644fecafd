// What a player hears at the first tee of course 1, through greenlark-sim:
// the description, the club prompt, leaving by Escape, a club by digit and
// by arrows, the ticks, the indicator and the report of the shot.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "sim_harness.h"

using simtest::runBinary;

namespace {

using simtest::kToTheTee;

struct Report {
    int yds = -1, remain = -1, offl = -1;
    std::string where;
};

Report report(const simtest::Result& r) {
    Report rep;
    std::regex re(R"(say2 " shot went  (\d+) yards\. it's  (\d+) yards from the green and is  (\d+) yards?  off line in (.*)\. ")");
    for (const auto& l : r.lines) {
        std::smatch m;
        if (std::regex_search(l, m, re)) {
            rep.yds = std::stoi(m[1]);
            rep.remain = std::stoi(m[2]);
            rep.offl = std::stoi(m[3]);
            rep.where = m[4];
        }
    }
    return rep;
}

int countBetween(const simtest::Result& r, const std::string& what, int from, int to) {
    int n = 0;
    for (int i = r.find(what, from); i >= 0 && i < to; i = r.find(what, i + 1)) ++n;
    return n;
}

TEST(RoundScenario, FirstTeeDescriptionThenTheClubPrompt) {
    auto r = runBinary(std::string(kToTheTee) + "expect \"Select Your Club\"\nexpect \" 1\"\nkey Escape\n"
                                         "expect \" save and exit game \"\nkey Down Enter\n"
                                         "expect \" select \"\nexpect \" 2. use ball washer \"\n");
    ASSERT_EQ(r.code, 0) << r.dump();
    int hello = r.find("say2 \" Is  Jo  correct for your name? yes \"");
    int desc = r.find(
        "say2 \" Jo  You are at hole number  1. distance  501 yards. par  5. on your left is  Deep Rough."
        " on your right is  Trees. next to the green is A-pond and A-sand trap. \"");
    int prompt = r.find(
        "say2 \" Select Your Club.              1 to 9 For Irons, 1 to 4 For woods, or PW For Pitching Wedge.\"");
    int pointer = r.find("say2 \" 1\"");
    ASSERT_GE(hello, 0) << r.dump();
    ASSERT_GT(desc, hello) << r.dump();
    ASSERT_GT(prompt, desc) << r.dump();
    EXPECT_EQ(pointer, prompt + 1);
    // The crowd is running under the description.
    int crowd = r.find("play golf10");
    EXPECT_GT(crowd, hello);
    EXPECT_LT(crowd, desc);
    // Leaving the round without saving goes back to the main menu.
    EXPECT_GT(r.find("say2 \" select \"", pointer), pointer);
}

TEST(RoundScenario, DriverByDigitAtFullPowerAndTheReport) {
    auto r = runBinary(std::string(kToTheTee) + R"(expect "Select Your Club"
key 1
expect " wood "
key Enter
at golf7 50 Space
expect "shot went"
expect " 1"
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_GE(r.find("say2 \" select \""), 0);
    int chosen = r.find("key 13", r.find("say2 \" wood \""));
    int indicator = r.find("play golf7");
    ASSERT_GT(chosen, 0) << r.dump();
    ASSERT_GT(indicator, chosen) << r.dump();
    EXPECT_EQ(countBetween(r, "play golf16", chosen, indicator), 3);
    // Enter is named, and the countdown is not spoken.
    EXPECT_EQ(countBetween(r, "say", r.find("rate 0", chosen), indicator), 0);
    // The strike, the crowd, and at full power the extra sound.
    int space = r.find("key 32", indicator);
    int strike = r.find("play golf1 ", space);
    ASSERT_GT(strike, space) << r.dump();
    EXPECT_GT(r.find("play golf8 ", strike), strike);
    EXPECT_GT(r.find("play golf18 ", strike), strike);
    // A dirty ball at full power with the 1 wood: 288 to 308 yards, from 501.
    Report rep = report(r);
    EXPECT_GE(rep.yds, 288) << r.dump();
    EXPECT_LE(rep.yds, 308);
    EXPECT_GE(rep.remain, 501 - rep.yds);
    EXPECT_LE(rep.remain, 501 - rep.yds + 5);
    EXPECT_LE(rep.offl, 40);
    EXPECT_EQ(rep.where, "the  Fairway");
    // The prompt comes again with its closing blank, the pointer at 1.
    int shot = r.find("shot went");
    EXPECT_EQ(r.find("say2 \" Select Your Club.              1 to 9 For Irons, 1 to 4 For woods, or PW For "
                     "Pitching Wedge. \"",
                     shot),
              shot + 1);
    EXPECT_EQ(r.find("say2 \" 1\"", shot), shot + 2);
}

TEST(RoundScenario, WedgeByArrowsWithTheIndicatorPlayedTwice) {
    auto r = runBinary(std::string(kToTheTee) + R"(expect "Select Your Club"
key Up
expect " pitching wedge "
key Enter
expect-sound golf7
wait 3
at golf7 25 Space
expect "shot went"
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_LT(r.find("say2 \" select \"", r.find("Select Your Club")), 0) << "the wedge asks no wood or iron";
    int first = r.find("play golf7");
    int second = r.find("play golf7", first + 1);
    ASSERT_GT(second, first) << r.dump();
    EXPECT_EQ(countBetween(r, "say", first, second), 0) << "nothing is spoken between two plays";
    EXPECT_EQ(countBetween(r, "key", first, second), 0);
    EXPECT_EQ(r.count("play golf7"), 2);
    // A quarter of the way in reads 25: half a swing of the wedge.
    EXPECT_FALSE(r.has("play golf18"));
    Report rep = report(r);
    EXPECT_GE(rep.yds, 49) << r.dump();
    EXPECT_LE(rep.yds, 59);
    EXPECT_GE(rep.remain, 501 - rep.yds);
    EXPECT_LE(rep.remain, 501 - rep.yds + 1);
}

}  // namespace
