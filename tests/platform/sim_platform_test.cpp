// The simulated platform under the game: its voice's timing, a buffer's
// cursor and status, a step abandoned under the error rule, and the two
// random streams.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "sim_harness.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace fs = std::filesystem;
using simtest::runBinary;
using simtest::runInProcess;

namespace {

TEST(SimSpeech, TimingFollowsLengthAndRate) {
    std::uint32_t t0 = 0, t1 = 0;
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
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(t1 - t0, 600u);
    EXPECT_EQ(during, 2);
    EXPECT_EQ(after, 0) << "600 x 1.1^-10 is about 231 ms";
}

TEST(SimSound, CursorStatusAndTheAtStep) {
    // A 16-bit mono wave of one second at 1000 frames a second.
    std::string game = simtest::tempDir();
    auto le = [](unsigned v, int n) {
        std::string s;
        for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xFF);
        return s;
    };
    std::ofstream(game + "/tone.wav", std::ios::binary)
        << "RIFF" + le(2036, 4) + "WAVEfmt " + le(16, 4) + le(1, 2) + le(1, 2) + le(1000, 4) + le(2000, 4) + le(2, 2) +
               le(16, 2) + "data" + le(2000, 4) + std::string(2000, '\0');
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
    fs::remove_all(game);
    ASSERT_EQ(r.code, 0) << r.dump();
    // 50 per cent of the 2044-byte file is 1022 bytes: 511 frames in.
    EXPECT_GE(cursor, 1022);
    EXPECT_LE(cursor, 1024);
    EXPECT_EQ(statusDuring, 1);
    EXPECT_EQ(statusAfter, 0);
    EXPECT_TRUE(r.has("play tone #1 vol=0 pan=0 once"));
}

TEST(Failures, AnAbandonedStepIsOneQuotedLineAndTheGameGoesOn) {
    platform::install(nullptr);
    int reached = 0;
    EXPECT_FALSE(platform::attempt([&] {
        ++reached;
        throw platform::Failure("nobody hears of this");
    }));
    EXPECT_TRUE(platform::attempt([&] { ++reached; }));
    EXPECT_EQ(reached, 2) << "without a platform the step is still skipped";

    auto r = runInProcess("end\n", [] {
        platform::attempt([] { throw platform::Failure("a \"quoted\" reason"); });
        platform::attempt([] { platform::os().getStatus(4242); });
        platform::os().beep();
    });
    EXPECT_EQ(r.count("fail "), 2) << r.dump();
    EXPECT_EQ(r.sequence({"fail \"a \\\"quoted\\\" reason\"", "fail \"no sound buffer 4242\"", "beep"}),
              (std::vector<int>{0, 1, 2}))
        << r.dump();

    // The checks find every wave file in the working folder, but the opening
    // jingle is missing from the program's folder, named relative to the
    // working folder: it is skipped without a word and the title comes.
    std::string game = simtest::tempDir();
    for (const auto& e : fs::directory_iterator(GREENLARK_GAME_DIR))
        if (e.path().filename() != "golf0.wav") fs::create_symlink(e.path(), game + "/" + e.path().filename().string());
    r = runBinary("expect \"Greenlark. version eleven\"\n", {"--game", fs::relative(game).string(), "--cwd",
                                                             GREENLARK_GAME_DIR});
    fs::remove_all(game);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(r.count("fail "), 1) << r.dump();
    EXPECT_EQ(r.count("/golf0.wav: No such file or directory\""), 1) << r.dump();
    EXPECT_FALSE(r.has("play golf0")) << r.dump();
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

TEST(RandomStreams, AmbientDrawsLeaveThePlayDrawsAlone) {
    std::string quick = firstReport(0);
    ASSERT_FALSE(quick.empty());
    EXPECT_EQ(firstReport(60), quick) << "sixty seconds bring ambient sounds, each with its own draws";

    platform::reseed(5);
    double a = platform::U(), b = platform::U();
    platform::reseed(5);
    for (int i = 0; i < 100; ++i) platform::ambientU();
    EXPECT_EQ(platform::U(), a);
    EXPECT_EQ(platform::U(), b);
    platform::reseed(5);
    EXPECT_NE(platform::ambientU(), a);
    // Two seeds in a row must not give one sequence shifted by a draw.
    platform::reseed(1000);
    platform::U();
    double second = platform::U();
    platform::reseed(1001);
    EXPECT_NE(platform::U(), second);
}

}  // namespace
