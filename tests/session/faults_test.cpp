// Faults from outside the game: a player's folder it cannot write, sound
// files and course files that go away while it runs, files of random bytes
// and a course of absurd numbers. Each test names the failure it provokes;
// in each the game goes on, nothing crashes and no file is damaged.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "course/catalogue.h"
#include "course/course.h"
#include "course/coursefiles.h"
#include "course/stored.h"
#include "platform/platform.h"
#include "records/coursefile.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/inplay_support.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"

namespace fs = std::filesystem;
using play::rs;

namespace {

using simtest::slurp;

// A saved game as the game writes it, at hole `hole` of course `c`.
std::string savedAt(int hole, int c) {
    std::string out;
    for (double v : {1.0, double(hole), 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0, 3.0, double(c), 1.0})
        out += course::encodevalue({v, course::tagShort});
    return out;
}

const char* kSaveAndExit = R"(key Escape
expect " save and exit game "
key Enter
expect " game saved "
)";

const std::string kAtTheTee = "expect \"Select Your Club\"\n";

// Leaves the program through the Escape menu of a hole in play.
const char* kExitProgram = R"(key Escape
expect " return to game "
key Up
expect " exit program "
key Enter
)";

struct Faults : ::testing::Test {
    std::string docs = simtest::tempDir();
    std::string kp = docs + "/brindlewick";
    void TearDown() override { fs::remove_all(docs); }
};

// Failure provoked: the player's folder is a plain file, so the saved game
// and its marker cannot be written into it (not a folder).
TEST_F(Faults, APlayersFolderThatCannotBeWrittenLeavesThePlayerPlaying) {
    const std::string inTheWay = "a file where the folder should be\r\n";
    coursefiles::put(kp, inTheWay);
    auto saved = simtest::runBinary(inplay::kToTheTee + kSaveAndExit, {"--docs", docs});
    ASSERT_EQ(saved.code, 0) << saved.dump();
    EXPECT_TRUE(saved.has("fail \"")) << "the write was abandoned\n" << saved.dump();
    EXPECT_FALSE(saved.has("fail \"\"")) << "and said what failed";
    auto played = simtest::runBinary(inplay::kToTheTee + inplay::kDrive + kExitProgram, {"--docs", docs});
    ASSERT_EQ(played.code, 0) << played.dump();
    EXPECT_TRUE(played.has("hole number  1.")) << "no saved game came back: a new round" << played.dump();
    EXPECT_TRUE(played.has("shot went")) << played.dump();
    EXPECT_EQ(slurp(kp), inTheWay);
    EXPECT_TRUE(fs::is_regular_file(kp));
}

// A game folder of links to the built wave files, so that one can be taken
// away while the game runs.
std::string linkedGame() {
    std::string dir = simtest::tempDir();
    for (const auto& e : fs::directory_iterator(GREENLARK_GAME_DIR))
        if (e.path().extension() == ".wav") fs::create_symlink(e.path(), dir + "/" + e.path().filename().string());
    return dir;
}

// Failure provoked: sound files vanish from the game's folder after
// start-up. The tick and the crowd are skipped with a fail line and the shot
// is played. With the hit indicator gone, its check cannot read its length
// and is abandoned with no verdict, so nothing is said of a corrupt file;
// the swing is abandoned with it, and the shot goes with the power it had.
TEST_F(Faults, WaveFilesThatVanishDuringPlay) {
    std::string game = linkedGame();
    auto r = simtest::runInProcess(kAtTheTee + inplay::kDrive, [&] {
        inplay::freshRound(1);
        fs::remove(game + "/golf16.wav");
        fs::remove(game + "/golf10.wav");
        play::starthole();
        play::shotcycle();
    }, docs, game);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("fail \"cannot read " + game + "/golf16.wav")) << r.dump();
    EXPECT_FALSE(r.has("play golf16")) << r.dump();
    EXPECT_GE(r.find("shot went"), 0) << r.dump();

    r = simtest::runInProcess(kAtTheTee + "key 1\nexpect \" wood \"\nkey Enter\nexpect \"shot went\"\nexpect \" 1\"\n", [&] {
        inplay::freshRound(1);
        play::starthole();
        fs::remove(game + "/golf7.wav");
        rs.pw = 0.9;
        play::shotcycle();
    }, docs, game);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_FALSE(r.has("corrupt")) << r.dump();
    EXPECT_FALSE(r.has("play golf7")) << r.dump();
    EXPECT_GE(r.find("shot went"), 0) << r.dump();
    fs::remove_all(game);
}

// Failure provoked: a custom course file removed after the catalogue was
// built, and a saved game that resumes on it. The load is abandoned with
// nothing spoken and the round goes on over the holes already in memory.
TEST_F(Faults, ACourseFileRemovedAfterStartUpLeavesTheHolesInMemory) {
    coursefiles::Hole h;
    h.left = 160;
    h.lefttext = " A-windy-moor ";
    coursefiles::put(kp + "/golfmoor.gcx", coursefiles::course18(true, h));
    const std::string saved = savedAt(7, 7);
    coursefiles::put(kp + "/golfgame.sav", saved);
    int par = 0, yards = 0;
    auto r = simtest::runInProcess("expect \"Select Your Club\"\n", [&] {
        inplay::freshRound(1);
        par = course::cs.H[7][1], yards = course::cs.H[7][2];
        rs.nocs = course::GetCors(kp);
        fs::remove(kp + "/golfmoor.gcx");
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.resumed, 1);
    EXPECT_EQ(rs.c, 7);
    int fail = r.find("fail \"");
    ASSERT_GE(fail, 0) << r.dump();
    EXPECT_NE(r.lines[size_t(fail)].find("golfmoor.gcx"), std::string::npos) << r.dump();
    int hole = r.find("hole number  7. distance  " + std::to_string(yards) + " yards. par  " + std::to_string(par) + ".");
    EXPECT_GT(hole, fail) << r.dump();
    EXPECT_EQ(inplay::nextSpoken(r, fail), hole) << "nothing is said of the failed load";
    EXPECT_FALSE(r.has("windy-moor"));
    EXPECT_EQ(slurp(kp + "/golfgame.sav"), saved) << "a resumed round leaves the saved game on disk";
}

// Failure provoked: a saved game and course files of random bytes. None of
// them is a saved game to take up, so each start is a new round on the
// first course; the files stay as they were.
TEST_F(Faults, FilesOfRandomBytesStartANewRoundAndStayAsTheyWere) {
    std::mt19937 gen(13);
    auto noise = [&](size_t most) {
        std::string s(gen() % most, '\0');
        for (char& ch : s) ch = char(gen());
        return s;
    };
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE(round);
        const std::string sav = noise(80), gcf = noise(600), gcx = noise(2000);
        coursefiles::put(kp + "/golfgame.sav", sav);
        coursefiles::put(kp + "/golfnoise.gcf", gcf);
        coursefiles::put(kp + "/golfnoise.gcx", gcx);
        auto r = simtest::runInProcess(roundtest::pickKeys(1) + "expect \"Select Your Club\"\n", [&] {
            inplay::freshRound(1);
            rs.nocs = course::GetCors(kp);
            play::playround();
        }, docs);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(rs.resumed, 0);
        EXPECT_EQ(rs.nocs, 7) << "no file of noise is a course";
        EXPECT_TRUE(r.has("hole number  1.")) << r.dump();
        EXPECT_EQ(slurp(kp + "/golfgame.sav"), sav);
        EXPECT_EQ(slurp(kp + "/golfnoise.gcf"), gcf);
        EXPECT_EQ(slurp(kp + "/golfnoise.gcx"), gcx);
    }
}

// Failure provoked: a course whose numbers are NaN, infinite or 1e308 and
// whose place ids lie far outside the vocabulary, taken up from a saved game
// and played through greenlark-sim: the hole is described, a drive is hit
// and reported, and the player leaves; the course file is as it was.
TEST_F(Faults, ACourseOfAbsurdNumbersIsPlayedAndLeft) {
    std::string bytes;
    for (int n = 1; n <= 18; ++n) {
        coursefiles::Hole h;
        h.tag = course::tagDouble;
        h.par = n % 2 ? std::nan("") : -1e308;
        h.yards = n % 2 ? 1e308 : -std::numeric_limits<double>::infinity();
        h.left = n % 2 ? 1e9 : -1e308;
        h.right = n % 2 ? -5 : std::nan("");
        h.fairw = n % 2 ? std::nan("") : 1e308;
        h.sixth = 1e308;
        h.seventh = -1e308;
        h.flag = std::nan("");
        bytes += coursefiles::gcx(h);
    }
    coursefiles::put(kp + "/golfwild.gcx", bytes);
    coursefiles::put(kp + "/golfgame.sav", savedAt(1, 7));
    auto r = simtest::runBinary(std::string(simtest::kToTheMenu) + simtest::kMenuToARound + "expect \"Select Your Club\"\n" + inplay::kDrive +
                                    kExitProgram,
                                {"--docs", docs});
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("hole number  1.")) << r.dump();
    EXPECT_TRUE(r.has("shot went")) << r.dump();
    EXPECT_EQ(slurp(kp + "/golfwild.gcx"), bytes);
    EXPECT_EQ(slurp(kp + "/golfgame.sav"), std::string("\x02\x00\x00\x00", 4)) << r.dump();
}

// Failure provoked: the record file of the course played is cut short in
// its holder's name, or holds random bytes, so it cannot be read at the end
// of the round. The record is neither said nor renewed, the end report and
// its wait come as always, and the file stays as it was.
TEST_F(Faults, ARecordFileCutShortOrOfRandomBytesIsLeftAndTheRoundEnds) {
    const std::string grf = kp + "/golfAmateur Green Grass Country Club Rating 65.grf";
    const std::string whole = records::recordbytes(
        {course::Num{70}, course::Num{12}, course::Num{25}, course::Num{2006}, " Ann "});
    std::mt19937 gen(7);
    std::string noise(whole.size(), '\0');
    for (char& ch : noise) ch = char(gen());
    for (const std::string& bytes : {whole.substr(0, whole.size() - 3), noise}) {
        coursefiles::put(grf, bytes);
        auto r = simtest::runInProcess("expect \"press any key to continue\"\nkey Space\nend\n", [] {
            roundtest::freshGame();
            rs.nocs = course::GetCors(play::kp());
            rs.c = 1, rs.stks = 70, rs.total = 72;
            play::endround();
        }, docs);
        ASSERT_EQ(r.code, 0) << r.dump();
        int report = r.find("your score is as follows");
        EXPECT_GE(report, 0) << r.dump();
        EXPECT_GT(r.find("press any key to continue"), report) << r.dump();
        EXPECT_FALSE(r.has("the record for the")) << r.dump();
        EXPECT_FALSE(r.has("record!"));
        EXPECT_FALSE(r.has("holder"));
        EXPECT_EQ(slurp(grf), bytes);
        EXPECT_FALSE(fs::exists(kp + "/golfrecords.txt")) << "no list is written from a record not read";
    }
}

// Failure provoked: golf.cfg cut short in the middle of its fifth line, the
// effects volume, with a rate far slower than any voice goes before it. What
// stands before the cut is taken as it stands, the volume as far as its
// digits go, and the rest keep their defaults; the reading stops at the cut
// with a fail line and nothing said. The voice speaks at its slowest, and at
// the end the ten lines are written whole.
TEST_F(Faults, AGolfCfgCutShortInALineKeepsWhatStandsBeforeTheCut) {
    const std::string cfg = kp + "/golf.cfg";
    coursefiles::put(cfg, " Ann \r\n 2 \r\n-1000000 \r\n 80 \r\n-3");
    auto r = simtest::runBinary(std::string("expect \" Is  Ann  correct for your name? yes \"\n") +
                                    simtest::kNameKeptToTheMenu + simtest::kMenuToTheEnd,
                                {"--docs", docs});
    ASSERT_EQ(r.code, 0) << r.dump();
    int title = r.find("say \" Greenlark. version eleven, By Tobrell \"");
    int fail = r.find("fail \"");
    ASSERT_GE(fail, 0) << r.dump();
    EXPECT_LT(fail, title);
    EXPECT_NE(r.lines[size_t(fail)].find("golf.cfg"), std::string::npos) << r.lines[size_t(fail)];
    EXPECT_EQ(r.count("fail \""), 1) << r.dump();
    int golf0 = r.find("play golf0 #");
    ASSERT_GE(golf0, 0) << r.dump();
    EXPECT_NE(r.lines[size_t(golf0)].find("vol=-3"), std::string::npos) << r.lines[size_t(golf0)];
    for (const char* set : {"voice 2", "rate -1000000", "volume 80"}) EXPECT_LT(r.find(set), title) << set;
    auto heard = r.sequence({"say2 \"  Ann  select power indicator sound files \"", "say2 \" regular \"",
                             "say2 \" Ann  Would you like to read the instructions? no \"", "say2 \" select \"",
                             "say \" Thank you for playing Greenlark. By Tobrell \""});
    EXPECT_GE(heard.back(), 0) << r.dump();
    EXPECT_EQ(slurp(cfg), " Ann \r\n 2 \r\n-1000000 \r\n 80 \r\n-3 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n");
}

// Failure provoked: golf.cfg of random bytes. Its first field, the bytes up
// to the first comma or line end, is offered as the name and kept; no field
// behind it spells a number, so each setting it reaches is 0, and the reading
// stops at the end of the file. The opening runs in its later-run form to the
// menu and out, nothing but the reading of golf.cfg fails, and at the end
// golf.cfg holds ten whole lines.
TEST_F(Faults, AGolfCfgOfRandomBytesIsReadAsFarAsItGoesAndWrittenWhole) {
    const std::string cfg = kp + "/golf.cfg";
    for (unsigned seed : {1u, 3u, 5u}) {
        SCOPED_TRACE(seed);
        std::mt19937 gen(seed);
        std::string noise(300, '\0');
        for (char& ch : noise) ch = char(gen());
        coursefiles::put(cfg, noise);
        auto r = simtest::runBinary(std::string("expect \"correct for your name? yes \"\n") +
                                        simtest::kNameKeptToTheMenu + simtest::kMenuToTheEnd,
                                    {"--docs", docs});
        ASSERT_EQ(r.code, 0) << r.dump();
        auto heard = r.sequence({"say \" Greenlark. version eleven, By Tobrell \"", "correct for your name? yes \"",
                                 "Would you like to read the instructions? no \"", "say2 \" select \"",
                                 "say \" Thank you for playing Greenlark. By Tobrell \""});
        EXPECT_GE(heard.back(), 0) << r.dump();
        for (int at = r.find("fail \""); at >= 0; at = r.find("fail \"", at + 1))
            EXPECT_NE(r.lines[size_t(at)].find("golf.cfg"), std::string::npos) << r.lines[size_t(at)];
        std::vector<std::string> lines;
        std::string written = slurp(cfg);
        for (size_t from = 0, end; (end = written.find("\r\n", from)) != std::string::npos; from = end + 2)
            lines.push_back(written.substr(from, end - from));
        ASSERT_EQ(lines.size(), 10u) << written;
        EXPECT_TRUE(written.ends_with("\r\n\r\n"));
        ASSERT_GT(lines[0].size(), 2u);
        size_t named = lines[0].size() - 2;
        EXPECT_EQ(lines[0], " " + noise.substr(0, named) + " ");
        EXPECT_NE(std::string(",\r\n").find(noise[named]), std::string::npos) << int(noise[named]);
        for (size_t i = 1; i <= 8; ++i) EXPECT_EQ(lines[i], " 0 ") << "line " << i + 1;
    }
}

}  // namespace
