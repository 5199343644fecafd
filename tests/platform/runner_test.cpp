// The contract of greenlark-sim: its exit codes, its transcript format and
// the timing of script steps.
#include <gtest/gtest.h>

#include <fstream>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/sim/script.h"
#include "platform/sim/transcript.h"
#include "sim_harness.h"
#include "voice/speech.h"
#include "voice/state.h"

using simtest::runBinary;
using simtest::runInProcess;

namespace {

TEST(RunnerContract, ExitCodes) {
    EXPECT_EQ(runBinary("expect \"Greenlark. version eleven\"\n").code, 0);
    auto timeout = runBinary("expect \"never said\"\n", {"--timeout", "2"});
    EXPECT_EQ(timeout.code, 1);
    EXPECT_NE(timeout.err.find("line 1"), std::string::npos) << timeout.err;
    // With no voices the program ends at once.
    auto ended = runBinary("# none\nexpect \"never said\"\n", {"--voices", "0"});
    EXPECT_EQ(ended.code, 1);
    EXPECT_NE(ended.err.find("line 2: the program ended"), std::string::npos) << ended.err;
    EXPECT_EQ(runBinary("jump 3\n").code, 2);
    EXPECT_EQ(runBinary("key NoSuchKey\n").code, 2);
    EXPECT_EQ(runBinary("at golf7 fifty Space\n").code, 2);
}

TEST(RunnerContract, DoneLinesAndKeyRhythm) {
    auto r = runInProcess("# a comment\n\nkey A B #67 #27\nend\n", simtest::namePrompt);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("key 67"));
    EXPECT_TRUE(r.has("key 27"));
    // Keys come 100 ms apart, the first 100 ms after the step began.
    auto at = [&](int i) { return std::stoi(r.lines[size_t(i)].substr(0, r.lines[size_t(i)].find(' '))); };
    int a = r.find("key 65"), b = r.find("key 66");
    ASSERT_GE(a, 0);
    ASSERT_GE(b, 0);
    EXPECT_EQ(at(a), 101) << "the script starts at the program's first yield";
    EXPECT_EQ(at(b) - at(a), 100);
    EXPECT_GE(r.find("done 3", b), 0);
    EXPECT_GE(r.find("done 4"), r.find("exit"));
}

TEST(RunnerContract, ExpectCountsOnlyEventsFromThePreviousStepOn) {
    // The prompt was said before "wait 1" began and that step is two steps
    // back, so the expect cannot see it.
    auto prompt = [](const std::string& script) {
        return runInProcess(script, simtest::namePrompt, "", GREENLARK_GAME_DIR, 3);
    };
    auto r = prompt("wait 1\nwait 1\nexpect \"Please enter\"\n");
    EXPECT_EQ(r.code, 1) << r.dump();
    // One step back it can.
    EXPECT_EQ(prompt("wait 1\nexpect \"Please enter\"\n").code, 0);
    // A matched event is used up.
    auto twice = prompt("expect \"Please enter\"\nexpect \"Please enter\"\n");
    EXPECT_EQ(twice.code, 1);
}

TEST(RunnerContract, OptionsReachTheProgram) {
    std::string docs = simtest::tempDir();
    std::string date, name;
    double clock = 0;
    int voices = -1;
    auto r = runInProcess("end\n", [&] {
        auto& os = platform::os();
        date = os.dateText();
        clock = os.timeOfDay();
        voices = os.voiceCount();
        name = os.documentsFolder();
    }, docs);
    ASSERT_EQ(r.code, 0);
    EXPECT_EQ(date, "11/22/2026");
    EXPECT_DOUBLE_EQ(clock, 12 * 3600);
    EXPECT_EQ(voices, 3);
    EXPECT_EQ(name, docs);
}

TEST(Transcript, QuotesEscapeOnlyWhatTheyMust) {
    EXPECT_EQ(sim::quote(" a \"b\" \\ c\r\n "), "\" a \\\"b\\\" \\\\ c\\r\\n \"");
}

TEST(Script, KeyNames) {
    EXPECT_EQ(sim::keyCode("Enter"), 13);
    EXPECT_EQ(sim::keyCode("ScrollLock"), 145);
    EXPECT_EQ(sim::keyCode("F10"), 121);
    EXPECT_EQ(sim::keyCode("F12"), 123);
    EXPECT_EQ(sim::keyCode("Num9"), 105);
    EXPECT_EQ(sim::keyCode("NumPlus"), 107);
    EXPECT_EQ(sim::keyCode("NumPoint"), 110);
    EXPECT_EQ(sim::keyCode("Comma"), 188);
    EXPECT_EQ(sim::keyCode("#190"), 190);
    EXPECT_EQ(sim::keyCode("z"), 90);
    EXPECT_EQ(sim::keyCode("F13"), -1);
    EXPECT_EQ(sim::keyCode("#999"), -1);
}

TEST(Script, TypedTextAndQuotedBlanks) {
    std::string err;
    auto t = sim::parseLine("type \"Ab 1\"", 1, err);
    ASSERT_TRUE(t);
    EXPECT_EQ(t->keys, (std::vector<int>{16, 65, 66, 32, 49}));
    auto e = sim::parseLine("expect \" yes \"  # the answer", 2, err);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->text, " yes ");
    EXPECT_FALSE(sim::parseLine("   # only a comment", 3, err));
    EXPECT_TRUE(err.empty());
}

TEST(SimSpeech, TimingFollowsLengthAndRate) {
    std::uint32_t t0 = 0, t1 = 0, t2 = 0;
    int during = 0, after = 0;
    auto r = runInProcess("end\n", [&] {
        auto& os = platform::os();
        t0 = os.tick();
        voice::say("0123456789");   // 600 ms at rate 0
        t1 = os.tick();
        os.setRate(10);
        voice::say2("0123456789");
        during = os.runningState();
        input::dy(0.3);
        after = os.runningState();
        t2 = os.tick();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(t1 - t0, 600u);
    EXPECT_EQ(during, 2);
    EXPECT_EQ(after, 0) << "600 x 1.1^-10 is about 231 ms";
    EXPECT_GT(t2, t1);
}

// A 16-bit mono wave of the given length at 1000 frames a second.
std::string writeWave(const std::string& dir, const std::string& stem, int frames) {
    std::string data(size_t(frames) * 2, '\0');
    auto le = [](unsigned v, int n) {
        std::string s;
        for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xFF);
        return s;
    };
    std::string h = "RIFF" + le(unsigned(36 + data.size()), 4) + "WAVEfmt " + le(16, 4) + le(1, 2) + le(1, 2) +
                    le(1000, 4) + le(2000, 4) + le(2, 2) + le(16, 2) + "data" + le(unsigned(data.size()), 4);
    std::ofstream(dir + "/" + stem + ".wav", std::ios::binary) << h << data;
    return dir;
}

TEST(SimSound, CursorStatusAndTheAtStep) {
    std::string game = writeWave(simtest::tempDir(), "tone", 1000);   // one second
    long cursor = -1;
    int statusDuring = 0, statusAfter = -1;
    auto r = runInProcess("at tone 50 Space\nend\n", [&] {
        auto& os = platform::os();
        input::ks = input::KeyState{};
        voice::vs = voice::VoiceState{};
        os.setKeyHandler([](int c) { input::Form_KeyDown(c); });
        int id = os.createBuffer(game + "/tone.wav");
        os.play(id, 0);
        while (input::ks.g.empty()) os.yield();
        cursor = os.getCurrentPosition(id).play;
        statusDuring = os.getStatus(id);
        input::dy(1);
        statusAfter = os.getStatus(id);
        EXPECT_THROW(os.getStatus(id + 100), platform::Failure);
    }, "", game);
    ASSERT_EQ(r.code, 0) << r.dump();
    // 50 per cent of the 2044-byte file is 1022 bytes: 511 frames in.
    EXPECT_GE(cursor, 1022);
    EXPECT_LE(cursor, 1024);
    EXPECT_EQ(statusDuring, 1);
    EXPECT_EQ(statusAfter, 0);
    EXPECT_TRUE(r.has("play tone #1 vol=0 pan=0 once"));
}

}  // namespace

namespace {

TEST(RunnerContract, CommandsFromStandardInput) {
    std::string cmd = std::string("printf 'expect \"Greenlark. version eleven\"\\n' | '") + GREENLARK_SIM +
                      "' - 2>&1; echo \"exit $?\"";
    FILE* pipe = popen(cmd.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string out;
    char buf[4096];
    while (std::fgets(buf, sizeof buf, pipe)) out += buf;
    pclose(pipe);
    EXPECT_NE(out.find("done 1"), std::string::npos) << out;
    EXPECT_NE(out.find("exit 0"), std::string::npos) << out;
    std::string bad = std::string("printf 'nonsense\\n' | '") + GREENLARK_SIM + "' - >/dev/null 2>&1; echo $?";
    pipe = popen(bad.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    out.clear();
    while (std::fgets(buf, sizeof buf, pipe)) out += buf;
    pclose(pipe);
    EXPECT_EQ(out, "2\n");
}

}  // namespace
