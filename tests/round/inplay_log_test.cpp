// F7 in play: the review of the round log, hole by hole.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "course/stored.h"
#include "inplay_support.h"
#include "round/inplay.h"

using inplay::kDrive;
using inplay::kPrompt;
using inplay::kToTheTee;
using inplay::body;
using inplay::nextArrow;
using inplay::nextSpoken;
using inplay::spokenAfter;
using play::logentries;
using simtest::runBinary;

namespace {

const std::string kHead = "Greenlark   By Tobrell\r\n11-22-2026 \r\n Oakmere Links \r\n";
const std::string kHole1 = "hole number 1 par 5 you shot a 6 \r\ntotal par so far 5 your score 6 \r\n";
const std::string kHole2 = "hole number 2 par 4 you shot a 4 \r\ntotal par so far 9 your score 10 \r\n";
const std::string kEntry1 = "hole number 1 par 5 you shot a 6  total par so far 5 your score 6 ";
const std::string kEntry2 = "hole number 2 par 4 you shot a 4  total par so far 9 your score 10 ";

TEST(InPlayLogEntries, EachHoleIsOneEntryOfItsTwoLines) {
    EXPECT_EQ(logentries(kHead + kHole1 + kHole2), (std::vector<std::string>{kEntry1, kEntry2}));
    // Lines that end in a line feed alone read the same.
    std::string lf = kHead + kHole1;
    std::erase(lf, '\r');
    EXPECT_EQ(logentries(lf), std::vector<std::string>{kEntry1});
    // A comma is no end of a line here.
    EXPECT_EQ(logentries("a\r\nb\r\nc\r\nx, y\r\nz\r\n"), std::vector<std::string>{"x, y z"});
}

TEST(InPlayLogEntries, AMissingLineRepeatsTheLastOneRead) {
    // Only the head: the course name, twice.
    EXPECT_EQ(logentries(kHead), std::vector<std::string>{" Oakmere Links   Oakmere Links "});
    // An odd line at the end pairs with itself.
    EXPECT_EQ(logentries(kHead + kHole1 + "So you had\r\n"),
              (std::vector<std::string>{kEntry1, "So you had So you had"}));
    // No text at all: one empty entry, so that the review still opens.
    EXPECT_EQ(logentries(""), std::vector<std::string>{" "});
    // A head cut short.
    EXPECT_EQ(logentries("Greenlark   By Tobrell\r\n"),
              std::vector<std::string>{"Greenlark   By Tobrell Greenlark   By Tobrell"});
}

TEST(InPlayLogEntries, TheReviewHoldsAtMost111Entries) {
    std::string text = kHead;
    for (int i = 1; i <= 120; ++i) text += "line " + std::to_string(i) + "\r\nmore\r\n";
    auto entries = logentries(text);
    ASSERT_EQ(entries.size(), 111u);
    EXPECT_EQ(entries.front(), "line 1 more");
    EXPECT_EQ(entries.back(), "line 111 more");
}

// A documents folder whose player folder holds the log text given and a
// game saved at the first tee of course 1, so that the round goes on with
// that log instead of starting its own.
// The saved game of docsWithLog is taken up from the main menu, with no picker.
const std::string kToTheResumedTee = simtest::kToTheMenu + std::string(simtest::kMenuToARound) +
                                     "expect \"Select Your Club\"\nexpect \" 1\"\n";

std::string docsWithLog(const std::string& text) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    std::ofstream(docs + "/brindlewick/golflog.txt", std::ios::binary) << text;
    std::string saved;
    // flag, hole, stks, eight counters, total, dirty, hookset, c, nsaves
    for (int v : {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5, 1, 3, 1, 1}) saved += course::encodevalue({double(v), 2});
    std::ofstream(docs + "/brindlewick/golfgame.sav", std::ios::binary) << saved;
    return docs;
}

TEST(InPlayLogReview, ArrowsGoRoundTheHolesAndEscapeEndsWithTheReportOfTheStage) {
    std::string docs = docsWithLog(kHead + kHole1 + kHole2);
    auto r = runBinary(kToTheResumedTee + R"(key F7
expect "hole number 1"
key Down
expect "hole number 2"
key Down
expect "hole number 1"
key Up
expect "hole number 2"
key F1
expect "Use the up and down"
key Escape
expect "next to the green"
key F1
expect "Wedge. "
)",
                       {"--docs", docs});
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    int f7 = r.find("key 118");
    ASSERT_GT(f7, 0) << r.dump();
    // All sounds stop before the first entry.
    int first = r.find("say2 \"" + kEntry1 + "\"", f7);
    int stop = r.find("stop golf10", f7);
    EXPECT_GT(stop, f7) << r.dump();
    EXPECT_LT(stop, first);
    EXPECT_EQ(spokenAfter(r, f7), "say2 \"" + kEntry1 + "\"");
    // Down, Down round to 1, Up round to the last.
    const std::string want[] = {kEntry2, kEntry1, kEntry2};
    int at = first;
    for (const auto& entry : want) {
        int key = nextArrow(r, at + 1);
        EXPECT_EQ(spokenAfter(r, key), "say2 \"" + entry + "\"") << r.dump();
        at = key;
    }
    // Any other key says how to use it, in full, and the entry is not said again.
    int other = r.find("key 112", f7);
    EXPECT_EQ(spokenAfter(r, other),
              "say \" Use the up and down arrow keys to review the holes, press the escape key to return to the "
              "game. \"");
    // Escape: the crowd, then the F2 reply of the tee, the description.
    int esc = r.find("key 27", f7);
    int crowd = r.find("play golf10", esc);
    int describe = r.find("You are at hole number", esc);
    EXPECT_GT(crowd, esc) << r.dump();
    EXPECT_LT(crowd, describe);
    EXPECT_EQ(nextSpoken(r, esc + 1), describe);
    // And the wait goes on at the same prompt.
    int f1 = r.find("key 112", esc);
    EXPECT_EQ(spokenAfter(r, f1), "say2 \"" + kPrompt + " \"");
    EXPECT_FALSE(r.has("A-choice"));
}

TEST(InPlayLogReview, InPlayEscapeEndsWithTheShotReport) {
    std::string docs = docsWithLog(kHead + kHole1);
    auto r = runBinary(kToTheResumedTee + kDrive + R"(key F7
expect "hole number 1"
key Escape
expect "shot went"
)",
                       {"--docs", docs});
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    int esc = r.find("key 27", r.find("key 118"));
    ASSERT_GT(esc, 0) << r.dump();
    EXPECT_EQ(body(r, nextSpoken(r, esc + 1)).rfind("say2 \" shot went ", 0), 0u) << r.dump();
    EXPECT_EQ(r.count("say2 \" shot went "), 2);
}

TEST(InPlayLogReview, OpensWithTheHeadOnlyAndWithNoLogAtAll) {
    std::string docs = docsWithLog(kHead);
    auto head = runBinary(kToTheResumedTee + "key F7\nexpect \"Oakmere\"\nkey Escape\nexpect \"next to\"\n",
                          {"--docs", docs});
    std::filesystem::remove_all(docs);
    ASSERT_EQ(head.code, 0) << head.dump();
    EXPECT_EQ(spokenAfter(head, head.find("key 118")), "say2 \" Oakmere Links   Oakmere Links \"");

    // A file where the player's folder should be: the log cannot be started.
    std::string empty = simtest::tempDir();
    std::ofstream(empty + "/brindlewick") << "";
    auto none = runBinary(std::string(kToTheTee) + "key F7\nwait 1\nkey Down\nwait 1\nkey Escape\nexpect \"next to\"\n",
                          {"--docs", empty});
    std::filesystem::remove_all(empty);
    ASSERT_EQ(none.code, 0) << none.dump();
    int f7 = none.find("key 118");
    EXPECT_EQ(spokenAfter(none, f7), "say2 \" \"") << none.dump();
    EXPECT_EQ(spokenAfter(none, none.find("key 40", f7)), "say2 \" \"");
    int esc = none.find("key 27", f7);
    EXPECT_EQ(nextSpoken(none, esc + 1), none.find("You are at hole number", esc));
}

}  // namespace
