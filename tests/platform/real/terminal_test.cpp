// The real game in a terminal of tmux's with no display: keys sent by tmux
// send-keys, the spoken texts written by --text, the sound by SDL's disk
// driver. The pane's shell takes stty -g before and after the game.
#include <gtest/gtest.h>

#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include "audio_file.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

std::string slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

const char kConfig[] = "home/Documents/brindlewick/golf.cfg";

class TerminalGame : public ::testing::Test {
protected:
    void SetUp() override {
        if (!realtest::onPath("tmux")) GTEST_SKIP() << "needs tmux";
        ASSERT_TRUE(fs::exists(fs::path(GREENLARK_GAME_DIR) / "golf0.wav"))
            << "the game's wave files are missing: build the greenlark-waves target";
        dir = fs::temp_directory_path() / ("greenlark-terminal-" + std::to_string(getpid()));
        fs::create_directories(dir / "home/Documents");
        tmux("new-session -d -x 80 -y 24 \"env PS1='$ ' /bin/sh\"");
        for (int tries = 0; tries < 600 && tmux("capture-pane -p").find('$') == std::string::npos; ++tries)
            std::this_thread::sleep_for(100ms);
    }
    void TearDown() override {
        if (dir.empty()) return;
        if (fs::exists(dir / "pid") && !fs::exists(dir / "after")) kill(std::stoi(slurp(dir / "pid")), SIGKILL);
        tmux("kill-server");
        fs::remove_all(dir);
    }
    std::string tmux(const std::string& args) {
        std::string out;
        FILE* p = popen(("tmux -S '" + (dir / "tmux").string() + "' " + args + " 2>/dev/null").c_str(), "r");
        char buf[256];
        while (p && std::fgets(buf, sizeof buf, p)) out += buf;
        if (p) pclose(p);
        return out;
    }
    void press(const std::string& keys) { tmux("send-keys " + keys); }

    // The game from the pane's shell, which writes the terminal's settings
    // before and after it and the game's exit status. Ctrl+C stops the game
    // alone; a crash leaves no core file.
    void start(const std::string& options) {
        for (const char* old : {"pid", "after", "spoken", "journal", kConfig}) fs::remove(dir / old);
        std::ofstream(dir / "run.sh") << "export D=" << dir.string() << R"(
trap : INT
ulimit -c 0
stty -g > $D/before
env -u DISPLAY -u WAYLAND_DISPLAY -u SDL_VIDEODRIVER SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$D/audio HOME=$D/home \
    XDG_CONFIG_HOME=$D/home/.config SPEECHD_ADDRESS=unix_socket:$D/none \
    sh -c 'echo $$ > $D/pid; exec "$0" "$@"' )"
                                      << GREENLARK_BIN << " " << options << R"( --text --journal $D/journal > $D/spoken
echo $? > $D/status
stty -g > $D/after
)";
        press("'sh " + (dir / "run.sh").string() + "' Enter");
    }
    // The first line of `file` from line `from` on that begins with `what`;
    // -1 after a minute without one.
    int await(const char* file, const std::string& what, int from = 0) {
        for (int tries = 0; tries < 600; ++tries) {
            std::istringstream lines(slurp(dir / file));
            int n = 0;
            for (std::string line; std::getline(lines, line); ++n)
                if (n >= from && line.rfind(what, 0) == 0) return n;
            std::this_thread::sleep_for(100ms);
        }
        return -1;
    }
    // Waits for the shell's line after the game; false after a minute.
    bool ended() { return await("after", "") == 0; }

    fs::path dir;
};

// The texts spoken, in order: the journal's comments "# say2 ...", or the
// transcript's lines "TIME say2 ...".
std::vector<std::string> spoken(const std::string& text, bool comments) {
    std::vector<std::string> out;
    std::istringstream lines(text);
    for (std::string l; std::getline(lines, l);) {
        size_t at = comments ? (l.rfind("# ", 0) == 0 ? 2 : std::string::npos) : l.find(' ');
        if (at == std::string::npos) continue;
        std::string body = l.substr(at + (comments ? 0 : 1));
        if (body.rfind("say ", 0) == 0 || body.rfind("say2 ", 0) == 0) out.push_back(body);
    }
    return out;
}

struct Step {
    const char* heard;
    const char* key;
    const char* file = "spoken";
};

// Each text heard and the key pressed when it was: a capital through Shift,
// Tab standing for Ctrl to cut a reading short, F1, the arrows, Escape, and
// a key while the power sound plays.
const Step kRound[] = {
    {"Please enter your name.", "J"}, {"J", "o"}, {"o", "Enter"},
    {"Is Jo correct for your name? yes", "Enter"}, {"Jo do you wish to use this voice. yes", "Enter"},
    {"regular", "Enter"}, {"Jo Would you like to read the instructions? yes", "n"},
    {"Special key instructions.", "Tab"}, {"Jo Would you like to read the special key instructions? no", "n"},
    {"Jo Would you like to read the hints? yes", "n"}, {"2. use ball washer", "F1"}, {"2. use ball washer", "1"},
    {"1. golf-course", "Enter"}, {"Amateur Green Grass Country Club Rating 65", "Enter"},
    {"Select Your Club.", "1"}, {"wood", "Enter"}, {"# play golf7 once", "Space", "journal"},
    {"shot went", "Escape"}, {"return to game", "Up"}, {"exit program", "Enter"},
};

TEST_F(TerminalGame, ARoundWithoutADisplayAndTheTerminalAsItWasAfter) {
    start("");
    int at = 0;
    for (const auto& step : kRound) {
        bool spoken = std::string(step.file) == "spoken";
        int found = await(step.file, step.heard, spoken ? at : 0);
        ASSERT_GE(found, 0) << "never heard " << step.heard << "\n" << slurp(dir / step.file);
        // The prompt's own key wait drops a key that comes before it.
        if (spoken) {
            at = found + 1;
            ASSERT_TRUE(realtest::awaitKeyWait(std::stoi(slurp(dir / "pid")))) << step.heard;
        }
        press(step.key);
    }
    EXPECT_GE(await("journal", "at golf7 "), 0) << slurp(dir / "journal");
    EXPECT_GE(await("spoken", "Exiting program.", at), 0) << slurp(dir / "spoken");
    ASSERT_TRUE(ended());
    EXPECT_EQ(slurp(dir / "status"), "0\n");
    EXPECT_EQ(slurp(dir / "after"), slurp(dir / "before"));
    EXPECT_EQ(slurp(dir / kConfig), " Jo \r\n 0 \r\n 0 \r\n 95 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n");
    EXPECT_TRUE(realtest::soundsLikeSpeech(realtest::leftChannel((dir / "audio").string()), 500));
    // The journal plays the game again through greenlark-sim to the same texts.
    fs::create_directories(dir / "replay");
    std::string replayed;
    FILE* sim = popen(("'" + std::string(GREENLARK_SIM) + "' --docs '" + (dir / "replay").string() + "' '" +
                       (dir / "journal").string() + "' 2>&1").c_str(), "r");
    char buf[4096];
    while (sim && std::fgets(buf, sizeof buf, sim)) replayed += buf;
    ASSERT_TRUE(sim && pclose(sim) == 0) << replayed << slurp(dir / "journal");
    auto heard = spoken(slurp(dir / "journal"), true);
    EXPECT_GT(heard.size(), 30u);
    EXPECT_EQ(spoken(replayed, false), heard) << replayed;
    // Nothing but the shell's own lines in the pane.
    std::istringstream pane(tmux("capture-pane -p"));
    for (std::string line; std::getline(pane, line);)
        EXPECT_TRUE(line.empty() || line[0] == '$') << line;
}

struct Way {
    const char* options;
    const char* key;   // pressed in the terminal; nullptr: the signal is sent
    int signal;
    const char* status;
};

// The other ways out put the terminal back too; all but a crash write the
// settings.
TEST_F(TerminalGame, SignalsEndTheGameWithTheTerminalPutBack) {
    const Way kWays[] = {
        {"--terminal", nullptr, SIGTERM, "0\n"},
        {"", nullptr, SIGHUP, "0\n"},
        {"", "C-c", SIGINT, "0\n"},
        {"", nullptr, SIGABRT, "134\n"},
    };
    for (const auto& way : kWays) {
        start(way.options);
        ASSERT_GE(await("spoken", "Please enter your name."), 0) << way.signal << "\n" << slurp(dir / "spoken");
        EXPECT_EQ(tmux("display -p '#{pane_title}'"), " Greenlark  By Tobrell \n");
        if (way.key) press(way.key);
        else kill(std::stoi(slurp(dir / "pid")), way.signal);
        ASSERT_TRUE(ended()) << way.signal;
        EXPECT_EQ(slurp(dir / "status"), way.status) << way.signal;
        EXPECT_EQ(slurp(dir / "after"), slurp(dir / "before")) << way.signal;
        EXPECT_EQ(fs::exists(dir / kConfig), std::string(way.status) == "0\n") << way.signal;
    }
}

}  // namespace
