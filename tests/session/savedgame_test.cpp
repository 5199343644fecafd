// The saved game: its two forms on disk, a round saved at a tee and taken up
// again in a later run, every way out of a round with what it leaves in the
// file, a full disk, and files this program never writes.
#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <istream>
#include <optional>
#include <streambuf>
#include <fstream>
#include <string>
#include <vector>

#include "course/catalogue.h"
#include "course/course.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "course/coursefiles.h"
#include "platform/files.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "session/state.h"
#include "round/fullround_caddie.h"
#include "round/inplay.h"
#include "round/inplay_support.h"
#include "round/session.h"
#include "round/state.h"
#include "session/savedgame.h"
#include "sim_harness.h"

using play::rs;

namespace {

using simtest::slurp;

// The values of a value file, in order.
std::vector<course::Num> values(const std::string& bytes) {
    course::File f;
    f.bytes = bytes;
    std::vector<course::Num> out;
    while (!course::atend(f)) out.push_back(course::readvalue(f));
    return out;
}

std::vector<double> numbers(const std::string& bytes) {
    std::vector<double> out;
    for (auto n : values(bytes)) out.push_back(n.v);
    return out;
}

const std::string kMarker("\x02\x00\x00\x00", 4);

// A saved game as this program writes it: flag, hole, stks, eight counters,
// total, dirty, hookset, c, nsaves.
std::string savedFile(std::vector<double> v, int tag = 2) {
    std::string out;
    for (double x : v) out += course::encodevalue({x, tag});
    return out;
}

const std::vector<double> kHoleSeven = {1, 7, 29, 0, 1, 2, 2, 1, 0, 0, 0, 28, 1, 3, 1, 1};

struct SavedGame : ::testing::Test {
    std::string docs = simtest::tempDir();
    std::string kp = docs + "/brindlewick";
    std::string sav = kp + "/golfgame.sav";
    void SetUp() override {
        std::filesystem::create_directories(kp);
        session::ss.kp = kp;
    }
    void TearDown() override {
        platform::files::faults() = platform::files::Faults{};
        std::filesystem::remove_all(docs);
    }
    void put(const std::string& bytes) { coursefiles::put(sav, bytes); }
};

TEST_F(SavedGame, TheMarkerIsFourBytesAndAFullSaveSixtyFour) {
    auto r = simtest::runInProcess("", [&] {
        rs = play::RoundState{};
        session::clearsave();
        EXPECT_EQ(slurp(sav), kMarker);
        rs.hole = 7, rs.stks = 29, rs.total = 28, rs.dirty = 1, rs.hookset = 3, rs.c = 1, rs.nsaves = 1;
        rs.DOUBLEBOGEY = 1, rs.Bogey = 2, rs.PARS = 2, rs.BIRDIE = 1;
        std::string form = session::savedform();
        EXPECT_EQ(form.size(), 64u);
        EXPECT_EQ(form, savedFile(kHoleSeven));
        rs.totaltag = course::tagDouble;
        form = session::savedform();
        EXPECT_EQ(form.size(), 70u) << "a total with a real tag is written with it";
        EXPECT_EQ(values(form)[11].tag, course::tagDouble);
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
}

// ---- saved at a tee and taken up again

using simtest::Feed;

// A saved game is taken up by the menu's first entry, with no picker, in a
// later run: the run that saved wrote golf.cfg.
const std::string resumeScript = simtest::kToTheMenuAgain + simtest::kMenuToARound;

const char* kSave = R"(key Escape
expect " save and exit game "
key Enter
expect " game saved "
)";

// Course 1 played by ear from its first tee; at the tee of hole `stop` the
// player saves and leaves.
simtest::Result playAndSaveAt(int stop, const std::string& docs, caddie::Caddie& c) {
    std::deque<std::string> save = {"expect \"Select Your Club\"", "key Escape", "expect \" save and exit game \"",
                                    "key Enter", "expect \" game saved \"", "end"};
    const std::string tee = "You are at hole number  " + std::to_string(stop) + ".";
    simtest::Result out;
    size_t heard = 0;
    bool there = false;
    Feed feed([&]() -> std::optional<std::string> {
        for (; heard < out.lines.size(); ++heard) there = there || out.lines[heard].find(tee) != std::string::npos;
        if (!there) return c.next(out.lines);
        if (save.empty()) return std::nullopt;
        std::string line = save.front();
        save.pop_front();
        return line;
    });
    std::istream in(&feed);
    simtest::runInProcessLive(in, [] {
        roundtest::freshGame();
        rs.c = 1;
        platform::reseed(platform::os().tick());
        play::playround();
    }, out, docs);
    return out;
}

TEST_F(SavedGame, SavedAtHoleSevenTheNextRunResumesThereWithTheSameTotal) {
    caddie::Caddie c({"expect \" Please Pick A-Course To Play. \"", "key Enter"});   // the first course
    auto first = playAndSaveAt(7, docs, c);
    ASSERT_EQ(first.code, 0) << first.dump();
    ASSERT_EQ(c.cards().size(), 6u) << first.dump();
    int strokes = 0;
    for (const auto& card : c.cards()) strokes += card.strokes;
    std::vector<double> saved = numbers(slurp(sav));
    ASSERT_EQ(saved.size(), 16u);
    EXPECT_EQ(saved[0], 1);
    EXPECT_EQ(saved[1], 7);
    EXPECT_EQ(saved[2], strokes) << "the strokes of the six holes as heard";
    double counted = 0;
    for (int i = 3; i < 11; ++i) counted += saved[size_t(i)];
    EXPECT_EQ(counted, 6) << "one score counter for each hole played";
    EXPECT_EQ(saved[11], 28) << "the pars of holes 1 to 7";
    EXPECT_EQ(saved[14], 1);
    EXPECT_EQ(saved[15], 1);
    EXPECT_GT(first.find("exit", first.find(" game saved ")), 0) << "saving leaves the program";

    auto second = simtest::runBinary(resumeScript + "expect \"Select Your Club\"\n" + kSave,
                                     {"--docs", docs});
    ASSERT_EQ(second.code, 0) << second.dump();
    EXPECT_TRUE(second.has("You are at hole number  7. distance  185 yards. par  3.")) << second.dump();
    EXPECT_FALSE(second.has("hole number  1.")) << "no new round, no picker";
    std::vector<double> again = saved;
    again[15] = 2;   // nsaves
    EXPECT_EQ(numbers(slurp(sav)), again) << "total not raised a second time";
}

TEST_F(SavedGame, AResumedRoundRaisesTheTotalAgainFromTheNextHole) {
    std::vector<double> washedBefore = kHoleSeven;
    washedBefore[12] = 0;   // dirty: the ball was washed in the run that saved
    washedBefore[13] = 7;   // hookset
    put(savedFile(washedBefore));
    auto r = simtest::runInProcess("expect \"Select Your Club\"\n", [] {
        inplay::freshRound(2);
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.hole, 7);
    EXPECT_EQ(rs.c, 1) << "the course of the saved game";
    EXPECT_EQ(rs.total, 28);
    EXPECT_EQ(rs.resumeskip, 0);
    EXPECT_EQ(rs.dirty, 1) << "from the washer of this run, not from the file";
    EXPECT_EQ(rs.hookset, 3);
    EXPECT_EQ(rs.resumed, 1);
    // The next hole of the same round.
    r = simtest::runInProcess("end\n", [] {
        rs.hole = 8;
        play::starthole();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.total, 28 + 4) << "hole 8 of course 1 is a par 4";
}

TEST_F(SavedGame, SavedAtHoleOneResumedAndSavedAgainCountsTwoSaves) {
    const std::string toTee = std::string(simtest::kToTheTee) + "expect \"Select Your Club\"\n";
    auto first = simtest::runBinary(toTee + kSave + "end\n", {"--docs", docs});
    ASSERT_EQ(first.code, 0) << first.dump();
    std::vector<double> want = {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5, 1, 3, 1, 1};
    EXPECT_EQ(numbers(slurp(sav)), want) << "total is the par of hole 1";
    auto second = simtest::runBinary(resumeScript + "expect \"Select Your Club\"\n" + kSave, {"--docs", docs});
    ASSERT_EQ(second.code, 0) << second.dump();
    EXPECT_TRUE(second.has("You are at hole number  1.")) << second.dump();
    want[15] = 2;
    EXPECT_EQ(numbers(slurp(sav)), want);
    EXPECT_EQ(slurp(sav).size(), 64u);
}

// ---- every way out of a round

struct WayOut {
    const char* what;
    int savestate;      // 1 the menu with saving, 2 the other
    const char* keys;   // in the menu
    int leaves;         // 0 the file as it was, 1 the marker, 2 no file
};

TEST_F(SavedGame, EachWayOutOfARoundLeavesTheFileAsItShould) {
    const WayOut ways[] = {
        {"quit in the menu with saving", 1, "key Down\nexpect \" quit game\"\nkey Enter\n", 2},
        {"quit in the menu without", 2, "key Down\nexpect \" quit game\"\nkey Enter\n", 0},
        {"exit program in the menu with saving", 1, "key Up Up\nexpect \" exit program \"\nkey Enter\n", 1},
        {"exit program in the menu without", 2, "key Up\nexpect \" exit program \"\nkey Enter\n", 1},
        {"return to game", 1, "key Up\nexpect \" return to game \"\nkey Enter\n", 0},
    };
    const std::string saved = savedFile(kHoleSeven);
    for (const WayOut& w : ways) {
        SCOPED_TRACE(w.what);
        put(saved);
        auto r = simtest::runInProcess(
            "expect \"next to the green\"\nkey Escape\nexpect \" select\"\n" + std::string(w.keys) + "end\n",
            [&] {
                inplay::freshRound(1);
                play::starthole();
                rs.savestate = w.savestate;
                try {
                    play::keywait();
                } catch (const play::LeaveRound&) {
                }
            },
            docs);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(std::filesystem::exists(sav), w.leaves != 2);
        if (w.leaves != 2) {
            EXPECT_EQ(slurp(sav), w.leaves == 0 ? saved : kMarker);
        }
    }
}

TEST_F(SavedGame, TheEndOfTheRoundWritesTheMarker) {
    put(savedFile(kHoleSeven));
    // The round is the course's first: its record falls and the holder is asked for.
    auto r = simtest::runInProcess("expect \"new record holder? yes\"\nkey Enter\nexpect \"press any key\"\nkey Space\n", [] {
        inplay::freshRound(1);
        rs.hole = 19;
        rs.resumed = 1;
        play::holeloop();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(slurp(sav), kMarker);
    EXPECT_EQ(rs.resumed, 0);
}

// ---- a full disk

TEST_F(SavedGame, AFullDiskKeepsTheOldFilesAndTheGameGoesOn) {
    const std::string saved = savedFile(kHoleSeven);
    put(saved);
    const std::string cfg = kp + "/golf.cfg", oldCfg = " 1 \r\n-100 \r\n";
    coursefiles::put(cfg, oldCfg);
    platform::files::faults().spaceLeft = 0;
    auto r = simtest::runInProcess("expect \"hole number  3\"\n" + std::string(kSave), [] {
        inplay::freshRound(1);
        rs.hole = 3;
        play::holeloop();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(slurp(sav), saved) << "the old saved game stays byte for byte";
    auto exitProgram = simtest::runInProcess(
        "expect \"next to the green\"\nkey Escape\nexpect \" select\"\nkey Up Up\nexpect \" exit program \"\nkey Enter\n",
        [] {
            inplay::freshRound(1);
            play::starthole();
            play::keywait();
        },
        docs);
    ASSERT_EQ(exitProgram.code, 0) << exitProgram.dump();
    EXPECT_EQ(slurp(sav), saved) << "nor does the marker replace it";
    auto settings = simtest::runInProcess("", [&] {
        course::File f = course::openreplace(cfg);
        course::printline(f, course::printed(2));
        EXPECT_FALSE(platform::attempt([&] { course::closefile(f); }));
    });
    EXPECT_EQ(slurp(cfg), oldCfg);
}

// ---- files this program never writes

TEST_F(SavedGame, AFileThatHoldsNoWholeSavedGameStartsANewRound) {
    std::string whole = savedFile(kHoleSeven);
    std::vector<double> holeFifty = kHoleSeven, flagTwo = kHoleSeven;
    holeFifty[1] = 50;
    flagTwo[0] = 2;
    const std::pair<const char*, std::string> files[] = {
        {"the marker", kMarker},
        {"cut short", whole.substr(0, 40)},
        {"a first value of 2", savedFile(flagTwo)},
        {"a hole outside the round", savedFile(holeFifty)},
        {"an unknown tag", std::string("\x02\x00\x01\x00\x08\x00", 6) + whole.substr(6)},
        {"empty", ""},
    };
    for (const auto& [what, bytes] : files) {
        SCOPED_TRACE(what);
        put(bytes);
        auto r = simtest::runInProcess(roundtest::pickKeys(1) + "expect \"Select Your Club\"\n", [] {
            inplay::freshRound(1);
            play::playround();
        }, docs);
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(rs.resumed, 0);
        EXPECT_TRUE(r.has("hole number  1.")) << r.dump();
        EXPECT_EQ(rs.total, 5);
    }
}

TEST_F(SavedGame, AnyTagReadsAndACourseNumberBeyondTheCatalogueIsHarmless) {
    put(savedFile(kHoleSeven, course::tagDouble));
    auto r = simtest::runInProcess("expect \"Select Your Club\"\n", [] {
        inplay::freshRound(1);
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.total, 28);
    EXPECT_EQ(rs.totaltag, course::tagDouble) << "the total keeps its tag while unchanged";
    std::vector<double> far = kHoleSeven;
    far[14] = 9999;
    put(savedFile(far));
    r = simtest::runInProcess("expect \"Select Your Club\"\n", [] {
        inplay::freshRound(3);
        rs.nocs = 7;
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(rs.c, 9999);
    EXPECT_EQ(rs.par, course::cs.H[7][1]) << "the course in memory plays on";
}

TEST_F(SavedGame, AParWithARealTagCarriesItsTagIntoTheSavedTotal) {
    coursefiles::Hole h;
    h.par = 4;
    h.tag = course::tagDouble;
    coursefiles::put(kp + "/golfwide.gcf", coursefiles::course18(false, h));
    auto r = simtest::runInProcess(roundtest::pickKeys(7) + "expect \"hole number  1\"\n" + std::string(kSave), [&] {
        inplay::freshRound(1);
        rs.nocs = course::GetCors(kp);
        play::playround();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    auto v = values(slurp(sav));
    ASSERT_EQ(v.size(), 16u);
    EXPECT_EQ(v[11].v, 4);
    EXPECT_EQ(v[11].tag, course::tagDouble);
    EXPECT_EQ(slurp(sav).size(), 70u);
}

}  // namespace
