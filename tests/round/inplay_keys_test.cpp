// The commands of the key wait of play: F1, F2 and F3 at each stage of a
// hole, c and k, the keys that only hush the voice, and the keys that go
// back to the prompt.
#include <gtest/gtest.h>

#include <string>

#include "inplay_support.h"
#include "round/driver.h"
#include "round/inplay.h"
#include "voice/speech.h"

using inplay::countBetween;
using inplay::hushedAfter;
using inplay::kDrive;
using inplay::kPrompt;
using inplay::kToTheTee;
using inplay::nextSpoken;
using simtest::runBinary;
using simtest::runInProcess;

namespace {

const std::string kBag =
    "say2 \" Jo  This Is Your Bag Of Clubs, Woods 1 thru 4 300 to 250 Yards, Irons 1 thru 9 250 to   0 Yards, "
    "Pitching Wedge 100 to   0 Yards \"";
const std::string kDescription =
    "say2 \" Jo  You are at hole number  1. distance  501 yards. par  5. on your left is  Deep Rough. on your "
    "right is  Trees. next to the green is A-pond and A-sand trap. \"";

TEST(InPlayKeys, AtTheTeeF1RepeatsThePromptWhereThePointerIsF2TheHoleF3TheBag) {
    auto r = runBinary(std::string(kToTheTee) + R"(key Down Down
expect " 3"
key F1
expect " 3"
key F2
expect "next to the green"
key F3
expect "Bag Of Clubs"
key F10
expect " 3"
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int f1 = r.find("key 112");
    ASSERT_GT(f1, 0) << r.dump();
    int prompt = nextSpoken(r, f1);
    EXPECT_EQ(r.lines[size_t(prompt)].substr(r.lines[size_t(prompt)].find(' ') + 1),
              "say2 \"" + kPrompt + " \"")
        << "the prompt with its closing blank";
    EXPECT_EQ(nextSpoken(r, prompt + 1), r.find("say2 \" 3\"", prompt)) << "the pointer keeps its place";
    EXPECT_TRUE(hushedAfter(r, f1)) << "the key stops the voice";

    int f2 = r.find("key 113");
    EXPECT_EQ(nextSpoken(r, f2), r.find(kDescription, f2)) << r.dump();
    EXPECT_EQ(r.count(kDescription), 2);
    int f3 = r.find("key 114");
    EXPECT_EQ(nextSpoken(r, f3), r.find(kBag, f3)) << r.dump();
    // F10 is F1 here too.
    int f10 = r.find("key 121", f1 + 1);
    ASSERT_GT(f10, f3) << r.dump();
    EXPECT_EQ(nextSpoken(r, f10), r.find("say2 \"" + kPrompt + " \"", f10));
    // None of them is named, none answers the prompt.
    EXPECT_FALSE(r.has("say \"p\""));
    EXPECT_FALSE(r.has("A-choice"));
}

TEST(InPlayKeys, InPlayF1RepeatsThePromptF2TheShotAndF3TheBag) {
    auto r = runBinary(std::string(kToTheTee) + kDrive + R"(key Down
expect " 2"
key F1
expect " 2"
key F2
expect "shot went"
key F3
expect "Bag Of Clubs"
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int shot = r.find("say2 \" shot went ");
    ASSERT_GT(shot, 0) << r.dump();
    std::string report = r.lines[size_t(shot)].substr(r.lines[size_t(shot)].find(' ') + 1);
    int f1 = r.find("key 112", shot);
    int prompt = nextSpoken(r, f1);
    EXPECT_EQ(prompt, r.find("say2 \"" + kPrompt + " \"", f1)) << r.dump();
    EXPECT_EQ(nextSpoken(r, prompt + 1), r.find("say2 \" 2\"", prompt));
    int f2 = r.find("key 113", shot);
    EXPECT_EQ(nextSpoken(r, f2), r.find(report, f2)) << "the same report again\n" << r.dump();
    EXPECT_EQ(r.count(report), 2);
    EXPECT_EQ(r.count(kDescription), 1) << "F2 in play is not the description";
    int f3 = r.find("key 114", shot);
    EXPECT_EQ(nextSpoken(r, f3), r.find(kBag, f3));
}

TEST(InPlayKeys, F1AtTheWoodOrIronQuestionRepeatsThePromptAndTheQuestionStays) {
    auto r = runBinary(std::string(kToTheTee) + R"(key 5
expect " iron "
key F1
expect " 1"
key Enter
expect-sound golf16
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int f1 = r.find("key 112");
    int prompt = nextSpoken(r, f1);
    EXPECT_EQ(prompt, r.find("say2 \"" + kPrompt + " \"", f1)) << r.dump();
    // Enter still answers the question with the offered iron: the ticks
    // of the swing come, and nothing was refused.
    EXPECT_GT(r.find("play golf16", prompt), prompt) << r.dump();
    EXPECT_FALSE(r.has("A-choice"));
    EXPECT_EQ(countBetween(r, "say2 \" select \"", r.find("Select Your Club"), int(r.lines.size())), 1)
        << "the question is not asked again";
}

TEST(InPlayKeys, StopKeysHushALongReportAndNothingFollows) {
    auto r = runBinary(std::string(kToTheTee) + R"(key F2 Ctrl
wait 3
key F2 F8 Alt Pause ScrollLock
wait 3
key F1
expect "Wedge. "
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int ctrl = r.find("key 17");
    int describe = r.find(kDescription, r.find("key 113"));
    ASSERT_GT(describe, 0) << r.dump();
    ASSERT_GT(ctrl, describe) << "Ctrl comes while the description is spoken\n" << r.dump();
    EXPECT_TRUE(hushedAfter(r, ctrl)) << r.dump();
    int f1 = r.find("key 112", ctrl);
    ASSERT_GT(f1, ctrl);
    // Between the stop keys and F1 the game waits at the same prompt: it
    // speaks nothing, names no key and every stop key hushes.
    int second = r.find("key 113", ctrl);
    EXPECT_EQ(countBetween(r, "say", ctrl, second), 0) << r.dump();
    EXPECT_EQ(countBetween(r, "say", r.find("key 119", second), f1), 0) << r.dump();
    for (const char* k : {"key 119", "key 18", "key 19", "key 145"}) {
        int at = r.find(k, second);
        ASSERT_GT(at, second) << k;
        EXPECT_TRUE(hushedAfter(r, at)) << k;
    }
    EXPECT_EQ(nextSpoken(r, f1), r.find("say2 \"" + kPrompt + " \"", f1));
}

TEST(InPlayKeys, CSilencesCrowdAndAmbienceAndBringsTheCrowdBack) {
    auto r = runBinary(std::string(kToTheTee) + R"(key C
wait 12
key Num3
wait 12
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int off = r.find("key 67"), on = r.find("key 99");
    ASSERT_GT(off, 0) << r.dump();
    // The key is named, and the sounds stop.
    EXPECT_EQ(nextSpoken(r, off), r.find("say2 \"c\"", off));
    EXPECT_GT(r.find("stop golf10", off), off);
    EXPECT_LT(r.find("stop golf10", off), on);
    // No ambient sound starts while it is off; the crowd and then the
    // ambience come back with numeric pad 3, which is c too.
    EXPECT_EQ(countBetween(r, "play amb", off, on), 0) << r.dump();
    EXPECT_EQ(nextSpoken(r, on), r.find("say2 \"c\"", on));
    int crowd = r.find("play golf10", on);
    EXPECT_GT(crowd, on) << r.dump();
    EXPECT_GT(r.find("play amb", crowd), crowd) << r.dump();
    EXPECT_FALSE(r.has("A-choice")) << "c is no answer to the prompt";
}

TEST(InPlayKeys, CStopsTheWaterAndBringsBackOnlyTheCrowd) {
    // Course 2 has water on both sides of its first hole.
    auto r = runInProcess("expect \"next to the green\"\nkey C\nwait 1\nkey C\nwait 1\nkey Space\n", [] {
        inplay::freshRound(2);
        play::starthole();
        play::keywait();
        EXPECT_EQ(sound::bk.cowtog, 0);
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    int off = r.find("key 67"), on = r.find("key 67", off + 1);
    ASSERT_GT(on, off) << r.dump();
    EXPECT_EQ(countBetween(r, "stop golf31", off, on), 2) << r.dump();
    EXPECT_GT(r.find("play golf10", on), on);
    EXPECT_EQ(r.find("play golf31", on), -1) << "the water waits for the next hole";
}

TEST(InPlayKeys, KTurnsKeyNamesOffAndOnAndIsNeverCutShort) {
    auto r = runBinary(std::string(kToTheTee) + R"(key K
expect " key toggle off "
key X
expect " please try again. "
expect "Wedge."
key NumPlus
expect " key toggle on "
key X
expect " please try again. "
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int off = r.find("key 75");
    EXPECT_EQ(nextSpoken(r, off), r.find("say \" key toggle off \"", off)) << "said in full, waiting\n" << r.dump();
    EXPECT_FALSE(r.has("say2 \"k\"") || r.has("say \"k\""));
    int first = r.find("key 88"), plus = r.find("key 107"), second = r.find("key 88", plus);
    EXPECT_EQ(countBetween(r, "say \"x\"", first, plus), 0) << "no key name while off";
    EXPECT_EQ(nextSpoken(r, plus), r.find("say \" key toggle on \"", plus));
    EXPECT_EQ(nextSpoken(r, second), r.find("say \"x\"", second)) << r.dump();
}

// ---- the green and the hole's end, in this process

struct Outcome {
    std::string g, g2;
    double keynum = 0;
};

// One key wait at the given stage of hole 1 of course 1.
simtest::Result waitAt(int stage, const std::string& script, Outcome& out, double remain = 12) {
    return runInProcess(script, [&] {
        inplay::freshRound(1);
        play::starthole();
        play::rs.f1state = stage;
        play::rs.savestate = 2;
        play::rs.remain = remain;
        play::rs.stk = 2;
        play::keywait();
        out = {input::ks.g, input::ks.g2, play::rs.keynum};
    });
}

TEST(InPlayKeys, OnTheGreenF1IsThePuttPromptAndF2TheDistance) {
    Outcome out;
    auto r = waitAt(3, R"(expect "next to the green"
key F1
expect "ready to putt"
key F2
expect "from the pin"
key Down
)", out);
    ASSERT_EQ(r.code, 0) << r.dump();
    int f1 = r.find("key 112"), f2 = r.find("key 113"), down = r.find("key 40");
    EXPECT_EQ(nextSpoken(r, f1),
              r.find("say2 \" Press any key when you are ready to putt, press the space bar to putt. \"", f1))
        << r.dump();
    EXPECT_EQ(nextSpoken(r, f2), r.find("say2 \" You are on the green 12 feet from the pin. \"", f2)) << r.dump();
    // Down goes on to the putt, unnamed.
    EXPECT_EQ(out.g, "40");
    EXPECT_EQ(nextSpoken(r, down), -1) << r.dump();
}

TEST(InPlayKeys, AtTheHoleEndF1IsTheContinuePromptAndALetterGoesOnNamed) {
    Outcome out;
    auto r = waitAt(4, R"(expect "next to the green"
key F1
expect "press any key"
key F2
wait 1
key Q
)", out);
    ASSERT_EQ(r.code, 0) << r.dump();
    int f1 = r.find("key 112"), f2 = r.find("key 113"), q = r.find("key 81");
    EXPECT_EQ(nextSpoken(r, f1), r.find("say2 \" press any key to continue \"", f1)) << r.dump();
    // F2 is no key for the prompt: the wait goes on to the letter.
    EXPECT_GT(q, f2);
    EXPECT_EQ(countBetween(r, "say \"q\"", f2, q), 0);
    EXPECT_EQ(nextSpoken(r, q), r.find("say \"q\"", q)) << "the letter is named, waiting\n" << r.dump();
    EXPECT_EQ(out.g, "81");
    EXPECT_EQ(out.g2, "q");
    EXPECT_EQ(out.keynum, 81);
}

TEST(InPlayKeys, UpAtTheHoleEndGoesOnUnnamedAndKeepsKeynum) {
    Outcome out;
    auto r = waitAt(4, "expect \"next to the green\"\nkey F3\nexpect \"Bag Of\"\nkey Up\n", out);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(out.g, "38");
    EXPECT_EQ(out.keynum, 114) << "the arrows leave keynum as the last command set it";
    EXPECT_EQ(nextSpoken(r, r.find("key 38")), -1) << r.dump();
}

TEST(InPlayKeys, SettingsKeysEndWithThePromptOfTheStage) {
    Outcome out;
    auto r = runInProcess("expect \"next to the green\"\nkey F9\nexpect \"putt\"\nkey Space\n", [&] {
        inplay::freshRound(1);
        input::fkeys.adjrate = [] { voice::say(" rate routine "); };
        play::starthole();
        play::rs.f1state = 3;
        play::rs.savestate = 2;
        play::keywait();
        out = {input::ks.g, input::ks.g2, play::rs.keynum};
        input::fkeys = input::FKeyRoutines{};
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    int routine = r.find("say \" rate routine \"");
    ASSERT_GT(routine, 0) << r.dump();
    EXPECT_EQ(nextSpoken(r, routine + 1),
              r.find("say2 \" Press any key when you are ready to putt, press the space bar to putt. \"", routine));
    EXPECT_EQ(out.g, "32");
}

TEST(InPlayKeys, NotAChoiceStopsAtAKeyAndIsSilentForF1) {
    auto r = runInProcess("wait 0.3\nkey Z\nexpect \"A-choice\"\nkey Q\nend\n", [] {
        inplay::freshRound(1);
        input::ks.g = "112";
        play::notchoice();
        EXPECT_EQ(input::ks.g, "") << "the F1 a menu leaves is spent";
        input::getkey();
        play::notchoice();
        EXPECT_EQ(input::ks.g, "81");
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(r.count("say2"), 1) << r.dump();
    EXPECT_FALSE(r.has("play golf19"));
    EXPECT_FALSE(r.has("please try again"));
    EXPECT_TRUE(hushedAfter(r, r.find("key 81"))) << "the key stops the voice";
}

}  // namespace
