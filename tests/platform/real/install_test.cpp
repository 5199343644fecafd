// The game as a player gets it: installed into a prefix of its own, started
// from another folder, it finds its data and speaks its first prompt; and
// what it installs for the desktop passes the desktop's own checks.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "audio_file.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

std::string shq(const std::string& s) { return "'" + s + "'"; }

int sh(const std::string& command) { return std::system(command.c_str()); }

class Installed : public ::testing::Test {
protected:
    void SetUp() override {
        char pattern[] = "/tmp/greenlark-install-XXXXXX";
        root = mkdtemp(pattern);
        // Installed as a package would install it, under /usr, but below a
        // folder of the test's own.
        ASSERT_EQ(sh("DESTDIR=" + shq(root.string()) + " cmake --install " + shq(GREENLARK_BUILD_DIR) +
                     " --prefix /usr >/dev/null"),
                  0);
        usr = root / "usr";
    }
    void TearDown() override {
        if (game > 0 && realtest::waitExit(game, 0ms) == -1) {
            kill(game, SIGKILL);
            waitpid(game, nullptr, 0);
        }
        fs::remove_all(root);
    }

    fs::path root, usr;
    pid_t game = 0;
};

TEST_F(Installed, EverythingLandsInItsPlace) {
    EXPECT_TRUE(fs::exists(usr / "bin/greenlark"));
    EXPECT_TRUE(fs::exists(usr / "share/greenlark/golf0.wav"));
    EXPECT_TRUE(fs::exists(usr / "share/greenlark/amb35.wav"));
    EXPECT_TRUE(fs::exists(usr / "share/applications/org.greenlark.Greenlark.desktop"));
    EXPECT_TRUE(fs::exists(usr / "share/metainfo/org.greenlark.Greenlark.metainfo.xml"));
    EXPECT_TRUE(fs::exists(usr / "share/icons/hicolor/scalable/apps/org.greenlark.Greenlark.svg"));
    EXPECT_TRUE(fs::exists(usr / "share/man/man6/greenlark.6"));
    EXPECT_FALSE(fs::exists(usr / "bin/greenlark-sim")) << "the scenario runner is a developer's tool";
}

TEST_F(Installed, DesktopFilesPassTheirValidators) {
    if (realtest::onPath("desktop-file-validate")) {
        EXPECT_EQ(sh("desktop-file-validate " + shq((usr / "share/applications/org.greenlark.Greenlark.desktop").string())), 0);
    }
    if (realtest::onPath("appstreamcli")) {
        EXPECT_EQ(sh("appstreamcli validate --no-net " +
                     shq((usr / "share/metainfo/org.greenlark.Greenlark.metainfo.xml").string()) + " >/dev/null"),
                  0);
    }
    if (realtest::onPath("man")) {
        std::string page = (usr / "share/man/man6/greenlark.6").string();
        EXPECT_EQ(sh("MANWIDTH=80 man -l " + shq(page) + " 2>&1 | grep -q -- '--journal'"), 0)
            << "the manual page does not render its options";
    }
}

TEST_F(Installed, StartsFromAnotherFolderAndSpeaks) {
    if (!realtest::onPath("xdotool")) GTEST_SKIP() << "needs xdotool";
    realtest::XServer x;
    if (!x.running()) GTEST_SKIP() << "needs Xvfb";
    fs::path elsewhere = root / "elsewhere", home = root / "home";
    fs::create_directories(elsewhere);
    fs::create_directories(home / "Documents");
    std::string audio = (root / "disk.raw").string();
    game = realtest::spawnIn(elsewhere.string(), (usr / "bin/greenlark").string(),
                             {"DISPLAY=" + x.display(), "SDL_AUDIODRIVER=disk", "SDL_DISKAUDIOFILE=" + audio,
                              "HOME=" + home.string(), "XDG_CONFIG_HOME=" + (home / ".config").string()});
    auto window = x.windows("Greenlark", 10s);
    ASSERT_EQ(window.size(), 1u);
    // A game that found its sound files speaks and then waits at its first
    // prompt, where a letter typed is named at once; one that did not stops
    // at a message box and takes no key.
    bool quiet = false;
    for (int i = 0; i < 150 && !quiet; ++i) {
        std::this_thread::sleep_for(100ms);
        quiet = realtest::endsInSilence(realtest::leftChannel(audio), 400);
    }
    ASSERT_TRUE(quiet) << "the installed game never spoke or never went quiet";
    EXPECT_TRUE(realtest::soundsLikeSpeech(realtest::leftChannel(audio), 500)) << "nothing spoken at the start";
    long before = realtest::framesIn(audio);
    x.run("xdotool key --window " + window[0] + " b");
    std::this_thread::sleep_for(1000ms);
    EXPECT_TRUE(realtest::soundsLikeSpeech(realtest::leftChannel(audio, before), 80))
        << "the installed game did not answer a key at its first prompt";
}

}  // namespace
