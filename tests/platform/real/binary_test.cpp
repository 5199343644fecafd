// The real greenlark binary on an X server of the test's own, its sound
// written by SDL's disk driver, its keys typed by xdotool.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "audio_file.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

class GameBinary : public ::testing::Test {
protected:
    void SetUp() override {
        std::string missing = realtest::startForGame(x);
        if (!missing.empty()) GTEST_SKIP() << missing;
        ASSERT_TRUE(fs::exists(fs::path(GREENLARK_GAME_DIR) / "golf0.wav"))
            << "the game's wave files are missing: build the greenlark-waves target";
        audio = (fs::temp_directory_path() / ("greenlark-disk-" + std::to_string(getpid()) + ".raw")).string();
        // A home of the test's own: the player's folder and golf.cfg go there.
        home = (fs::temp_directory_path() / ("greenlark-home-" + std::to_string(getpid()))).string();
        fs::create_directories(home + "/Documents");
        game = realtest::spawnIn(GREENLARK_GAME_DIR, GREENLARK_BIN,
                                 {"DISPLAY=" + x->display(), "SDL_AUDIODRIVER=disk", "SDL_DISKAUDIOFILE=" + audio,
                                  "HOME=" + home, "XDG_CONFIG_HOME=" + home + "/.config"});
    }
    void TearDown() override {
        if (game > 0 && realtest::waitExit(game, 0ms) == -1) {
            kill(game, SIGKILL);
            waitpid(game, nullptr, 0);
        }
        if (!audio.empty()) fs::remove(audio);
        if (!home.empty()) fs::remove_all(home);
    }
    // Waits until the game's sound has gone quiet for a while; false if it
    // never did within ten seconds.
    bool quietened() {
        for (int i = 0; i < 100; ++i) {
            if (realtest::endsInSilence(realtest::leftChannel(audio), 400)) return true;
            std::this_thread::sleep_for(100ms);
        }
        return false;
    }

    std::unique_ptr<realtest::XServer> x;
    std::string audio;
    std::string home;
    pid_t game = 0;
};

// SIGTERM, as at logout, ends the game with its settings written.
TEST_F(GameBinary, SpeaksTypedLettersAndEndsOnSigtermWithTheSettingsWritten) {
    auto found = x->windows("Greenlark", 10s);
    ASSERT_EQ(found.size(), 1u);
    ASSERT_TRUE(quietened()) << "the opening never went quiet";
    long start = realtest::framesIn(audio);
    EXPECT_TRUE(realtest::soundsLikeSpeech(realtest::leftChannel(audio), 500)) << "nothing spoken at the start";

    x->run("xdotool key --window " + found[0] + " b");
    std::this_thread::sleep_for(1000ms);
    EXPECT_TRUE(realtest::soundsLikeSpeech(realtest::leftChannel(audio, start), 80)) << "the letter was not spoken";

    kill(game, SIGTERM);
    EXPECT_EQ(realtest::waitExit(game, 10s), 0);
    std::ifstream cfg(home + "/Documents/brindlewick/golf.cfg", std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(cfg)), std::istreambuf_iterator<char>());
    EXPECT_EQ(text, "\r\n 0 \r\n 0 \r\n 95 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n");
}

}  // namespace
