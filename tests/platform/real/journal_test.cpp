// The game journal: its lines written from what the real platform sees, and
// a real game under Xvfb, journaled and played again through greenlark-sim
// to the same spoken texts.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "platform/real/journal.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using platform::real::Journal;

namespace {

std::string slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) out.push_back(l);
    return out;
}

// The journal's lines that are no comments.
std::vector<std::string> commands(const std::string& path) {
    std::vector<std::string> out;
    for (const auto& l : linesOf(slurp(path)))
        if (!l.empty() && l[0] != '#') out.push_back(l);
    return out;
}

std::string tempPath(const std::string& name) {
    return (fs::temp_directory_path() / ("greenlark-" + name + "-" + std::to_string(getpid()))).string();
}

TEST(JournalLines, AtPercentStaysInsideTheWholePerCentRead) {
    EXPECT_EQ(platform::real::atPercent(0, 30988), "0.0");
    EXPECT_EQ(platform::real::atPercent(11620, 30988), "37.4");   // 37.498 per cent
    EXPECT_EQ(platform::real::atPercent(11464, 30988), "36.9");   // 36.995: not rounded up to 37
    EXPECT_EQ(platform::real::atPercent(30988 * 37 / 100 + 1, 30988), "37.0");
    EXPECT_EQ(platform::real::atPercent(100, 0), "0.0");
}

TEST(JournalLines, ExpectChainsPastEarlierTextsThatHoldTheLast) {
    using platform::real::expectChain;
    EXPECT_TRUE(expectChain({}).empty());
    EXPECT_EQ(expectChain({" select ", " wood "}), (std::vector<std::string>{" wood "}));
    // " no " stands inside the question: the expect of the question comes
    // first, or " no " would be met by the question.
    EXPECT_EQ(expectChain({" Is  jo  correct? no ", "x", " no "}),
              (std::vector<std::string>{" Is  jo  correct? no ", " no "}));
    EXPECT_EQ(expectChain({"o", "jo", "x", "o"}), (std::vector<std::string>{"jo", "o"}));
}

TEST(JournalLines, KeysSeedsAndAReadingAsAScript) {
    std::string path = tempPath("journal-lines");
    {
        Journal j;
        ASSERT_TRUE(j.open(path));
        j.made(3, "/game/golf7.wav", 30988);
        j.made(4, "/game/golf10.wav", 5000);
        EXPECT_EQ(j.indicators(), (std::vector<int>{3}));
        j.spoke(" Please enter your name. ", 1);
        j.key(74, std::nullopt);
        j.key(16, std::nullopt);   // nothing new was said: no expect
        j.spoke("say \"\x01\"", 0);
        j.key(121, std::nullopt);
        j.seed(18446744073709551615ull);
        j.played(4, true);
        j.played(3, false);
        // A key during the indicator waits for the game's reading.
        j.key(32, Journal::Indicator{3, 100});
        j.read(4, 9999);
        j.read(3, 11620);
        j.read(3, 20000);
        j.spoke(" shot went ", 1);
        j.closed();
    }
    EXPECT_EQ(commands(path), (std::vector<std::string>{
                                  "expect \" Please enter your name. \"",
                                  "key J",
                                  "key Shift",
                                  "expect \"say \\\"\\x01\\\"\"",
                                  "key F10",
                                  "seed 18446744073709551615",
                                  "at golf7 37.4 Space",
                                  "expect \" shot went \"",
                                  "close",
                                  "end",
                              }));
    std::string text = slurp(path);
    EXPECT_NE(text.find("# say2 \" shot went \"\n"), std::string::npos);
    EXPECT_NE(text.find("# play golf10 loop\n"), std::string::npos);
    fs::remove(path);
}

TEST(JournalLines, AKeyOnAnIndicatorNeverReadIsWrittenWithItsOwnCursor) {
    std::string path = tempPath("journal-unread");
    {
        Journal j;
        ASSERT_TRUE(j.open(path));
        j.made(5, "golf27.wav", 107300);
        j.key(13, Journal::Indicator{5, 53650});
    }
    EXPECT_EQ(commands(path), (std::vector<std::string>{"at golf27 50.0 Enter", "end"}));
    fs::remove(path);
}

// ---- a real game, journaled and played again

// What the test plays, from the name to the first shot's report: each step
// waits until the journal shows the line, then presses the keys (xdotool
// names). This table is the one place that knows the game's opening; when
// start-up changes, change it here.
struct Step {
    const char* heard;
    const char* key;
};
const Step kToTheFirstShot[] = {
    {"# say2 \" Please enter your name. \"", "j"},
    {"# say2 \"j\"", "o"},
    {"# say2 \"o\"", "Return"},
    {"correct for your name? yes \"", "Return"},
    {"do you wish to use this voice.  yes \"", "Return"},
    {"# say2 \" regular \"", "Return"},
    {"read the instructions? yes \"", "n"},
    {"# say2 \" Special key instructions.", "space"},
    {"read the special key instructions? no \"", "n"},
    {"read the hints? yes \"", "n"},
    {"# say2 \" 2. use ball washer \"", "1"},
    {"# say2 \" 1. golf-course \"", "Return"},
    {"# say2 \" Amateur Green Grass", "Return"},
    {"# say2 \" Select Your Club.", "1"},
    {"# say2 \" wood \"", "Return"},
    {"# play golf7 once", "space"},
};
const char kTheReport[] = " shot went ";

class JournalReplay : public ::testing::Test {
protected:
    void SetUp() override {
        std::string missing = realtest::startForGame(x);
        if (!missing.empty()) GTEST_SKIP() << missing;
        ASSERT_TRUE(fs::exists(fs::path(GREENLARK_GAME_DIR) / "golf0.wav"))
            << "the game's wave files are missing: build the greenlark-waves target";
        home = tempPath("journal-home");
        fs::create_directories(home + "/Documents");
        journal = home + "/game.sim";
        audio = home + "/audio.raw";
        game = realtest::spawnIn(GREENLARK_GAME_DIR, GREENLARK_BIN,
                                 {"DISPLAY=" + x->display(), "SDL_AUDIODRIVER=disk", "SDL_DISKAUDIOFILE=" + audio,
                                  "HOME=" + home, "XDG_CONFIG_HOME=" + home + "/.config"},
                                 {"--journal", journal});
    }
    void TearDown() override {
        if (game > 0 && realtest::waitExit(game, 0ms) == -1) {
            kill(game, SIGKILL);
            waitpid(game, nullptr, 0);
        }
        if (!home.empty()) fs::remove_all(home);
    }
    // Waits until a line of the journal from line `from` on holds `what`;
    // the index of that line, or -1 after a minute.
    int awaitLine(const std::string& what, int from) {
        for (int i = 0; i < 600; ++i) {
            auto lines = linesOf(slurp(journal));
            for (size_t n = size_t(from); n < lines.size(); ++n)
                if (lines[n].find(what) != std::string::npos) return int(n);
            std::this_thread::sleep_for(100ms);
        }
        return -1;
    }

    std::unique_ptr<realtest::XServer> x;
    std::string home, journal, audio;
    pid_t game = 0;
};

// The texts spoken, in order, as transcript bodies: say "..." and say2 "...".
std::vector<std::string> spoken(const std::vector<std::string>& lines, bool comments) {
    std::vector<std::string> out;
    for (const auto& l : lines) {
        std::string body = l;
        if (comments) {
            if (body.rfind("# ", 0) != 0) continue;
            body = body.substr(2);
        } else {
            size_t sp = body.find(' ');
            if (sp == std::string::npos) continue;
            body = body.substr(sp + 1);
        }
        if (body.rfind("say ", 0) == 0 || body.rfind("say2 ", 0) == 0) out.push_back(body);
    }
    return out;
}

// Up to and with the first text that holds `what`.
std::vector<std::string> upTo(std::vector<std::string> texts, const std::string& what) {
    for (size_t i = 0; i < texts.size(); ++i)
        if (texts[i].find(what) != std::string::npos) {
            texts.resize(i + 1);
            return texts;
        }
    return texts;
}

TEST_F(JournalReplay, ARealGameToTheFirstShotPlaysAgainToTheSameTexts) {
    auto windows = x->windows("Greenlark", 10s);
    ASSERT_EQ(windows.size(), 1u);
    int at = 0;
    for (const auto& step : kToTheFirstShot) {
        at = awaitLine(step.heard, at);
        ASSERT_GE(at, 0) << "never heard " << step.heard << "\n" << slurp(journal);
        // The prompt's own key wait drops a key that comes before it.
        ASSERT_TRUE(realtest::awaitKeyWait(game)) << "the game never settled in its key wait";
        x->run(std::string("xdotool key --window ") + windows[0] + " " + step.key);
    }
    ASSERT_GE(awaitLine(kTheReport, at), 0) << slurp(journal);
    kill(game, SIGKILL);
    waitpid(game, nullptr, 0);
    game = 0;

    auto recorded = linesOf(slurp(journal));
    auto heard = upTo(spoken(recorded, true), kTheReport);
    auto script = commands(journal);
    // The opening, the first question and the main menu each draw a seed.
    EXPECT_EQ(std::count_if(script.begin(), script.end(), [](const std::string& l) { return l.rfind("seed ", 0) == 0; }),
              3) << slurp(journal);
    EXPECT_EQ(std::count_if(script.begin(), script.end(), [](const std::string& l) { return l.rfind("at golf7 ", 0) == 0; }),
              1) << slurp(journal);

    // Played again until the last text the player heard.
    std::ofstream(journal, std::ios::app) << "expect " << heard.back().substr(heard.back().find('"')) << "\n";
    std::string cmd = std::string("'") + GREENLARK_SIM + "' --docs '" + home + "/replay-docs' '" + journal + "' 2>&1";
    fs::create_directories(home + "/replay-docs");
    FILE* pipe = popen(cmd.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string out;
    char buf[4096];
    while (std::fgets(buf, sizeof buf, pipe)) out += buf;
    int status = pclose(pipe);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << out << "\n" << slurp(journal);
    auto replayed = upTo(spoken(linesOf(out), false), kTheReport);
    EXPECT_EQ(replayed, heard) << out << "\n" << slurp(journal);
}

}  // namespace
