// The catalogue built from real files in a folder, the custom loader with its
// two formats and the limits that keep a damaged file harmless, the names of
// the sides of a hole, and a custom course as the player hears it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "course/catalogue.h"
#include "course/course.h"
#include "course/coursefiles.h"
#include "course/customfile.h"
#include "course/exists.h"
#include "course/locs.h"
#include "platform/platform.h"
#include "round/driver.h"
#include "round/inplay_support.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"

using coursefiles::Hole;
using course::cs;

namespace {

struct Catalogue : ::testing::Test {
    std::string kp = simtest::tempDir();
    int nocs = 0;
    void TearDown() override { std::filesystem::remove_all(kp); }
    void file(const std::string& name, const std::string& bytes) { coursefiles::put(kp + "/" + name, bytes); }
    void build() {
        auto r = simtest::runInProcess("", [&] { nocs = course::GetCors(kp); });
        ASSERT_EQ(r.code, 0) << r.dump();
    }
    std::vector<std::string> customFiles() const {
        std::vector<std::string> out;
        for (int a = 7; a < nocs; ++a) out.push_back(cs.cfile[a]);
        return out;
    }
    // Builds the catalogue and loads entry c as loadcourse does.
    bool load(int c) {
        bool ok = false;
        auto r = simtest::runInProcess("", [&] {
            nocs = course::GetCors(kp);
            for (int h = 1; h <= 18; ++h) cs.HF[h] = 1;
            ok = platform::attempt([&] { course::GetCusCors(kp, c); });
        });
        EXPECT_EQ(r.code, 0) << r.dump();
        return ok;
    }
};

TEST_F(Catalogue, CustomFilesSortedByLowerCaseNameAfterTheBuiltInsAndBeforeTheRandomCourse) {
    file("notes.txt", "x");
    file("golfpine.grf", "x");
    file("elsewhere/golfthere.gcf", coursefiles::course18(false));
    build();
    EXPECT_EQ(nocs, 7);
    EXPECT_EQ(cs.cname[7], " Random golf course no rating ");
    EXPECT_EQ(cs.cfile[7] + cs.cname[8], "");

    for (const char* name : {"golfzz.gcf", "GOLFZeta.GCX", "golfab.gcf", "golfab cd.gcf", "golfA.gcx", "golf.gcf",
                             "golfab.gcx", "golfyak.gcf", "golf9.gcf"})
        file(name, coursefiles::course18(course::isgcx(name)));
    build();
    EXPECT_EQ(customFiles(), (std::vector<std::string>{"golf.gcf", "golf9.gcf", "golfA.gcx", "golfab cd.gcf",
                                                       "golfab.gcf", "golfab.gcx", "golfyak.gcf", "GOLFZeta.GCX",
                                                       "golfzz.gcf"}));
    EXPECT_EQ(cs.cname[7], "  ") << "golf.gcf has a name of two blanks";
    EXPECT_EQ(cs.cname[14], " Zeta ") << "the stem keeps its letter case";
    EXPECT_EQ(cs.cname[16], " Random golf course no rating ");

    const char* files[] = {"golfb.gcf", "golfA.gcf", "golfa.gcf", "golfB.gcf"};
    for (int i = 0; i < 4; ++i) cs.cfile[7 + i] = files[i], cs.cname[7 + i] = course::customName(files[i]);
    course::sortCustom(7, 10);
    for (int a = 7; a <= 10; ++a) EXPECT_EQ(cs.cname[a], course::customName(cs.cfile[a]));
    EXPECT_EQ(cs.cfile[7] + cs.cfile[8] + cs.cfile[9] + cs.cfile[10], "golfA.gcfgolfa.gcfgolfb.gcfgolfB.gcf")
        << "the sort is stable";
}

TEST_F(Catalogue, FilesThatAreNotWholeCoursesAreLeftOut) {
    std::string whole = coursefiles::course18(false);
    file("golfshort.gcf", whole.substr(0, whole.size() - 1));
    file("golfnearly.gcf", whole.substr(0, whole.size() - 4));
    file("golfempty.gcf", "");
    file("golfoddtag.gcf", std::string("\x09\x00", 2) + whole.substr(2));
    Hole custom;
    custom.left = 160;
    custom.lefttext = " A-windy-moor ";
    std::string x = coursefiles::course18(true, custom);
    file("golfcut.gcx", x.substr(0, x.size() / 2));
    // A text of 4,001 characters, or of a negative length, marks the file damaged.
    std::string longText = coursefiles::value(4, 2) + coursefiles::value(400, 2) + coursefiles::value(160, 2) +
                           coursefiles::value(9, 2) + coursefiles::value(4001, 3);
    for (int i = 0; i < 4001; ++i) longText += coursefiles::value(65, 2);
    file("golflong.gcx", longText + x);
    file("golfnegative.gcx", longText.substr(0, 16) + coursefiles::value(-1, 3) + x);
    std::filesystem::create_directories(kp + "/golffolder.gcf");
    file("golfgood.gcf", whole + "trailing bytes are ignored");
    file("golfx.gcx", x);
    build();
    EXPECT_EQ(customFiles(), (std::vector<std::string>{"golfgood.gcf", "golfx.gcx"}));
}

TEST_F(Catalogue, BeyondItsSlotsTheCatalogueTakesNoMoreAndKeepsTheRandomCourseLast) {
    const std::string bytes = coursefiles::course18(false);
    for (int i = 0; i < 2230; ++i) file("golf" + std::to_string(10000 + i) + ".gcf", bytes);
    build();
    EXPECT_EQ(nocs, 2222);
    EXPECT_EQ(cs.cname[2222], " Random golf course no rating ");
    EXPECT_EQ(cs.cfile[2222], "");
    auto custom = customFiles();
    EXPECT_EQ(custom.size(), 2215u);
    EXPECT_TRUE(std::is_sorted(custom.begin(), custom.end()));
}

TEST_F(Catalogue, TheLoaderFillsTheTableFromEitherFormatWithinBounds) {
    Hole h;
    h.par = 5;
    h.left = 160;   // an ordinary word on a .gcf course
    h.tag = 5;
    file("golfoak.gcf", coursefiles::course18(false, h));
    std::string gcx;
    for (int hole = 1; hole <= 18; ++hole) {
        Hole g;
        g.yards = 100 + hole;
        g.left = hole == 2 ? 160 : 52;
        g.right = hole == 2 || hole == 5 ? 160 : 9;
        g.lefttext = "the-old-mill";
        g.righttext = " A-Windy-Moor ";
        g.flag = hole % 2 ? 2 : 1;
        g.tag = hole == 5 ? 4 : 3;
        gcx += coursefiles::gcx(g);
    }
    file("GOLFZeta.GCX", gcx);
    Hole wild;
    wild.par = std::nan(""), wild.sixth = 1e308, wild.left = -1e308, wild.right = 1e9;
    wild.fairw = std::numeric_limits<double>::infinity(), wild.tag = 5;
    file("golfzz.gcf", coursefiles::course18(false, wild));

    cs.HS[3][1] = "left over";
    cs.fox = 2;
    ASSERT_TRUE(load(7));
    EXPECT_EQ(cs.fox, 1);
    for (int hole = 1; hole <= 18; ++hole) {
        int want[8] = {0, 5, 300 + hole, 160, 9, 40, 6, 2};
        for (int k = 1; k <= 7; ++k) EXPECT_EQ(cs.H[hole][k], want[k]) << hole << "," << k;
        EXPECT_EQ(cs.HF[hole], 1) << "a .gcf keeps the pond";
        EXPECT_EQ(cs.partag[hole], 5) << "the par keeps the tag of its file";
    }
    EXPECT_EQ(cs.HS[3][1], "") << "custom texts are cleared for every load";

    ASSERT_TRUE(load(8));
    EXPECT_EQ(cs.fox, 2) << "read as .gcx whatever the case of its extension";
    EXPECT_EQ(cs.HS[2][1], "the-old-mill") << "no blanks added";
    EXPECT_EQ(cs.HS[2][2] + cs.HS[5][1] + "|" + cs.HS[5][2], " A-Windy-Moor | A-Windy-Moor ");
    EXPECT_EQ(cs.H[18][2], 118) << "every record found its place";
    EXPECT_EQ(cs.H[18][5], 40);
    EXPECT_EQ(cs.HF[1] * 10 + cs.HF[2], 21);
    EXPECT_EQ(cs.partag[5] * 10 + cs.partag[6], 43);

    ASSERT_TRUE(load(9));
    EXPECT_EQ(cs.H[1][1], 0);
    EXPECT_EQ(cs.H[1][6], 1000000);
    EXPECT_EQ(cs.H[1][3], -1000000);
    EXPECT_EQ(cs.H[1][4], 1000000);
    EXPECT_EQ(cs.H[1][5], 1000000);
}

TEST_F(Catalogue, AFileThatVanishedOrWasCutAfterStartUpLeavesTheTable) {
    file("golfoak.gcf", coursefiles::course18(false));
    for (int k = 1; k <= 7; ++k) cs.H[4][k] = 77;
    cs.HS[4][2] = "old";
    bool ok = true;
    auto r = simtest::runInProcess("", [&] {
        nocs = course::GetCors(kp);
        coursefiles::put(kp + "/golfoak.gcf", coursefiles::course18(false).substr(0, 100));
        ok = platform::attempt([&] { course::GetCusCors(kp, 7); });
        std::filesystem::remove(kp + "/golfoak.gcf");
        for (int c : {7, nocs, 5000, -3}) ok = ok || platform::attempt([&] { course::GetCusCors(kp, c); });
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_FALSE(ok);
    EXPECT_EQ(cs.H[4][1], 77);
    EXPECT_EQ(cs.HS[4][2], "") << "texts cleared before the read";
    EXPECT_EQ(cs.fox, 1);
}

TEST(CourseNaming, EachSideByItsIdOrTheHolesOwnText) {
    course::fillLocs();
    for (auto& row : cs.HS)
        for (auto& text : row) text.clear();
    cs.HS[7][1] = "the old mill", cs.HS[7][2] = "unused", cs.HS[6][1] = "hole six";
    cs.HS[2][1] = "west", cs.HS[2][2] = " a duck pond ";
    const struct {
        int fox, hole, left, right;
        const char *wantLeft, *wantRight;
    } cases[] = {
        {1, 1, 3, 162, " Trees ", " A-cow-pasture "},
        {1, 7, 160, 160, " A-cemetery ", " A-cemetery "},   // an ordinary word where there are no texts
        {2, 7, 160, 52, "the old mill", " iris-beds "},     // used as stored: no blanks added
        {2, 2, 8, 160, " A-barn ", " a duck pond "},
        {2, 2, 160, 160, "west", " a duck pond "},
        {2, 6, 160, 1, "hole six", " Fairway "},           // from the hole in play
        {1, 1, 0, 163, "", ""},
        {1, 1, 165, 0, "", ""},
        {1, 1, 166, 5, "kept", " A-Sand Trap "},           // outside the vocabulary: the name before
        {1, 1, 6, -3, " A-Big Lake ", "kept"},
    };
    for (const auto& c : cases) {
        std::string left = "kept", right = "kept";
        cs.fox = c.fox;
        course::nameSides(c.hole, c.left, c.right, left, right);
        EXPECT_EQ(left, c.wantLeft) << c.hole << " " << c.left;
        EXPECT_EQ(right, c.wantRight) << c.hole << " " << c.right;
    }
    EXPECT_THROW(course::locname(1, 1, 166), platform::Failure);
    EXPECT_THROW(course::locname(1, 2, -1), platform::Failure);
    cs.fox = 1;
}

// A .gcx whose first hole has a text on its left and a flag of 2 (no pond),
// an id outside the vocabulary on the right of hole 2 and texts on the right
// of the rest; then a .gcf and a built-in course that use id 160 as a word.
TEST(CustomCourse, HeardWithItsTextsItsFlagAndTheNamesByTheRule) {
    std::string docs = simtest::tempDir(), kp = docs + "/brindlewick";
    std::string bytes;
    for (int hole = 1; hole <= 18; ++hole) {
        Hole h;
        h.par = 3, h.yards = 150;
        h.left = hole == 1 ? 160 : 8;
        h.right = hole == 1 ? 52 : hole == 2 ? 500 : 160;
        h.lefttext = "the-old-mill", h.righttext = " A-windy-moor ";
        h.flag = hole == 1 ? 2 : 1;
        bytes += coursefiles::gcx(h);
    }
    coursefiles::put(kp + "/golfMoor.gcx", bytes);
    Hole plain;
    plain.right = 160;
    coursefiles::put(kp + "/golfPlain.gcf", coursefiles::course18(false, plain));
    auto r = simtest::runInProcess(roundtest::pickKeys(7) + "expect \"next to the green\"\nexpect \"hole number  16\"\n",
                                   [&] {
                                       inplay::freshRound(1);
                                       play::rs.nocs = course::GetCors(kp);
                                       play::playround();
                                   }, docs);
    EXPECT_TRUE(r.has("say2 \" Jo  You are at hole number  1. distance  150 yards. par  3. on your left "
                      "is the-old-mill. on your right is  iris-beds. next to the green is A-sand trap. \""))
        << r.dump();
    r = simtest::runInProcess("expect \"hole number  16\"\nend\n", [&] {
        inplay::freshRound(1);
        play::rs.nocs = course::GetCors(kp);
        play::rs.c = 7;
        play::loadcourse();
        for (play::rs.hole = 1; play::rs.hole <= 3; ++play::rs.hole) play::starthole();
        play::rs.c = 8, play::rs.hole = 1;
        play::loadcourse();
        play::starthole();
        play::rs.c = 6, play::rs.hole = 16;
        play::loadcourse();
        play::starthole();
    }, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    // Hole 2: id 500 lies outside the vocabulary, so the right keeps hole 1's name.
    auto at = r.sequence({"hole number  2. distance  150 yards. par  3. on your left is  A-barn. on your right is "
                          " iris-beds. next to the green is A-pond and ",
                          "hole number  3. distance  150 yards. par  3. on your left is  A-barn. on your right is "
                          " A-windy-moor.",
                          "on your right is  A-cemetery.",
                          "on your left is  A-rose-garden. on your right is  A-cemetery."});
    EXPECT_GE(at.back(), 0) << r.dump();
    std::filesystem::remove_all(docs);
}

TEST(FileExists, LowerCaseForTheGamesFilesLetterForLetterForARecord) {
    std::string dir = simtest::tempDir();
    for (const char* name : {"Golf.CFG", "golfPine.grf", "GOLFGAME.SAV", "golfgame.sav"})
        std::ofstream(dir + "/" + name) << "x";
    std::filesystem::create_directory(dir + "/golflog.txt");
    using course::NameRule;
    auto r = simtest::runInProcess("", [&] {
        EXPECT_EQ(course::findfile(dir + "/golf.cfg", NameRule::lowerCase), dir + "/Golf.CFG");
        EXPECT_EQ(course::findfile(dir + "/golfgame.sav", NameRule::lowerCase), dir + "/golfgame.sav")
            << "the exact name wins";
        EXPECT_EQ(course::findfile(dir + "/golfPine.grf", NameRule::exact), dir + "/golfPine.grf");
        for (const char* none : {"/golfpine.grf", "/golflog.txt", "/golf.txt", "/golf*", "/none/golf.cfg"})
            EXPECT_FALSE(course::exists(dir + none, std::string(none) == "/golfpine.grf" ? NameRule::exact
                                                                                         : NameRule::lowerCase))
                << none;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    std::filesystem::remove_all(dir);
}

}  // namespace
