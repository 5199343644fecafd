// The two Escape menus of a round: their words, their pointer, the way back
// to the game and the ways out of the round.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "inplay_support.h"
#include "round/driver.h"
#include "round/inplay.h"

using inplay::countBetween;
using inplay::hushedAfter;
using inplay::kDrive;
using inplay::kPrompt;
using inplay::kToTheTee;
using inplay::nextArrow;
using inplay::nextSpoken;
using inplay::spokenAfter;
using simtest::runBinary;
using simtest::runInProcess;

namespace {

const std::string kSelect = "say2 \" select. \"";
const std::string kNote = "say2 \" note, you can only save the game at the beginning of a hole. select \"";
const std::string kSave = "say2 \" save and exit game \"";
const std::string kQuit = "say2 \" quit game and return to main menu \"";
const std::string kExit = "say2 \" exit program \"";
const std::string kReturn = "say2 \" return to game \"";

TEST(InPlayEscMenu, AtTheTeeItOffersSavingWrapsAndKeepsThePointer) {
    auto r = runBinary(std::string(kToTheTee) + R"(key Down Down
expect " 3"
key Escape
expect " save and exit game "
key Down
expect " quit game"
key Down
expect " exit program "
key Down
expect " return to game "
key Down
expect " save and exit game "
key Up
expect " return to game "
key F1
expect " return to game "
key Escape
expect " return to game "
key Enter
expect "Select Your Club"
expect " 1"
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int esc = r.find("key 27");
    ASSERT_GT(esc, 0) << r.dump();
    EXPECT_TRUE(hushedAfter(r, esc));
    // Everything stops, then the header and the first entry.
    int header = r.find(kSelect, esc);
    EXPECT_LT(r.find("stop golf10", esc), header) << r.dump();
    EXPECT_EQ(spokenAfter(r, esc), kSelect);
    EXPECT_EQ(spokenAfter(r, header), kSave);
    // The arrows say the entries alone, round in both directions.
    const std::string order[] = {kQuit, kExit, kReturn, kSave, kReturn};
    int at = header;
    for (const auto& entry : order) {
        at = nextArrow(r, at + 1);
        ASSERT_GT(at, 0) << r.dump();
        EXPECT_EQ(spokenAfter(r, at), entry) << r.dump();
    }
    // F1 and a second Escape say the header again, the pointer where it was.
    int f1 = r.find("key 112", esc);
    EXPECT_EQ(spokenAfter(r, f1), kSelect);
    EXPECT_EQ(spokenAfter(r, r.find(kSelect, f1)), kReturn);
    int esc2 = r.find("key 27", esc + 1);
    EXPECT_EQ(r.find(kSelect, esc2), nextSpoken(r, r.find("say2 \"\\x1B\"", esc2) + 1)) << "named, then the header";
    EXPECT_EQ(r.count(kSelect), 3);
    // Back in the game: the crowd, then the club prompt from its start.
    int enter = r.find("key 13", esc2);
    int crowd = r.find("play golf10", enter);
    int prompt = r.find("say2 \"" + kPrompt + "\"", enter);
    EXPECT_GT(crowd, enter) << r.dump();
    EXPECT_LT(crowd, prompt);
    EXPECT_EQ(spokenAfter(r, enter), "say2 \"" + kPrompt + "\"") << r.dump();
    EXPECT_EQ(spokenAfter(r, prompt), "say2 \" 1\"");
    EXPECT_FALSE(r.has("A-choice"));
}

TEST(InPlayEscMenu, InPlayItOffersNoSavingAndPutsThePointerBack) {
    auto r = runBinary(std::string(kToTheTee) + kDrive + R"(key Escape
expect " return to game "
key Down
expect " quit game"
key F1
expect " return to game "
key Up
expect " exit program "
key X
expect " return to game "
key Down
expect " quit game"
key Enter
expect " 2. use ball washer "
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int esc = r.find("key 27", r.find("shot went"));
    ASSERT_GT(esc, 0) << r.dump();
    EXPECT_LT(r.find("stop golf10", esc), r.find(kNote, esc));
    EXPECT_EQ(spokenAfter(r, esc), kNote);
    EXPECT_EQ(spokenAfter(r, r.find(kNote, esc)), kReturn);
    EXPECT_FALSE(r.has(kSave)) << r.dump();
    EXPECT_FALSE(r.has(kSelect));
    // F1 and any other key start again from entry 1; Up from 1 is 3.
    int f1 = r.find("key 112", esc);
    EXPECT_EQ(spokenAfter(r, f1), kNote);
    EXPECT_EQ(spokenAfter(r, r.find(kNote, f1)), kReturn);
    EXPECT_EQ(spokenAfter(r, r.find("key 38", f1)), kExit);
    int x = r.find("key 88", f1);
    EXPECT_EQ(spokenAfter(r, x), "say2 \"x\"");
    EXPECT_EQ(spokenAfter(r, r.find(kNote, x)), kReturn);
    EXPECT_EQ(r.count(kNote), 3);
    // "quit game and return to main menu" ends the round and the main
    // menu comes back.
    int enter = r.find("key 13", x);
    EXPECT_EQ(spokenAfter(r, enter), "say2 \" select \"") << r.dump();
}

// ---- in this process: what the menus hand back and what they leave

struct Outcome {
    std::string g, g2;
    double keynum = 0;
    bool left = false;      // the round was left for the main menu
    int savedexit = 0;
};

simtest::Result escapeAt(int course, int savestate, const std::string& keys, Outcome& out,
                         const std::string& docs = "") {
    std::string script = "expect \"next to the green\"\nkey Escape\nexpect \" select\"\n" + keys;
    return runInProcess(
        script,
        [&] {
            inplay::freshRound(course);
            play::starthole();
            play::rs.savestate = savestate;
            try {
                play::keywait();
            } catch (const play::LeaveRound&) {
                out.left = true;
            }
            out.g = input::ks.g;
            out.g2 = input::ks.g2;
            out.keynum = play::rs.keynum;
            out.savedexit = play::rs.savedexit;
        },
        docs);
}

TEST(InPlayEscMenu, ReturnHandsBackF1WithKeynum27AndTheWaterStaysSilent) {
    for (int savestate : {1, 2}) {
        SCOPED_TRACE(savestate);
        Outcome out;
        // Course 2 has water on both sides of its first hole.
        auto r = escapeAt(2, savestate, savestate == 1 ? "key Up\nkey Enter\nend\n" : "key Enter\nend\n", out);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(out.g, "112");
        EXPECT_EQ(out.g2, "");
        EXPECT_EQ(out.keynum, 27);
        EXPECT_FALSE(out.left);
        int esc = r.find("key 27");
        EXPECT_EQ(countBetween(r, "stop golf31", esc, int(r.lines.size())), 2) << r.dump();
        int enter = r.find("key 13", esc);
        EXPECT_GT(r.find("play golf10", enter), enter);
        EXPECT_EQ(r.find("play golf31", enter), -1) << "no water until the next hole";
    }
}

TEST(InPlayEscMenu, ASwingBegunOpensTheMenuWithoutSavingEvenAtTheTee) {
    Outcome out;
    auto r = escapeAt(1, 2, "key Enter\n", out);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has(kNote)) << r.dump();
    EXPECT_FALSE(r.has(kSave));
}

std::string savedGameIn(const std::string& docs) {
    std::filesystem::create_directories(docs + "/brindlewick");
    std::string path = docs + "/brindlewick/golfgame.sav";
    std::ofstream(path, std::ios::binary) << std::string("\x02\x00\x01\x00", 4);
    return path;
}

TEST(InPlayEscMenu, QuitAtTheTeeDeletesTheSavedGameAndLeavesTheRound) {
    std::string docs = simtest::tempDir(), save = savedGameIn(docs);
    Outcome out;
    auto r = escapeAt(1, 1, "key Down\nexpect \" quit game\"\nkey Enter\n", out, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(out.left);
    EXPECT_FALSE(std::filesystem::exists(save));
    EXPECT_EQ(nextSpoken(r, r.find("key 13")), -1) << r.dump();
    std::filesystem::remove_all(docs);
}

TEST(InPlayEscMenu, QuitInPlayLeavesTheRoundAndTheSavedGame) {
    std::string docs = simtest::tempDir(), save = savedGameIn(docs);
    Outcome out;
    auto r = escapeAt(1, 2, "key Down\nexpect \" quit game\"\nkey Enter\n", out, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(out.left);
    EXPECT_TRUE(std::filesystem::exists(save));
    std::filesystem::remove_all(docs);
}

TEST(InPlayEscMenu, QuitWithNoSavedGameStillLeaves) {
    std::string docs = simtest::tempDir();
    Outcome out;
    auto r = escapeAt(1, 1, "key Down\nexpect \" quit game\"\nkey Enter\n", out, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(out.left);
    std::filesystem::remove_all(docs);
}

TEST(InPlayEscMenu, SaveAndExitAndExitProgramEndTheProgram) {
    const char* kThanks = "say \" Thank you for playing Greenlark. By Tobrell \"";
    struct Case {
        int savestate;
        const char* keys;
        int savedexit;
        const char* said;   // after Enter, before the end
    } cases[] = {
        {1, "key Enter\nend\n", 1, "say \" game saved \""},
        {1, "key Up Up\nexpect \" exit program \"\nkey Enter\nend\n", 0, kThanks},
        {2, "key Up\nexpect \" exit program \"\nkey Enter\nend\n", 0, kThanks},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.keys);
        Outcome out;
        auto r = escapeAt(1, c.savestate, c.keys, out);
        ASSERT_EQ(r.code, 0) << r.dump();
        // The program ended inside the menu: nothing came back to the round.
        EXPECT_FALSE(out.left);
        EXPECT_EQ(out.g, "") << "keywait never returned";
        EXPECT_EQ(play::rs.savedexit, c.savedexit);
        int enter = r.find("key 13");
        EXPECT_GT(r.find("exit", enter), enter) << r.dump();
        EXPECT_EQ(spokenAfter(r, enter), c.said);
    }
}

}  // namespace
