// The catalogue built from real files in a folder: the built-in courses, the
// custom files sorted by their lower-case names, the random course last, and
// the files that are left out. And the custom loader: both formats, their
// tags and texts, and the limits that keep a damaged file harmless.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "course/catalogue.h"
#include "course/course.h"
#include "course/customfile.h"
#include "course/coursefiles.h"
#include "platform/platform.h"
#include "sim_harness.h"

using coursefiles::Hole;
using coursefiles::put;

namespace {

struct Catalogue : ::testing::Test {
    std::string kp = simtest::tempDir();
    int nocs = 0;
    void TearDown() override { std::filesystem::remove_all(kp); }
    void file(const std::string& name, const std::string& bytes) { put(kp + "/" + name, bytes); }
    // Builds the catalogue on the simulated platform.
    void build() {
        auto r = simtest::runInProcess("", [&] { nocs = course::GetCors(kp); });
        ASSERT_EQ(r.code, 0) << r.dump();
    }
    std::vector<std::string> customFiles() const {
        std::vector<std::string> out;
        for (int a = 7; a < nocs; ++a) out.push_back(course::cs.cfile[a]);
        return out;
    }
};

TEST_F(Catalogue, NoCustomFileGivesSevenEntries) {
    file("notes.txt", "x");
    file("golfpine.grf", "x");
    build();
    EXPECT_EQ(nocs, 7);
    for (int a = 1; a <= 6; ++a) EXPECT_FALSE(course::cs.cname[a].empty()) << a;
    EXPECT_EQ(course::cs.cname[7], " Random golf course no rating ");
    EXPECT_EQ(course::cs.cfile[7], "");
    EXPECT_EQ(course::cs.cname[8], "");
}

TEST_F(Catalogue, OneOfEachFormatTakesSlotsSevenAndEight) {
    file("golfPine Hills.gcx", coursefiles::course18(true));
    file("golfOak.gcf", coursefiles::course18(false));
    build();
    EXPECT_EQ(nocs, 9);
    EXPECT_EQ(course::cs.cfile[7], "golfOak.gcf");
    EXPECT_EQ(course::cs.cname[7], " Oak ");
    EXPECT_EQ(course::cs.cfile[8], "golfPine Hills.gcx");
    EXPECT_EQ(course::cs.cname[8], " Pine Hills ");
    EXPECT_EQ(course::cs.cname[9], " Random golf course no rating ");
}

TEST_F(Catalogue, OneBlockSortedByLowerCaseNameWithTheExtensionLast) {
    for (const char* name : {"golfzz.gcf", "GOLFZeta.GCX", "golfab.gcf", "golfab cd.gcf", "golfA.gcx", "golf.gcf",
                             "golfab.gcx", "golfyak.gcf", "golf9.gcf"})
        file(name, coursefiles::course18(course::isgcx(name)));
    build();
    std::vector<std::string> want = {"golf.gcf",  "golf9.gcf",   "golfA.gcx",    "golfab cd.gcf", "golfab.gcf",
                                     "golfab.gcx", "golfyak.gcf", "GOLFZeta.GCX", "golfzz.gcf"};
    EXPECT_EQ(customFiles(), want);
    EXPECT_EQ(course::cs.cname[7], "  ") << "golf.gcf has a name of two blanks";
    EXPECT_EQ(course::cs.cname[14], " Zeta ") << "the stem keeps its letter case";
    EXPECT_EQ(nocs, 16);
}

TEST_F(Catalogue, SortIsStableAndMovesNamesWithFiles) {
    const char* files[] = {"golfb.gcf", "golfA.gcf", "golfa.gcf", "golfB.gcf"};
    for (int i = 0; i < 4; ++i) {
        course::cs.cfile[7 + i] = files[i];
        course::cs.cname[7 + i] = course::customName(files[i]);
    }
    course::sortCustom(7, 10);
    EXPECT_EQ(course::cs.cfile[7], "golfA.gcf");
    EXPECT_EQ(course::cs.cfile[8], "golfa.gcf");
    EXPECT_EQ(course::cs.cfile[9], "golfb.gcf");
    EXPECT_EQ(course::cs.cfile[10], "golfB.gcf");
    for (int a = 7; a <= 10; ++a) EXPECT_EQ(course::cs.cname[a], course::customName(course::cs.cfile[a]));
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
    EXPECT_EQ(nocs, 9);
}

TEST_F(Catalogue, OnlyTheFilesOfThePlayersFolderCount) {
    file("golfhere.gcf", coursefiles::course18(false));
    file("elsewhere/golfthere.gcf", coursefiles::course18(false));
    build();
    EXPECT_EQ(customFiles(), std::vector<std::string>{"golfhere.gcf"});
}

TEST_F(Catalogue, BeyondItsSlotsTheCatalogueTakesNoMoreAndKeepsTheRandomCourseLast) {
    const std::string bytes = coursefiles::course18(false);
    for (int i = 0; i < 2230; ++i) file("golf" + std::to_string(10000 + i) + ".gcf", bytes);
    build();
    EXPECT_EQ(nocs, 2222);
    EXPECT_EQ(course::cs.cname[2222], " Random golf course no rating ");
    EXPECT_EQ(course::cs.cfile[2222], "");
    auto custom = customFiles();
    EXPECT_EQ(custom.size(), 2215u);
    EXPECT_TRUE(std::is_sorted(custom.begin(), custom.end()));
}

// ---- the loader

struct Loader : Catalogue {
    // Builds the catalogue and loads entry c as loadcourse does.
    bool load(int c) {
        bool ok = false;
        auto r = simtest::runInProcess("", [&] {
            nocs = course::GetCors(kp);
            for (int h = 1; h <= 18; ++h) course::cs.HF[h] = 1;
            ok = platform::attempt([&] { course::GetCusCors(kp, c); });
        });
        EXPECT_EQ(r.code, 0) << r.dump();
        return ok;
    }
};

TEST_F(Loader, AGcfFillsTheTableAndKeepsThePond) {
    Hole h;
    h.par = 5;
    h.left = 160;   // an ordinary word on a .gcf course
    h.tag = 5;
    file("golfoak.gcf", coursefiles::course18(false, h));
    course::cs.HS[3][1] = "left over";
    course::cs.fox = 2;
    ASSERT_TRUE(load(7));
    EXPECT_EQ(course::cs.fox, 1);
    for (int hole = 1; hole <= 18; ++hole) {
        int want[8] = {0, 5, 300 + hole, 160, 9, 40, 6, 2};
        for (int k = 1; k <= 7; ++k) EXPECT_EQ(course::cs.H[hole][k], want[k]) << hole << "," << k;
        EXPECT_EQ(course::cs.HF[hole], 1);
        EXPECT_EQ(course::cs.partag[hole], 5) << "the par keeps the tag of its file";
    }
    EXPECT_EQ(course::cs.HS[3][1], "") << "custom texts are cleared for every load";
}

TEST_F(Loader, AGcxReadsTextsAfterBothIdsAndTakesItsFlags) {
    std::string bytes;
    for (int hole = 1; hole <= 18; ++hole) {
        Hole h;
        h.yards = 100 + hole;
        h.left = hole == 2 ? 160 : 52;
        h.right = hole == 2 || hole == 5 ? 160 : 9;
        h.lefttext = "the-old-mill";
        h.righttext = " A-Windy-Moor ";
        h.flag = hole % 2 ? 2 : 1;
        h.tag = hole == 5 ? 4 : 3;
        bytes += coursefiles::gcx(h);
    }
    file("GOLFZeta.GCX", bytes);
    ASSERT_TRUE(load(7));
    EXPECT_EQ(course::cs.fox, 2) << "read as .gcx whatever the case of its extension";
    EXPECT_EQ(course::cs.HS[2][1], "the-old-mill") << "no blanks added";
    EXPECT_EQ(course::cs.HS[2][2], " A-Windy-Moor ");
    EXPECT_EQ(course::cs.HS[5][1], "");
    EXPECT_EQ(course::cs.HS[5][2], " A-Windy-Moor ");
    EXPECT_EQ(course::cs.H[18][2], 118) << "every record found its place";
    EXPECT_EQ(course::cs.H[18][5], 40);
    EXPECT_EQ(course::cs.HF[1], 2);
    EXPECT_EQ(course::cs.HF[2], 1);
    EXPECT_EQ(course::cs.partag[5], 4);
    EXPECT_EQ(course::cs.partag[6], 3);
}

TEST_F(Loader, HugeAndMissingNumbersStayWithinBounds) {
    Hole h;
    h.par = std::nan("");
    h.sixth = 1e308;
    h.left = -1e308;
    h.right = 1e9;
    h.fairw = std::numeric_limits<double>::infinity();
    h.tag = 5;
    file("golfwild.gcf", coursefiles::course18(false, h));
    ASSERT_TRUE(load(7));
    EXPECT_EQ(course::cs.H[1][1], 0);
    EXPECT_EQ(course::cs.H[1][6], 1000000);
    EXPECT_EQ(course::cs.H[1][3], -1000000);
    EXPECT_EQ(course::cs.H[1][4], 1000000);
    EXPECT_EQ(course::cs.H[1][5], 1000000);
}

TEST_F(Loader, AFileThatVanishedOrWasCutAfterStartUpLeavesTheTable) {
    file("golfoak.gcf", coursefiles::course18(false));
    for (int k = 1; k <= 7; ++k) course::cs.H[4][k] = 77;
    course::cs.HS[4][2] = "old";
    bool ok = true;
    auto r = simtest::runInProcess("", [&] {
        nocs = course::GetCors(kp);
        std::string whole = coursefiles::course18(false);
        put(kp + "/golfoak.gcf", whole.substr(0, 100));
        ok = platform::attempt([&] { course::GetCusCors(kp, 7); });
        EXPECT_EQ(course::cs.H[4][1], 77);
        std::filesystem::remove(kp + "/golfoak.gcf");
        ok = ok || platform::attempt([&] { course::GetCusCors(kp, 7); });
        ok = ok || platform::attempt([&] { course::GetCusCors(kp, nocs); }) ||
             platform::attempt([&] { course::GetCusCors(kp, 5000); }) ||
             platform::attempt([&] { course::GetCusCors(kp, -3); });
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_FALSE(ok);
    EXPECT_EQ(course::cs.H[4][1], 77);
    EXPECT_EQ(course::cs.HS[4][2], "") << "texts cleared before the read";
    EXPECT_EQ(course::cs.fox, 1);
}

}  // namespace
