// greenlark-sim against scripts and runs that push its limits: waits past
// the timeout, long typing, control characters, relative folders, long runs.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

#include "platform/platform.h"
#include "platform/sim/runner.h"
#include "platform/sim/script.h"
#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"
#include "sim_harness.h"

using simtest::runBinary;

namespace {

// greenlark-sim reading the script from standard input; its exit code.
int runFromStdin(const std::string& script, const std::string& options) {
    std::string cmd = "printf '%s' '" + script + "' | '" + GREENLARK_SIM + "' " + options + " - >/dev/null 2>&1";
    int status = std::system(cmd.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(RunnerLimits, AWaitPastTheTimeoutIsAScriptItCannotRead) {
    auto longer = runBinary("wait 3\n", {"--timeout", "2"});
    EXPECT_EQ(longer.code, 2) << longer.dump();
    EXPECT_NE(longer.err.find("line 1"), std::string::npos) << longer.err;
    EXPECT_EQ(runBinary("key A\nwait inf\n", {"--timeout", "2"}).code, 2);
    EXPECT_EQ(runBinary("wait 1e308\n").code, 2);
    EXPECT_EQ(runFromStdin("wait 5\\n", "--timeout 2"), 2);
    // A wait as long as the timeout is still a wait.
    auto equal = runBinary("wait 2\n", {"--timeout", "2"});
    EXPECT_EQ(equal.code, 0) << equal.dump();
    EXPECT_TRUE(equal.has("done 1"));
}

TEST(RunnerLimits, ALongTypeCountsItsTimeoutFromTheLastKey) {
    // Forty letters take four virtual seconds, twice the timeout.
    auto r = simtest::runInProcess("expect \"Please enter\"\ntype abcdefghijabcdefghijabcdefghijabcdefghij\nkey Enter\n"
                                   "expect \"correct for your name\"\n",
                                   simtest::namePrompt, "", GREENLARK_GAME_DIR, 2);
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(r.has(" abcdefghijabcdefghijabcdefghijabcdefghij  correct for your name"));
    // A step that waits on after its last key still runs out.
    auto stuck = runBinary("key A B\nexpect \"never said\"\n", {"--timeout", "2"});
    EXPECT_EQ(stuck.code, 1);
    EXPECT_NE(stuck.err.find("line 2"), std::string::npos) << stuck.err;
}

TEST(RunnerLimits, ControlCharactersAreEscapedAndReadBack) {
    EXPECT_EQ(sim::quote(std::string("a\0b\x01\t\x1f ~\r\n", 10)), "\"a\\x00b\\x01\\x09\\x1F ~\\r\\n\"");
    std::string err;
    auto e = sim::parseLine("expect \"a\\x00b\\x4a\\x4\"", 1, err);
    ASSERT_TRUE(e) << err;
    EXPECT_EQ(e->text, std::string("a\0bJx4", 6));

    // Key 0 in the name prompt names its character, a NUL: the line stays
    // whole and an expect can wait for it.
    auto r = simtest::runInProcess("expect \"Please enter\"\nkey #0\nexpect \"Please use\"\nkey #9\nexpect \"\\x09\"\n",
                                   simtest::namePrompt);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("say2 \"\\x00\"")) << r.dump();
    EXPECT_TRUE(r.has("say2 \"\\x09\"")) << r.dump();
    EXPECT_TRUE(r.has("done 5"));
    for (const auto& line : r.lines)
        for (char c : line) EXPECT_GE(static_cast<unsigned char>(c), 32) << line;
}

TEST(RunnerLimits, ARelativeGameFolderFindsTheSounds) {
    std::string rel = std::filesystem::relative(GREENLARK_GAME_DIR).string();
    ASSERT_FALSE(rel.empty());
    ASSERT_NE(rel[0], '/');
    auto r = runBinary("expect-sound golf0\n", {"--game", rel, "--timeout", "5"});
    EXPECT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("play golf0 #")) << r.dump();
}

// A program that speaks the same few texts over and over, one a turn.
std::vector<std::string>* lines = nullptr;
void keep(const std::string& line) { lines->push_back(line); }

TEST(RunnerLimits, ALongRunKeepsOnlyWhatAnExpectCanStillMatch) {
    std::vector<std::string> out;
    lines = &out;
    sim::setSink(keep);
    std::istringstream script("wait 10\nexpect \"tick 3\"\nexpect \"bye\"\n");
    sim::Runner runner(script, false, 900);
    std::string error;
    ASSERT_TRUE(runner.preload(error)) << error;
    sim::Options o;
    o.game = o.cwd = GREENLARK_GAME_DIR;
    sim::SimPlatform p(o, runner);
    platform::install(&p);
    size_t most = 0;
    int code = -1;
    try {
        for (int i = 0; i < 20000; ++i) {
            p.speak("tick " + std::to_string(i % 5), 1);
            p.yield();
            most = std::max(most, runner.keptEvents());
        }
        p.speak("bye", 1);
        p.log("exit");
        code = runner.finish();
    } catch (const sim::RunnerStop& stop) {
        code = stop.code;
    }
    platform::install(nullptr);
    sim::setSink(nullptr);
    lines = nullptr;
    EXPECT_EQ(code, 0);
    EXPECT_LE(most, 10u);
    // The expect after the wait still takes the first "tick 3" of the wait,
    // at once, and the last expect the text at the end.
    auto at = [&](const std::string& what) {
        for (const auto& l : out)
            if (l.find(what) != std::string::npos) return std::stol(l);
        return -1L;
    };
    EXPECT_EQ(at(" done 2"), at(" done 1"));
    EXPECT_EQ(at(" done 3"), at(" say2 \"bye\""));
}

}  // namespace
