// Text files: the number forms, lines and fields, the code page on disk and
// the existence test with its two name rules.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "course/exists.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "platform/platform.h"
#include "sim_harness.h"

using course::File;

namespace {

File reading(const std::string& bytes) {
    File f;
    f.path = "test";
    f.bytes = bytes;
    return f;
}

using simtest::slurp;

TEST(TextNumber, ThreeForms) {
    EXPECT_EQ(course::printed(7), " 7 ");
    EXPECT_EQ(course::printed(-100), "-100 ");
    EXPECT_EQ(course::printed(0), " 0 ");
    EXPECT_EQ(course::spaced(7), " 7");
    EXPECT_EQ(course::spaced(-100), "-100");
    EXPECT_EQ(course::bare(7), "7");
    EXPECT_EQ(course::bare(-100), "-100");
}

TEST(TextFile, APrintedNegativeSettingStandsInTheFirstColumnAndReadsBack) {
    File f;
    course::printline(f, course::printed(-100));
    course::printitem(f, course::printed(7));
    course::printline(f, " Jo ");
    EXPECT_EQ(f.bytes, "-100 \r\n 7  Jo \r\n");
    File in = reading(f.bytes);
    EXPECT_EQ(course::readnumber(in), -100);
    EXPECT_EQ(course::readfield(in), "7  Jo") << "a field runs to the end of the line, trailing blanks dropped";
    EXPECT_TRUE(course::atend(in));
}

TEST(TextFile, ACommaSplitsAFieldButNotALine) {
    const std::string text = "Jo, 72\r\nlast\r\n";
    File byField = reading(text);
    EXPECT_EQ(course::readfield(byField), "Jo");
    EXPECT_EQ(course::readnumber(byField), 72);
    EXPECT_FALSE(course::atend(byField));
    EXPECT_EQ(course::readfield(byField), "last");
    EXPECT_TRUE(course::atend(byField)) << "the last line end goes with the last field";
    File byLine = reading(text);
    EXPECT_EQ(course::readline(byLine), "Jo, 72");
    EXPECT_EQ(course::readline(byLine), "last");
    EXPECT_TRUE(course::atend(byLine));
    EXPECT_THROW(course::readline(byLine), platform::Failure);
    EXPECT_THROW(course::readfield(byField), platform::Failure);
}

TEST(TextFile, FieldsInQuotesBlankLinesAndWords) {
    File f = reading("  \"a, b\" ,x\r\n   \r\nword\r\n\r\n");
    EXPECT_EQ(course::readfield(f), "a, b");
    EXPECT_EQ(course::readfield(f), "x");
    EXPECT_EQ(course::readfield(f), "") << "a line of blanks";
    EXPECT_EQ(course::readnumber(f), 0) << "a word spells no number";
    EXPECT_EQ(course::readfield(f), "");
    EXPECT_TRUE(course::atend(f));
    File bare = reading("12\n34");
    EXPECT_EQ(course::readnumber(bare), 12) << "a lone LF ends a line too";
    EXPECT_EQ(course::readline(bare), "34");
    EXPECT_TRUE(course::atend(bare));
}

TEST(TextFile, TextIsTheCodePageOnDisk) {
    File f;
    course::printline(f, "Ren\u00e9e \u20ac5");
    EXPECT_EQ(f.bytes, "Ren\xE9" "e \x80" "5\r\n");
    File in = reading(f.bytes);
    EXPECT_EQ(course::readline(in), "Ren\u00e9e \u20ac5");
}

TEST(TextFile, ReplaceAndAppendThroughThePlatform) {
    std::string dir = simtest::tempDir();
    std::string path = dir + "/golflog.txt";
    auto r = simtest::runInProcess("", [&] {
        File a = course::openreplace(path);
        course::printline(a, "first");
        course::closefile(a);
        File b = course::openappend(path);
        course::printline(b, "second");
        course::closefile(b);
        File c = course::openreplace(dir + "/golf.cfg");
        course::printline(c, course::printed(-100));
        course::closefile(c);
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(slurp(path), "first\r\nsecond\r\n");
    EXPECT_EQ(slurp(dir + "/golf.cfg"), "-100 \r\n");
    std::filesystem::remove_all(dir);
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
        EXPECT_FALSE(course::exists(dir + "/golfpine.grf", NameRule::exact));
        EXPECT_FALSE(course::exists(dir + "/golflog.txt", NameRule::lowerCase)) << "a folder is no file";
        EXPECT_FALSE(course::exists(dir + "/golf.txt", NameRule::lowerCase));
        EXPECT_FALSE(course::exists(dir + "/golf*", NameRule::lowerCase));
        EXPECT_FALSE(course::exists(dir + "/none/golf.cfg", NameRule::lowerCase));
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    std::filesystem::remove_all(dir);
}

}  // namespace
