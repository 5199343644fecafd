// What a player hears at the first prompts: typing a name, the keys that
// are no answer, the numeric pad, the yes/no question.
#include <gtest/gtest.h>

#include "sim_harness.h"

namespace {

// The prompts as a small program asks them: the name and its question.
simtest::Result run(const std::string& script) { return simtest::runInProcess(script, simtest::namePrompt); }

const char* kPrompt = "say2 \" Please enter your name. \"";

TEST(GetterScenario, TypesCapitalsDigitsAndReadsBack) {
    auto r = run(R"(expect "Please enter your name"
key Shift A L Shift 3 Space Shift Backspace B
key Enter
expect "Is  Al3b  correct for your name? yes "
key N Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    // The first letter after Shift is capital, the next is not; Shift then a
    // digit gives the digit; Shift then Backspace uses the mark up.
    int a = r.find("say2 \"A\"");
    ASSERT_GE(a, 0) << r.dump();
    EXPECT_GE(r.find("say2 \"l\"", a), 0);
    EXPECT_GE(r.find("say2 \"3\"", a), 0);
    // Shift then Backspace uses the mark up, and Backspace speaks the
    // blank it takes away.
    int bs = r.find("key 8", a);
    ASSERT_GE(bs, 0);
    EXPECT_GE(r.find("say2 \" \"", bs), 0);
}

TEST(GetterScenario, BackspaceOnEmptyLineIsSilentAndF1Restarts) {
    auto r = run(R"(expect "Please enter your name"
key Backspace
key X F1
expect "Please enter your name"
key Y Enter
expect "Is  y  correct"
key N Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int bs = r.find("key 8");
    int x = r.find("key 88");
    ASSERT_GE(bs, 0);
    for (int i = bs + 1; i < x; ++i) EXPECT_EQ(r.lines[size_t(i)].find("say"), std::string::npos) << r.lines[size_t(i)];
    // The x typed before F1 is lost.
    EXPECT_FALSE(r.has("Is  xy "));
}

TEST(GetterScenario, KeyThatIsNoLetterSaysItsNameAndTheRule) {
    auto r = run(R"(expect "Please enter your name"
key Q Comma
expect " Please use letters, numbers or spaces only. "
key Num3
expect " Please use letters"
key NumPlus
expect " Please use letters"
key Enter
expect "Is  q  correct"
key N Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int comma = r.find("key 188");
    ASSERT_GE(comma, 0);
    EXPECT_GE(r.find("say2 \"\u00bc\"", comma), 0) << "the comma reads as the character of its code";
    EXPECT_GE(r.find("say \" Please use letters, numbers or spaces only. \"", comma), 0);
    // Numeric pad digits are no digits: pad 3 reads c, pad plus k.
    EXPECT_GE(r.find("say2 \"c\"", comma), 0);
    EXPECT_GE(r.find("say2 \"k\"", comma), 0);
    EXPECT_EQ(r.count("Please use letters"), 3);
}

TEST(GetterScenario, EscapeLeavesTheNameEmptyAndEndsTheEntry) {
    auto r = run("expect \"Please enter your name\"\nkey A Escape\nend\n");
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("exit"));
    EXPECT_FALSE(r.has("correct for your name"));
}

TEST(KeysScenario, F10RepeatsThePromptAsF1Does) {
    auto r = run(R"(expect "Please enter your name"
key F10
expect "Please enter your name"
key F1
expect "Please enter your name"
key Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("key 121"));
    EXPECT_EQ(r.count(kPrompt), 3);
    // F1 names no key.
    EXPECT_FALSE(r.has("say2 \"p\""));
}

TEST(KeysScenario, StopKeysHushTheVoiceButAreNoAnswer) {
    auto r = run(R"(expect "Please enter your name"
key B Ctrl F8 Alt Pause ScrollLock Enter
expect "Is  b  correct"
key N Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    int ctrl = r.find("key 17");
    int enter = r.find("key 13");
    ASSERT_GE(ctrl, 0);
    int hushes = 0;
    for (int i = ctrl; i < enter; ++i) {
        const std::string& l = r.lines[size_t(i)];
        EXPECT_EQ(l.find("say"), std::string::npos) << l;
        hushes += l.find(" hush") != std::string::npos;
    }
    EXPECT_EQ(hushes, 5);
    EXPECT_EQ(r.count("Please use letters"), 0);
}

TEST(YesNoScenario, EnterTakesThePresentAnswerAndArrowsFlip) {
    auto r = run(R"(expect "Please enter your name"
type Jo
key Enter
expect " Is  Jo  correct for your name? yes "
key Up
expect " no "
key Down
expect " yes "
key Up Enter
expect "Please enter your name"
key Escape
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_FALSE(r.has("Hello")) << "Enter took the no";
}

TEST(YesNoScenario, LettersAnswerAtOnceAndOtherKeysAskAgain) {
    auto r = run(R"(expect "Please enter your name"
type Jo
key Enter
expect "correct for your name? yes "
key Up X
expect "correct for your name? no "
key F1
expect "correct for your name? yes "
key NumPoint
expect "Please enter your name"
type Jo
key Enter Y
expect " Hello  Jo . "
end
)");
    ASSERT_EQ(r.code, 0) << r.dump();
    // x is named, then the question comes again with the answer it had.
    int x = r.find("key 88");
    EXPECT_GE(r.find("say2 \"x\"", x), 0);
    // Numeric pad point reads n: a no, said at once without Enter.
    int np = r.find("key 110");
    EXPECT_GE(r.find("say2 \"n\"", np), 0);
    EXPECT_EQ(r.count("Hello"), 1);
}

}  // namespace
