// The contract of greenlark-sim that scripts outside rely on: exit codes and
// their messages, script lines, the transcript's quoting, the timing of
// steps, seeds standing in for the clock, and a long run's memory.
#include <gtest/gtest.h>

#include <sstream>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/script_words.h"
#include "platform/sim/runner.h"
#include "platform/sim/script.h"
#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"
#include "sim_harness.h"

using simtest::runBinary;
using simtest::runInProcess;

namespace {

std::string shell(const std::string& cmd) {
    std::string out;
    char buf[4096];
    FILE* pipe = popen(cmd.c_str(), "r");
    while (pipe && std::fgets(buf, sizeof buf, pipe)) out += buf;
    if (pipe) pclose(pipe);
    return out;
}

TEST(RunnerContract, ExitCodesAndTheLineTheyName) {
    const struct {
        const char* script;
        std::vector<std::string> options;
        int code;
        const char* err;
    } cases[] = {
        {"expect \"Greenlark. version eleven\"\n", {}, 0, ""},
        {"wait 2\n", {"--timeout", "2"}, 0, ""},   // as long as the timeout is still a wait
        {"expect \"never said\"\n", {"--timeout", "2"}, 1, "line 1"},
        {"key A B\nexpect \"never said\"\n", {"--timeout", "2"}, 1, "line 2"},
        {"# none\nexpect \"never said\"\n", {"--voices", "0"}, 1, "line 2: the program ended"},
        {"wait 3\n", {"--timeout", "2"}, 2, "line 1"},
        {"key A\nwait inf\n", {"--timeout", "2"}, 2, "line 2"},
        {"wait 1e308\n", {}, 2, "line 1"},
        {"jump 3\n", {}, 2, "line 1"},
        {"key NoSuchKey\n", {}, 2, "line 1"},
        {"at golf7 fifty Space\n", {}, 2, "line 1"},
        {"seed many\n", {}, 2, "line 1"},
    };
    for (const auto& c : cases) {
        auto r = runBinary(c.script, c.options);
        EXPECT_EQ(r.code, c.code) << c.script << r.dump();
        EXPECT_NE(r.err.find(c.err), std::string::npos) << c.script << r.err;
    }
    // The same from standard input.
    std::string sim = std::string("'") + GREENLARK_SIM + "'";
    EXPECT_NE(shell("printf 'expect \"Greenlark. version eleven\"\\n' | " + sim + " - 2>&1").find("done 1"),
              std::string::npos);
    EXPECT_EQ(shell("printf 'nonsense\\n' | " + sim + " - >/dev/null 2>&1; echo $?"), "2\n");
    EXPECT_EQ(shell("printf 'wait 5\\n' | " + sim + " --timeout 2 - >/dev/null 2>&1; echo $?"), "2\n");
}

TEST(RunnerContract, ScriptLines) {
    for (int code = 0; code < 256; ++code)
        EXPECT_EQ(platform::script::keyCode(platform::script::keyName(code)), code) << code;
    const std::pair<const char*, int> names[] = {{"Enter", 13},   {"ScrollLock", 145}, {"F10", 121}, {"F12", 123},
                                                 {"Num9", 105},    {"NumPlus", 107},    {"Comma", 188},
                                                 {"#190", 190},    {"z", 90},           {"J", 74},
                                                 {"F13", -1},      {"#999", -1}};
    for (auto [name, code] : names) EXPECT_EQ(sim::keyCode(name), code) << name;
    EXPECT_EQ(platform::script::keyName(99), "Num3");
    EXPECT_EQ(platform::script::keyName(190), "#190");

    std::string err;
    auto t = sim::parseLine("type \"Ab 1\"", 1, err);
    ASSERT_TRUE(t);
    EXPECT_EQ(t->keys, (std::vector<int>{16, 65, 66, 32, 49}));
    auto e = sim::parseLine("expect \"a\\x00b\\x4a\\x4 \\\"\"  # the answer", 2, err);
    ASSERT_TRUE(e) << err;
    EXPECT_EQ(e->text, std::string("a\0bJx4 \"", 8));
    EXPECT_FALSE(sim::parseLine("   # only a comment", 3, err));
    EXPECT_TRUE(err.empty());
    EXPECT_EQ(sim::quote(std::string(" a \"b\" \\ \0\x01\t\x1f ~\r\n", 17)),
              "\" a \\\"b\\\" \\\\ \\x00\\x01\\x09\\x1F ~\\r\\n\"");

    for (const char* bad : {"seed", "seed -1", "seed 1.5", "seed x", "seed 1 2", "seed 18446744073709551616"}) {
        EXPECT_FALSE(sim::parseLine(bad, 4, err)) << bad;
        EXPECT_NE(err.find("line 4"), std::string::npos) << bad;
    }
    auto s = sim::parseLine("seed 0012  # from the journal", 1, err);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->op, sim::Op::Seed);
    EXPECT_EQ(s->seed, 12u);
}

// The name prompt answered: keys 100 ms apart from the step's start, a long
// type timed from its last key, control characters kept in the transcript,
// and an expect that sees only what came since the step before.
TEST(RunnerContract, StepsKeysAndTheirTiming) {
    auto r = runInProcess("# a comment\n\nkey A B #67\nkey Enter\nexpect \" abc  correct for your name\"\nkey N\n"
                          "expect \"Please enter\"\ntype abcdefghijabcdefghijabcdefghijabcdefghij\nkey Enter\n"
                          "expect \"correct for your name\"\nkey N\nexpect \"Please enter\"\nkey #0\n"
                          "expect \"Please use\"\nkey #9\nexpect \"\\x09\"\nkey Escape\nend\n",
                          simtest::namePrompt, "", GREENLARK_GAME_DIR, 2);
    ASSERT_EQ(r.code, 0) << r.dump();
    auto at = [&](int i) { return std::stoi(r.lines[size_t(i)]); };
    int a = r.find("key 65"), b = r.find("key 66");
    ASSERT_GE(b, 0) << r.dump();
    EXPECT_EQ(at(a), 101) << "the script starts at the program's first yield";
    EXPECT_EQ(at(b) - at(a), 100);
    EXPECT_GE(r.find("done 3", b), 0);
    EXPECT_TRUE(r.has(" abcdefghijabcdefghijabcdefghijabcdefghij  correct for your name"));
    EXPECT_TRUE(r.has("say2 \"\\x00\""));
    EXPECT_TRUE(r.has("say2 \"\\x09\""));
    EXPECT_GE(r.find("done 18"), r.find("exit"));
    for (const auto& line : r.lines)
        for (char c : line) EXPECT_GE(static_cast<unsigned char>(c), 32) << line;

    auto prompt = [](const std::string& script) {
        return runInProcess(script, simtest::namePrompt, "", GREENLARK_GAME_DIR, 3).code;
    };
    EXPECT_EQ(prompt("wait 1\nexpect \"Please enter\"\n"), 0) << "one step back it can see";
    EXPECT_EQ(prompt("wait 1\nwait 1\nexpect \"Please enter\"\n"), 1) << "two steps back it cannot";
    EXPECT_EQ(prompt("expect \"Please enter\"\nexpect \"Please enter\"\n"), 1) << "a matched event is used up";
}

TEST(RunnerContract, OptionsAndASeedForEachDrawFromTheClock) {
    std::string docs = simtest::tempDir();
    std::vector<std::uint64_t> drawn;
    std::string date, folder;
    double clock = 0;
    int voices = -1;
    auto r = runInProcess("seed 42\nkey A\nseed 7\nwait 1\nseed 18446744073709551615\nend\n", [&] {
        auto& os = platform::os();
        date = os.dateText(), clock = os.timeOfDay(), voices = os.voiceCount(), folder = os.documentsFolder();
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
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(date, "11/22/2026");
    EXPECT_DOUBLE_EQ(clock, 12 * 3600);
    EXPECT_EQ(voices, 3);
    EXPECT_EQ(folder, docs);
    EXPECT_EQ(drawn, (std::vector<std::uint64_t>{42, 0, 7, 601, 18446744073709551615ull, drawn[5]}));
    EXPECT_GT(drawn[5], 1000u) << "each seed line serves one draw";
}

// A program that speaks the same few texts over and over, one a turn.
std::vector<std::string>* lines = nullptr;
void keep(const std::string& line) { lines->push_back(line); }

TEST(RunnerContract, ALongRunKeepsOnlyWhatAnExpectCanStillMatch) {
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
    EXPECT_EQ(code, 0);
    EXPECT_LE(most, 10u);
    // The expect after the wait takes the first "tick 3" of the wait at once.
    auto when = [&](const std::string& what) {
        for (const auto& l : out)
            if (l.find(what) != std::string::npos) return std::stol(l);
        return -1L;
    };
    EXPECT_EQ(when(" done 2"), when(" done 1"));
    EXPECT_EQ(when(" done 3"), when(" say2 \"bye\""));
}

}  // namespace
