// The opening as a player meets it on a first and a later run, golf.cfg
// kept between runs, the way out with and without the launcher, the close
// command, no voices at all, and today's date.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "session/startup.h"
#include "sim_harness.h"

namespace fs = std::filesystem;
using simtest::runBinary;

namespace {

const char* kInstructions =
    " Welcome to the first tee. Before each shot, the scene will be set for you.  Respond by choosing the right "
    "club from your bag and pressing a key to hit the ball when the sound indicator reaches the power level that "
    "you wish to hit the ball with. The  game is  programmed to mix  pre-set  club distance with your indicated "
    "percent of full swing to produce your results. Obviously, the more you  play  and  learn the subtleties of "
    "club swing percent, the  better  you  will score. WHAT? YOU THOUGHT THIS WAS GOING TO BE EASY? ";

std::string slurp(const std::string& path) {
    std::ifstream f(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

void put(const std::string& path, const std::string& bytes) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

TEST(StartUp, AFirstRunAndALaterRunKeepTheSettingsInGolfCfg) {
    std::string docs = simtest::tempDir(), cfg = docs + "/brindlewick/golf.cfg";
    auto first = runBinary(simtest::kFirstRunToThePowerMenu + std::string(R"(key Down
expect " alternative with beeps "
key Enter
expect " Jo  Would you like to read the instructions? yes "
key Enter
expect "WHAT? YOU THOUGHT"
key Space
expect " Jo  Would you like to read the instructions? yes "
key N
expect " Jo  Would you like to read the special key instructions? no "
key N
expect " Jo  Would you like to read the hints? yes "
key Enter
expect " Golf Hints."
key Space
expect " Jo  Would you like to read the hints? yes "
key N
)") + simtest::kMenuToTheEnd,
                           {"--docs", docs});
    ASSERT_EQ(first.code, 0) << first.dump();
    auto order = first.sequence({"say \" Greenlark. version eleven, By Tobrell \"",
                                 "say2 \" Jo  Would you like to read the instructions? yes \"",
                                 std::string("say2 \"") + kInstructions + "\"",
                                 "say2 \" Jo  Would you like to read the instructions? yes \"",
                                 "say2 \" Special key instructions. C. crowd",
                                 "say2 \" Jo  Would you like to read the special key instructions? no \"",
                                 "say2 \" Jo  Would you like to read the hints? yes \"", "say2 \" Golf Hints.",
                                 "say2 \" Jo  Would you like to read the hints? yes \"", "say2 \" select \""});
    EXPECT_GE(order.back(), 0) << first.dump();
    EXPECT_EQ(first.count("Special key instructions."), 1) << "read once, unasked";
    EXPECT_EQ(slurp(cfg), " Jo \r\n 0 \r\n 0 \r\n 95 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n\r\n");

    // A later run reads every setting and writes them back as they were.
    const std::string settings = " Ann \r\n 2 \r\n 3 \r\n 80 \r\n-300 \r\n-200 \r\n 1 \r\n 1 \r\n 1 \r\n\r\n";
    put(cfg, settings);
    auto later = runBinary(R"(expect "Is  Ann  correct for your name? yes"
key Enter
expect "do you wish to use this voice."
key Enter
expect " Ann  select power indicator sound files "
expect " alternative with beeps "
key Enter
expect " Ann  Would you like to read the instructions? no "
key Enter
expect " Ann  Would you like to read the special key instructions? no "
key Enter
expect " Ann  Would you like to read the hints? no "
key Enter
)" + std::string(simtest::kMenuToTheEnd),
                           {"--docs", docs});
    ASSERT_EQ(later.code, 0) << later.dump();
    int title = later.find("Greenlark. version eleven");
    EXPECT_LT(later.find("voice 2"), title) << later.dump();
    EXPECT_LT(later.find("volume 80"), title);
    EXPECT_LT(later.find("rate 3"), title);
    EXPECT_TRUE(later.has("play golf0 #")) << later.dump();
    EXPECT_NE(later.lines[size_t(later.find("play golf0 #"))].find("vol=-300"), std::string::npos);
    EXPECT_FALSE(later.has("Please enter your name"));
    EXPECT_FALSE(later.has("Special key instructions."));
    EXPECT_EQ(slurp(cfg), settings) << "byte for byte";
    fs::remove_all(docs);
}

// Seven lines: powav and keytog keep their defaults. A voice index past the
// list gives the first voice.
TEST(StartUp, ASevenLineGolfCfgAndAVoiceThatIsGone) {
    std::string docs = simtest::tempDir();
    put(docs + "/brindlewick/golf.cfg", " Bo \r\n 7 \r\n 1 \r\n 90 \r\n 0 \r\n 0 \r\n 0 \r\n");
    auto r = runBinary(R"(expect "Is  Bo  correct for your name? yes"
key Enter
expect "do you wish to use this voice."
key Enter
expect " Bo  select power indicator sound files "
expect " regular "
key X
expect " regular "
)",
                       {"--docs", docs});
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("voice 0")) << r.dump();
    EXPECT_FALSE(r.has("voice 7"));
    EXPECT_TRUE(r.has("rate 1"));
    EXPECT_TRUE(r.has("volume 90"));
    EXPECT_TRUE(r.has("say2 \"x\"")) << "keytog stayed 0: the key is named";
    fs::remove_all(docs);
}

TEST(Leaving, WithALauncherBesideTheProgramItIsStartedAndNothingIsSaidOfIt) {
    std::string cwd = simtest::tempDir(), docs = simtest::tempDir();
    for (const auto& e : fs::directory_iterator(GREENLARK_GAME_DIR))
        fs::create_symlink(e.path(), cwd + "/" + e.path().filename().string());
    put(cwd + "/playdeck", "#!/bin/sh\n");
    auto r = runBinary(simtest::kToTheMenu + std::string(simtest::kMenuToTheEnd), {"--cwd", cwd, "--docs", docs});
    fs::remove_all(cwd);
    ASSERT_EQ(r.code, 0) << r.dump();
    auto order = r.sequence({"say \" Thank you for playing Greenlark. By Tobrell \"", "release golf1 #",
                             "start ./playdeck", "exit"});
    EXPECT_GE(order.back(), 0) << r.dump();
    EXPECT_FALSE(r.has("beep"));
    EXPECT_FALSE(r.has("could not find the Brindlewick game menu program"));
    EXPECT_TRUE(fs::exists(docs + "/brindlewick/golf.cfg"));
    fs::remove_all(docs);
}

// The close command never closes the game: at a prompt the prompt comes
// again, at a power reading it is the key that stops the meter.
TEST(Leaving, TheCloseCommandInARoundAndAtAPowerReading) {
    auto r = runBinary(simtest::kToTheTee + R"(expect "Select Your Club"
close
expect " Please use the escape key to exit the game. "
expect "Select Your Club"
key 1
expect " wood "
key Enter
expect-sound golf7
close
expect " shot went "
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int close = r.find("Select Your Club");
    auto atPrompt = r.sequence({"play golf15", "say \" Please use the escape key to exit the game. \"",
                                "Select Your Club"},
                               close + 1);
    EXPECT_GE(atPrompt.back(), 0) << r.dump();
    int meter = r.find("play golf7");
    auto atMeter = r.sequence({"play golf15", "say \" Please use the escape key to exit the game. \"", " shot went "},
                              meter);
    EXPECT_GE(atMeter.back(), 0) << r.dump();
    EXPECT_FALSE(r.has("Thank you for playing")) << "the game goes on";
}

TEST(StartUp, WithNoVoicesOnlyTheMessageBoxAndNothingHeard) {
    auto r = runBinary("end\n", {"--voices", "0"});
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("msgbox \"Sorry but I couldn't find any voices to use\\rPlease contact Tobrell\"")) << r.dump();
    EXPECT_EQ(r.count("say"), 0) << r.dump();
    EXPECT_EQ(r.count("beep"), 0);
    EXPECT_EQ(r.count("play "), 0);
    EXPECT_TRUE(r.has("exit"));
}

TEST(TodaysDate, TakenApartByPositionWithTheFallbackForAnyFailure) {
    auto is = [](const std::string& text, int mm, int dd, int yy) {
        session::Date d = session::readdate(text);
        EXPECT_EQ(d.mm, mm) << text;
        EXPECT_EQ(d.dd, dd) << text;
        EXPECT_EQ(d.yy, yy) << text;
    };
    is("1/5/2024", 1, 5, 2024);
    is("11/22/2026", 11, 22, 2026);
    is("12/31/99", 12, 31, 99);        // a two-digit year stays below 100
    is("20240105", 11, 11, 2001);      // no separator
    is("1/5", 11, 11, 2001);           // too short
    is("0/5/2024", 11, 11, 2001);      // month below 1
    is("1/x/2024", 11, 11, 2001);      // no day
    is("1/5/", 11, 11, 2001);
    is("", 11, 11, 2001);
    is("99999999999999999999/5/2024", 999999999, 5, 2024);   // held, never overflowed
}

}  // namespace
