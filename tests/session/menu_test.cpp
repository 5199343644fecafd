// The main menu and the course picker as the player walks them, through
// greenlark-sim.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "course/coursefiles.h"
#include "sim_harness.h"

namespace {

using simtest::runBinary;

const std::string kSelect = "say2 \" select \"";
const std::string kWasher = "say2 \" 2. use ball washer \"";
const std::string kExitGame = "say2 \" 7. exit-game \"";
const std::string kHeader = "say2 \" Please Pick A-Course To Play. \"";
const std::string kFirst = "say2 \" Amateur Green Grass Country Club Rating 65 \"";
const std::string kMarsh = "say2 \" Marsh \"";
const std::string kMoor = "say2 \" Moor \"";
const std::string kRandom = "say2 \" Random golf course no rating \"";

// The first text spoken after line from, without its time; from moves to its line.
std::string nextSpoken(const simtest::Result& r, int& from) {
    for (size_t i = size_t(from) + 1; from >= 0 && i < r.lines.size(); ++i) {
        const std::string& l = r.lines[i];
        std::string body = l.substr(l.find(' ') + 1);
        if (body.starts_with("say ") || body.starts_with("say2 ")) {
            from = int(i);
            return body;
        }
    }
    return "";
}

// The first text spoken after the key of code `code` that follows line from;
// from moves to the key's line.
std::string spokenAfterKey(const simtest::Result& r, int code, int& from) {
    from = r.find("key " + std::to_string(code), from + 1);
    int said = from;
    return from < 0 ? "" : nextSpoken(r, said);
}

TEST(MainMenu, EscapeGoesToExitGameWithoutLeavingAndTheOtherKeysAsTheyShould) {
    auto r = runBinary(simtest::kToTheMenu + std::string(R"(expect " 2. use ball washer "
key Escape
expect " 7. exit-game "
key Escape
expect " 7. exit-game "
key Down
expect " 1. golf-course "
key Up
expect " 7. exit-game "
key X
expect " 2. use ball washer "
key 6
expect " 6. reed golf records file "
key F1
expect " 2. use ball washer "
key 5
expect " 5. reed golf log file "
key Enter
expect " Sorry, but there is no golf log file yet. "
expect " 2. use ball washer "
key 6 Enter
expect " Sorry, but there is no golf records file yet. "
expect " 2. use ball washer "
key Escape
expect " 7. exit-game "
key Enter
end
)"));
    ASSERT_EQ(r.code, 0) << r.dump();
    int at = -1;
    // Escape says the last entry and leaves nothing: a second one says it again.
    EXPECT_EQ(spokenAfterKey(r, 27, at), kExitGame);
    EXPECT_EQ(spokenAfterKey(r, 27, at), kExitGame);
    EXPECT_EQ(spokenAfterKey(r, 40, at), "say2 \" 1. golf-course \"") << "Down from 7 is 1";
    EXPECT_EQ(spokenAfterKey(r, 38, at), kExitGame) << "Up from 1 is 7";
    // Any other key is named, then the header and the first entry again.
    EXPECT_EQ(spokenAfterKey(r, 88, at), "say2 \"x\"");
    int said = at;
    nextSpoken(r, said);
    EXPECT_EQ(nextSpoken(r, said), kSelect);
    EXPECT_EQ(nextSpoken(r, said), kWasher);
    // A digit moves without accepting; F1 puts the pointer back on its first value.
    EXPECT_EQ(spokenAfterKey(r, 54, at), "say2 \" 6. reed golf records file \"");
    EXPECT_EQ(spokenAfterKey(r, 112, at), kSelect);
    // The log and the records are read from entries 5 and 6, and the menu
    // comes back from its start.
    EXPECT_EQ(r.count(kSelect), 5);
    // Enter on entry 7 leaves the program: thanks, and with no launcher
    // beside the program two beeps and the two sentences.
    int enter = -1;
    for (int i = r.find("key 13"); i >= 0; i = r.find("key 13", i + 1)) enter = i;
    EXPECT_EQ(r.sequence({"say \" Thank you for playing Greenlark. By Tobrell \"", "beep", "beep",
                          "say \"Sorry, but I could not find the Brindlewick game menu program.\"",
                          "say \" Exiting program. \"", "exit"},
                         enter)
                  .back(),
              r.find("exit", enter))
        << r.dump();
    EXPECT_GT(r.find("exit", enter), enter);
}

struct Picker : ::testing::Test {
    std::string docs = simtest::tempDir();
    void SetUp() override {
        coursefiles::put(docs + "/brindlewick/golfMoor.gcx", coursefiles::course18(true));
        coursefiles::put(docs + "/brindlewick/golfMarsh.gcf", coursefiles::course18(false));
    }
    void TearDown() override { std::filesystem::remove_all(docs); }
};

// Entries: 1 to 6 the built-in courses, 7 Marsh, 8 Moor, 9 the random course.
TEST_F(Picker, LettersSearchTheCoursesOfTheFolderDigitsPastSixRestartAndUpFromOneIsRandom) {
    std::string script = simtest::kToTheMenu + std::string(simtest::kMenuToARound) + R"(expect " Please Pick A-Course To Play. "
expect " Amateur Green Grass Country Club Rating 65 "
wait 2
key M
expect " Marsh "
key O
expect " Moor "
wait 2
key O
expect " Moor "
key Escape
expect " Please Pick A-Course To Play. "
expect " Amateur Green"
)";
    // Each of 7, 8, 9 and 0 is named and puts the list back on its first entry.
    for (const char* d : {"7", "8", "9", "0"})
        script += std::string("key Down\nexpect \" Down Hill Country Club Rating 69 \"\nkey ") + d +
                  "\nexpect \" Please Pick A-Course To Play. \"\nexpect \" Amateur Green\"\n";
    script += R"(key Up
expect " Random golf course no rating "
key Enter
expect "You are at hole number  1."
)";
    auto r = runBinary(script, {"--docs", docs});
    ASSERT_EQ(r.code, 0) << r.dump();
    int at = -1;
    // A letter long after the entry was said starts a search from the name's
    // first letter; one right after it adds to the search.
    auto letter = [&](int code, const std::string& ch) {
        EXPECT_EQ(spokenAfterKey(r, code, at), "say2 \"" + ch + "\"");
        int said = at;
        nextSpoken(r, said);
        return nextSpoken(r, said);
    };
    EXPECT_EQ(letter(77, "m"), kMarsh);
    EXPECT_EQ(letter(79, "o"), kMoor);
    // " o" begins no name: the pointer stays.
    EXPECT_EQ(letter(79, "o"), kMoor);
    // Escape is an other key: the list starts again.
    int said = at = r.find("key 27", at);
    EXPECT_EQ(nextSpoken(r, said), "say2 \"\\x1B\"") << "its name, as every other key's";
    EXPECT_EQ(nextSpoken(r, said), kHeader);
    EXPECT_EQ(nextSpoken(r, said), kFirst);
    for (int code : {55, 56, 57, 48}) {
        SCOPED_TRACE(code);
        std::string name(1, char(code));
        EXPECT_EQ(spokenAfterKey(r, code, at), "say2 \"" + name + "\"");
        int said = at;
        nextSpoken(r, said);
        EXPECT_EQ(nextSpoken(r, said), kHeader);
        EXPECT_EQ(nextSpoken(r, said), kFirst);
    }
    // Up from the first entry lands on the random course, the last.
    EXPECT_EQ(spokenAfterKey(r, 38, at), kRandom);
    EXPECT_TRUE(r.has("You are at hole number  1.")) << r.dump();
    EXPECT_EQ(r.count(kMarsh), 1);
}

}  // namespace
