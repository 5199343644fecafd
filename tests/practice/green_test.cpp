// The putting green as a player walks it, on the simulated platform in this
// process: a ball holed in two putts and what F1 and F2 say around it, the
// ball putted without limit, and a whole visit from the greeting to a new
// ball and away.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <istream>
#include <optional>
#include <streambuf>
#include <string>
#include <vector>

#include "input/keys.h"
#include "practice/green.h"
#include "practice/practice.h"
#include "practice/state.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"
#include "practice/practice_support.h"

using practicetest::numberAfter;
using practicetest::spokenAfter;
using simtest::runInProcess;

namespace {

std::string prompt(const std::string& distance) {
    return "say2 \" You are on the green " + distance +
           " from the pin.  Press any key when you are ready to putt, press the space bar to putt. \"";
}

const std::string kReady = "expect \"ready to putt\"\n";

// One putt: the key that starts it and the indicator caught at percent.
std::string putt(int percent) { return "key Space\nat golf6 " + std::to_string(percent) + " Space\n"; }

struct Ball {
    simtest::Result r;
    bool goon = false;   // what playball gave back
    bool left = false;   // Escape left the green
    double feet = -1;    // where the ball was left
};

// A ball feet from the pin, played out on the green with the crowd off.
Ball ball(double feet, const std::string& script) {
    Ball b;
    b.r = runInProcess(script, [&] {
        roundtest::freshGame();
        sound::bk.cowtog = 1;
        practice::pr.practicefeet = feet;
        try {
            b.goon = practice::playball();
        } catch (const practice::LeaveArea&) {
            b.left = true;
        }
        b.feet = practice::pr.practicefeet;
    });
    return b;
}

TEST(PracticeGreen, ABallHoledInTwoPuttsWithF2BeforeBetweenAndAfter) {
    // From 3 feet a reading of 1 runs 0.8 feet and leaves the ball at rest
    // at 2; a reading of 2 runs 1.6 and drops it.
    auto b = ball(3, kReady + "key F2\nexpect \"from the pin \"\n" + putt(1) +
                         "expect \"putt went\"\nexpect \"ready to putt\"\nkey F2\nexpect \"from the pin \"\n" + putt(2) +
                         "expect \"continue, or e\"\nkey F2\nexpect \"pg\"\nkey E\nend\n");
    ASSERT_EQ(b.r.code, 0) << b.r.dump();
    const auto& r = b.r;
    EXPECT_FALSE(b.goon) << "e leaves the green";
    EXPECT_EQ(b.feet, 0);

    // Before the first putt F2 gives the distance alone.
    int first = r.find(prompt("3 feet"));
    int f2 = r.find("key 113", first);
    ASSERT_GE(first, 0) << r.dump();
    ASSERT_GT(f2, first);
    EXPECT_EQ(spokenAfter(r, f2), "say2 \" you are on the green 3 feet  from the pin \"");
    EXPECT_EQ(r.find("putt went", first), r.find("say2 \" putt went 1 foot\"")) << "no putt told before the first";

    // The miss: three ticks, the indicator, the stroke, how far it went,
    // and the ball at 2 feet spoken as "Too".
    int one = r.find("play golf6 ");
    ASSERT_GT(one, f2);
    EXPECT_EQ(r.count("play golf16 "), 6);
    int stroke = r.find("play golf17 ", one);
    int went = r.find("say2 \" putt went 1 foot\"", stroke);
    ASSERT_GT(stroke, one);
    ASSERT_GT(went, stroke) << r.dump();
    EXPECT_EQ(spokenAfter(r, went), prompt("Too feet"));

    // After the miss F2 tells the putt and the distance in digits.
    int f2b = r.find("key 113", went);
    ASSERT_GT(f2b, went);
    EXPECT_EQ(spokenAfter(r, f2b), "say2 \" putt went 1 foot \"");
    EXPECT_EQ(spokenAfter(r, r.find("say2 \" putt went 1 foot \"", f2b)), "say2 \" you are on the green 2 feet  from the pin \"");

    // The drop, the prompt to go on, and F2 after it.
    int two = r.find("play golf6 ", f2b);
    int sink = r.find("play golf4 ", two);
    ASSERT_GT(sink, two) << r.dump();
    EXPECT_EQ(spokenAfter(r, sink), "say2 \" Press any key to continue, or e to exit. \"");
    EXPECT_EQ(spokenAfter(r, r.find("key 113", sink)), "say \"pg\"");
    EXPECT_EQ(r.count("putt went"), 2) << "nothing more is told of the putt that dropped";

    // No crowd, no groan, no reaction.
    EXPECT_EQ(practicetest::crowdSounds(r), 0) << r.dump();
}

TEST(PracticeGreen, OneFootAndPastThePin) {
    // A ball at 1 foot is spoken with " foot".
    auto near = ball(1, "expect \"ready to putt\"\nkey Escape\nend\n");
    ASSERT_EQ(near.r.code, 0) << near.r.dump();
    EXPECT_TRUE(near.left);
    EXPECT_TRUE(near.r.has(prompt("1 foot")));

    // From 3 feet a reading of 6 runs 4.8 feet: 1.8 past, at rest at 2.
    auto past = ball(3, kReady + putt(6) + "expect \"ready to putt\"\nkey Escape\nend\n");
    ASSERT_EQ(past.r.code, 0) << past.r.dump();
    EXPECT_EQ(past.feet, 2);
    int went = past.r.find("say2 \" putt went 5 feet\"");
    ASSERT_GE(went, 0) << past.r.dump();
    EXPECT_EQ(spokenAfter(past.r, went), prompt("Too feet"));
}

TEST(PracticeGreen, NoPuttIsGivenHoweverManyAreTaken) {
    // From 40 feet each weakest putt runs 0.8 feet and the ball rests a
    // foot nearer; eight of them and it is still out.
    std::string script;
    for (int i = 0; i < 8; ++i) script += kReady + putt(1) + "expect \"putt went 1 foot\"\n";
    auto b = ball(40, script + "expect \"ready to putt\"\nkey Escape\nend\n");
    ASSERT_EQ(b.r.code, 0) << b.r.dump();
    EXPECT_EQ(b.feet, 32);
    EXPECT_EQ(b.r.count("play golf4 "), 0) << b.r.dump();
    EXPECT_TRUE(b.r.has(prompt("32 feet")));
}

TEST(PracticeGreen, TheF1TextsAndAKeyThatCutsThem) {
    // Whole while no key comes.
    auto whole = ball(3, kReady + "key F1\nexpect \"wrtp\"\n" + putt(2) +
                             "expect \"continue, or e\"\nkey F1\nexpect \"exit\"\nkey E\nend\n");
    ASSERT_EQ(whole.r.code, 0) << whole.r.dump();
    for (int at : whole.r.sequence({"key 112", "say \"ssb\"", "say \"pak\"", "say \"wrtp\"", "play golf16 ", "play golf4 ",
                                    "key 112", "say \"pak\"", "say \"or\"", "say \"e2\"", "say \"exit\""}))
        EXPECT_GE(at, 0) << whole.r.dump();

    // A key during "ssb" cuts the rest, and the wait takes it: Space starts
    // the putt.
    auto cut = ball(3, "expect \"ready to putt\"\nkey F1 Space\nat golf6 2 Space\nexpect \"continue, or e\"\n"
                       "key F1 E\nend\n");
    ASSERT_EQ(cut.r.code, 0) << cut.r.dump();
    const auto& r = cut.r;
    int ssb = r.find("say \"ssb\"");
    int space = r.find("key 32", ssb);
    ASSERT_GE(ssb, 0) << r.dump();
    ASSERT_GT(space, ssb);
    EXPECT_EQ(r.count("say \"pak\""), 1) << "only the one of the holed ball";
    EXPECT_LT(space, r.find("say \"pak\""));
    EXPECT_GT(r.find("play golf16 ", space), space) << "the countdown follows the key";
    // After the drop: a key during "pak" cuts "or" and "e2"; e leaves.
    EXPECT_EQ(r.count("say \"or\""), 0) << r.dump();
    EXPECT_FALSE(cut.goon);
}

using simtest::Feed;

// The feet of the last ball told before the end of the transcript.
int lastBall(const simtest::Result& r) {
    int at = -1;
    for (int i = r.find(" You are on the green "); i >= 0; i = r.find(" You are on the green ", i + 1)) at = i;
    if (at < 0) return -1;
    if (r.lines[size_t(at)].find("green Too feet") != std::string::npos) return 2;
    return numberAfter(r, at, "You are on the green ");
}

TEST(PracticeGreen, AVisitHolesABallGetsANewOneAndLeaves) {
    for (int cow : {0, 1}) {
        SCOPED_TRACE(cow);
        simtest::Result r;
        std::vector<int> balls;
        int cowAfter = -1;
        bool returned = false;
        int step = 0;
        // Each ball is holed with the one putt its distance needs, then
        // another ball, then Escape at its prompt.
        Feed feed([&]() -> std::optional<std::string> {
            switch (step++) {
                case 0: return "expect \"Puttting-Practice-Green\"";
                case 1: return "expect \"ready to putt\"";
                case 2: {
                    balls.push_back(lastBall(r));
                    int percent = std::clamp(int(std::lround(balls.back() / 0.8)), 1, 50);
                    return "key Space\nat golf6 " + std::to_string(percent) + " Space";
                }
                case 3: return "expect \"continue, or e\"";
                case 4: return "key Space";
                case 5: return "expect \"ready to putt\"";
                case 6: balls.push_back(lastBall(r)); return "key Escape";
                default: return std::nullopt;
            }
        });
        std::istream in(&feed);
        simtest::runInProcessLive(in, [&] {
            roundtest::freshGame();
            sound::bk.cowtog = cow;
            practice::puttting();
            returned = true;
            cowAfter = sound::bk.cowtog;
        }, r);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_TRUE(returned);
        EXPECT_EQ(cowAfter, cow);
        ASSERT_EQ(balls.size(), 2u) << r.dump();
        for (int feet : balls) {
            EXPECT_GE(feet, 1);
            EXPECT_LE(feet, 40);
        }
        EXPECT_EQ(r.find("say2", 0), r.find("say2 \" Puttting-Practice-Green \""));
        EXPECT_EQ(r.count("play golf4 "), 1) << r.dump();
        EXPECT_EQ(r.count("putt went"), 0);
        EXPECT_EQ(practicetest::crowdSounds(r), 0) << r.dump();
        int sink = r.find("play golf4 ");
        EXPECT_GT(r.find(" You are on the green ", sink), sink) << "a new ball after the one holed";
    }
}

TEST(PracticeGreen, ABadIndicatorEndsTheGreenWithTheCrowdOff) {
    std::string dir = practicetest::gameWithout("golf6.wav");
    bool returned = false;
    auto r = runInProcess("expect \"ready to putt\"\nkey Space\nexpect \"putt power wave file\"\nend\n", [&] {
        roundtest::freshGame();
        practice::puttting();
        returned = true;
    }, "", dir);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(returned);
    EXPECT_EQ(sound::bk.fq, 13);
    EXPECT_EQ(sound::bk.cowtog, 1);
    EXPECT_EQ(r.count("play golf6 "), 0);
    std::filesystem::remove_all(dir);
}

}  // namespace
