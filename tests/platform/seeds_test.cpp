// Seeds: the script's seed lines that stand in for the clock, the two
// random streams, and the key names a journal writes.
#include <gtest/gtest.h>

#include <regex>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "platform/script_words.h"
#include "platform/sim/script.h"
#include "sim_harness.h"

using simtest::runBinary;
using simtest::runInProcess;

namespace {

TEST(ScriptSeeds, ASeedLineGoesToTheNextDrawFromTheClock) {
    std::vector<std::uint64_t> drawn;
    auto r = runInProcess("seed 42\nkey A\nseed 7\nwait 1\nseed 18446744073709551615\nend\n", [&] {
        auto& os = platform::os();
        input::ks = input::KeyState{};
        os.setKeyHandler([](int c) { input::Form_KeyDown(c); });
        drawn.push_back(os.clockSeed());   // before the first turn: the first line
        drawn.push_back(os.clockSeed());   // the key stands between: the clock
        while (input::ks.g.empty()) os.yield();
        drawn.push_back(os.clockSeed());   // the key is pressed: the seed behind it
        for (int i = 0; i < 500; ++i) os.yield();
        drawn.push_back(os.clockSeed());   // in the middle of the wait: the clock
        for (int i = 0; i < 1000; ++i) os.yield();
        drawn.push_back(os.clockSeed());   // the line after the wait was reached
        drawn.push_back(os.clockSeed());
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    ASSERT_EQ(drawn.size(), 6u);
    EXPECT_EQ(drawn[0], 42u);
    EXPECT_EQ(drawn[1], 0u);
    EXPECT_EQ(drawn[2], 7u);
    EXPECT_EQ(drawn[3], 101u + 500u);
    EXPECT_EQ(drawn[4], 18446744073709551615ull);
    EXPECT_GT(drawn[5], 1000u) << "each seed line serves one draw";
    EXPECT_TRUE(r.has("done 1"));
    EXPECT_TRUE(r.has("done 3"));
    EXPECT_TRUE(r.has("done 5"));
}

TEST(ScriptSeeds, ASeedNeedsOneWholeNumber) {
    for (const char* bad : {"seed", "seed -1", "seed 1.5", "seed x", "seed 1 2", "seed 18446744073709551616"}) {
        std::string err;
        EXPECT_FALSE(sim::parseLine(bad, 4, err)) << bad;
        EXPECT_NE(err.find("line 4"), std::string::npos) << bad;
    }
    std::string err;
    auto c = sim::parseLine("seed 0012  # from the journal", 1, err);
    ASSERT_TRUE(c) << err;
    EXPECT_EQ(c->op, sim::Op::Seed);
    EXPECT_EQ(c->seed, 12u);
    EXPECT_EQ(runBinary("seed many\n").code, 2);
}

// The first shot's report, after a seed and an idle of `idle` seconds at
// the club prompt.
std::string firstReport(int idle) {
    std::string script = std::string(simtest::kToTheTee) + "seed 1234\nexpect \"Select Your Club\"\n";
    if (idle > 0) script += "wait " + std::to_string(idle) + "\n";
    script += "key 1\nexpect \" wood \"\nkey Enter\nat golf7 31 Space\nexpect \"shot went\"\n";
    auto r = runBinary(script);
    EXPECT_EQ(r.code, 0) << r.dump();
    int at = r.find("shot went");
    return at < 0 ? "" : r.lines[size_t(at)].substr(r.lines[size_t(at)].find(' '));
}

TEST(RandomStreams, IdlingWithTheAmbienceLeavesTheShotAlone) {
    std::string quick = firstReport(0);
    ASSERT_FALSE(quick.empty());
    // Sixty seconds bring ambient sounds, each with its own draws.
    EXPECT_EQ(firstReport(60), quick);
}

TEST(RandomStreams, AmbientDrawsLeaveThePlayDrawsAlone) {
    platform::reseed(5);
    double a = platform::U(), b = platform::U();
    platform::reseed(5);
    for (int i = 0; i < 100; ++i) platform::ambientU();
    EXPECT_EQ(platform::U(), a);
    EXPECT_EQ(platform::U(), b);
    platform::reseed(5);
    EXPECT_NE(platform::ambientU(), a);
}

TEST(RandomStreams, SeedsAMillisecondApartDoNotShareTheirDraws) {
    // Two seeds in a row must not give one sequence shifted by a draw.
    platform::reseed(1000);
    platform::U();
    double second = platform::U();
    platform::reseed(1001);
    EXPECT_NE(platform::U(), second);
    for (std::uint64_t s = 0; s < 50; ++s) {
        platform::reseed(s);
        double u = platform::U();
        EXPECT_GE(u, 0.0);
        EXPECT_LT(u, 1.0);
    }
}

TEST(ScriptWords, EveryKeyNameReadsBackAsItsCode) {
    for (int code = 0; code < 256; ++code)
        EXPECT_EQ(platform::script::keyCode(platform::script::keyName(code)), code) << code;
    EXPECT_EQ(platform::script::keyName(13), "Enter");
    EXPECT_EQ(platform::script::keyName(74), "J");
    EXPECT_EQ(platform::script::keyName(121), "F10");
    EXPECT_EQ(platform::script::keyName(99), "Num3");
    EXPECT_EQ(platform::script::keyName(190), "#190");
}

}  // namespace
