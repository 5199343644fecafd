// The first prompts as a player meets them: typing a name with every kind
// of key, the yes/no question, and the spoken menu.
#include <gtest/gtest.h>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"
#include "voice/patterns.h"
#include "voice/state.h"

namespace {

TEST(NamePrompt, EveryKindOfKeyAtTheNameAndTheQuestion) {
    auto r = simtest::runInProcess(R"(expect "Please enter your name"
key Backspace
key X F1
expect "Please enter your name"
key F10
expect "Please enter your name"
key Shift A L Shift 3 Space Shift Backspace B
key Enter
expect "Is  Al3b  correct for your name? yes "
key Up
expect " no "
key Down
expect " yes "
key Up Enter
expect "Please enter your name"
key Q Comma
expect " Please use letters, numbers or spaces only. "
key Num3
expect " Please use letters"
key NumPlus
expect " Please use letters"
key B Ctrl F8 Alt Pause ScrollLock Enter
expect "Is  qb  correct for your name? yes "
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
)",
                                   simtest::namePrompt);
    ASSERT_EQ(r.code, 0) << r.dump();
    // Backspace on an empty line is silent.
    int bs = r.find("key 8"), x = r.find("key 88");
    for (int i = bs + 1; i < x; ++i) EXPECT_EQ(r.lines[size_t(i)].find("say"), std::string::npos) << r.lines[size_t(i)];
    EXPECT_EQ(r.count("say2 \" Please enter your name. \""), 5);
    EXPECT_FALSE(r.has("say2 \"p\"")) << "F1 names no key";
    // After Shift the first letter is a capital, the next is not; Shift
    // then a digit gives the digit; Backspace speaks the blank it takes.
    auto typed = r.sequence({"say2 \"A\"", "say2 \"l\"", "say2 \"3\"", "key 8", "say2 \" \""});
    EXPECT_GE(typed.back(), 0) << r.dump();
    // A key that is no letter reads as the character of its code, the rule
    // follows; the pad's digits are no digits (pad 3 reads c, plus k).
    auto rule = r.sequence({"key 188", "say2 \"\u00bc\"", "say \" Please use letters, numbers or spaces only. \"",
                            "say2 \"c\"", "say2 \"k\""});
    EXPECT_GE(rule.back(), 0) << r.dump();
    EXPECT_EQ(r.count("Please use letters"), 3);
    // The stop keys hush the voice and are no answer.
    int ctrl = r.find("key 17"), enter = r.find("key 13", ctrl), hushes = 0;
    for (int i = ctrl; i < enter; ++i) {
        EXPECT_EQ(r.lines[size_t(i)].find("say"), std::string::npos) << r.lines[size_t(i)];
        hushes += r.lines[size_t(i)].find(" hush") != std::string::npos;
    }
    EXPECT_EQ(hushes, 5);
    // A letter at the question is named and the question asked again; the
    // pad's point reads n, a no at once.
    EXPECT_GE(r.find("say2 \"x\"", r.find("key 88", x + 1)), 0);
    EXPECT_GE(r.find("say2 \"n\"", r.find("key 110")), 0);
    EXPECT_EQ(r.count("Hello"), 1) << "Enter on no took the no";

    auto esc = simtest::runInProcess("expect \"Please enter your name\"\nkey A Escape\nend\n", simtest::namePrompt);
    EXPECT_TRUE(esc.has("exit")) << esc.dump();
    EXPECT_FALSE(esc.has("correct for your name"));
}

TEST(MenuPattern, WrapsHotKeysAndOtherKeys) {
    int chosen = 0;
    auto menu = [&](bool reset) {
        input::ks = input::KeyState{};
        voice::vs = voice::VoiceState{};
        platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
        voice::Menu m;
        m.header = " select ";
        m.entries = {" one ", " two ", " three "};
        m.hot = [](const std::string& g, const std::string&) { return g == "50" ? 2 : 0; };
        m.resetOnOther = reset;
        chosen = voice::menu(m);
    };
    auto r = simtest::runInProcess(R"(expect " one "
key Up
expect " three "
key Down
expect " one "
key Down Down Down
expect " one "
key 2
expect " two "
key Q
expect " select "
key F1
expect " select "
key Enter
end
)",
                                   [&] { menu(false); });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(chosen, 2) << "a hot key moves without taking; Q and F1 keep the pointer";
    EXPECT_EQ(r.count("say2 \" select \""), 3) << "wrapping does not repeat the header";
    EXPECT_TRUE(r.has("say2 \"q\""));
    r = simtest::runInProcess("expect \" one \"\nkey Down Q\nexpect \" select \"\nkey Enter\nend\n", [&] { menu(true); });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(chosen, 1) << "the reset flag puts the pointer back";
}

}  // namespace
