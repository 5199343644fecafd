// A step abandoned under the error rule: the game goes on as before, and the
// simulated platform writes what went wrong as a transcript line.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/platform.h"
#include "sim_harness.h"

namespace fs = std::filesystem;

namespace {

TEST(Failures, AttemptWithoutAPlatformStillSkipsTheStep) {
    platform::install(nullptr);
    int reached = 0;
    EXPECT_FALSE(platform::attempt([&] {
        ++reached;
        throw platform::Failure("nobody hears of this");
        ++reached;
    }));
    EXPECT_EQ(reached, 1);
    EXPECT_TRUE(platform::attempt([&] { ++reached; }));
    EXPECT_EQ(reached, 2);
}

TEST(Failures, EachAbandonedStepIsOneQuotedLine) {
    auto r = simtest::runInProcess("end\n", [] {
        auto& os = platform::os();
        platform::attempt([] { throw platform::Failure("a \"quoted\" reason"); });
        platform::attempt([] {});
        platform::attempt([&] { os.getStatus(4242); });
        os.beep();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(r.count("fail "), 2) << r.dump();
    EXPECT_EQ(r.sequence({"fail \"a \\\"quoted\\\" reason\"", "fail \"no sound buffer 4242\"", "beep"}),
              (std::vector<int>{0, 1, 2}))
        << r.dump();
}

// The checks find every wave file in the working folder, but the opening
// jingle is loaded from the program's folder, where it is missing: the
// jingle is skipped without a word and the title comes as always.
TEST(Failures, AMissingSoundFileIsAFailLineAndTheGameGoesOn) {
    std::string game = simtest::tempDir();
    for (const auto& e : fs::directory_iterator(GREENLARK_GAME_DIR))
        if (e.path().filename() != "golf0.wav") fs::create_symlink(e.path(), game + "/" + e.path().filename().string());
    auto r = simtest::runBinary("expect \"Greenlark. version eleven\"\n",
                                {"--game", game, "--cwd", GREENLARK_GAME_DIR});
    fs::remove_all(game);
    ASSERT_EQ(r.code, 0) << r.dump();
    int fail = r.find("fail \"cannot read " + game + "/golf0.wav: No such file or directory\"");
    EXPECT_GE(fail, 0) << r.dump();
    EXPECT_GT(r.find("Greenlark. version eleven", fail), fail) << r.dump();
    EXPECT_FALSE(r.has("play golf0")) << r.dump();
    EXPECT_EQ(r.count("fail "), 1) << r.dump();
}

}  // namespace
