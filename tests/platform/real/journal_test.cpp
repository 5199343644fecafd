// The game journal: its lines written from what the real platform sees. A
// real game journaled and played again is the terminal test's round.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/real/journal.h"

namespace fs = std::filesystem;
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

// The journal's own lines: a key behind the expect of the text last heard,
// a key during an indicator as the per cent the game read, seeds, the close.
TEST(JournalLines, WhatThePlatformSawAsAScript) {
    using platform::real::atPercent;
    using platform::real::expectChain;
    const std::pair<long, const char*> percents[] = {
        {0, "0.0"}, {11620, "37.4"}, {11464, "36.9"}, {30988 * 37 / 100 + 1, "37.0"}};   // never rounded up
    for (auto [cursor, text] : percents) EXPECT_EQ(atPercent(cursor, 30988), text) << cursor;
    EXPECT_EQ(atPercent(100, 0), "0.0");
    EXPECT_TRUE(expectChain({}).empty());
    EXPECT_EQ(expectChain({" select ", " wood "}), (std::vector<std::string>{" wood "}));
    // " no " stands inside the question: the question's expect comes first,
    // or " no " would be met by the question.
    EXPECT_EQ(expectChain({" Is  jo  correct? no ", "x", " no "}),
              (std::vector<std::string>{" Is  jo  correct? no ", " no "}));
    EXPECT_EQ(expectChain({"o", "jo", "x", "o"}), (std::vector<std::string>{"jo", "o"}));

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
        j.key(32, Journal::Indicator{3, 100});   // waits for the game's reading
        j.read(4, 9999);
        j.read(3, 11620);
        j.read(3, 20000);
        j.spoke(" shot went ", 1);
        j.made(5, "golf27.wav", 107300);
        j.key(13, Journal::Indicator{5, 53650});   // never read: its own cursor
        j.closed();
    }
    EXPECT_EQ(commands(path), (std::vector<std::string>{"expect \" Please enter your name. \"", "key J", "key Shift",
                                                        "expect \"say \\\"\\x01\\\"\"", "key F10",
                                                        "seed 18446744073709551615", "at golf7 37.4 Space",
                                                        "expect \" shot went \"", "at golf27 50.0 Enter", "close",
                                                        "end"}));
    std::string text = slurp(path);
    EXPECT_NE(text.find("# say2 \" shot went \"\n"), std::string::npos);
    EXPECT_NE(text.find("# play golf10 loop\n"), std::string::npos);
    fs::remove(path);
}

}  // namespace
