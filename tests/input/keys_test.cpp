// The key event and the key strings, run in this process on the simulated
// platform.
#include <gtest/gtest.h>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"

using simtest::runInProcess;

namespace {

void wire() {
    input::ks = input::KeyState{};
    input::fkeys = input::FKeyRoutines{};
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
}

}  // namespace

TEST(KeyNaming, CharactersFollowTheKeyCode) {
    EXPECT_EQ(input::keychar(65), "a");
    EXPECT_EQ(input::keychar(112), "p");    // F1
    EXPECT_EQ(input::keychar(119), "w");    // F8
    EXPECT_EQ(input::keychar(99), "c");     // numeric pad 3
    EXPECT_EQ(input::keychar(105), "i");    // numeric pad 9
    EXPECT_EQ(input::keychar(107), "k");    // numeric pad plus
    EXPECT_EQ(input::keychar(110), "n");    // numeric pad point
    EXPECT_EQ(input::keychar(32), " ");
    EXPECT_EQ(input::keychar(192), "\u00e0");   // a grave, lower case of its code
    EXPECT_EQ(input::upperkey("a"), "A");
    EXPECT_EQ(input::upperkey("3"), "3");
    EXPECT_EQ(input::upperkey("\u00e0"), "\u00c0");
}

TEST(KeyEvent, PowerReadingOnlySetsTheKeyStrings) {
    int ran = 0;
    auto r = runInProcess("key F4 F10\nend\n", [&] {
        wire();
        input::fkeys.speckeys = [&] { ++ran; };
        input::ks.wckp = 1;
        while (input::ks.g != key::F1) platform::os().yield();
        input::ks.wckp = 0;
        input::fkeys.speckeys = nullptr;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(ran, 0);
}

TEST(KeyEvent, FKeyRoutinesRunNestedAndLeaveF1) {
    int ran = 0;
    std::string seen;
    auto r = runInProcess("key F4\nend\n", [&] {
        wire();
        input::fkeys.speckeys = [&] {
            ++ran;
            input::ks.g = "65";
        };
        input::getkey();
        seen = input::ks.g;
        input::fkeys.speckeys = nullptr;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(seen, key::F1);
}

TEST(KeyEvent, F1F2AndF10StopTheSoundsOutsideAPowerReading) {
    int stops = 0, before = -1;
    auto r = runInProcess("key F1 F2 F10 F3 A\nexpect \"reading\"\nkey F1\nend\n", [&] {
        wire();
        input::fkeys.stopAbAndClaps = [&] { ++stops; };
        while (input::ks.g != "65") platform::os().yield();
        before = stops;
        input::ks.wckp = 1;
        platform::os().speak(" reading ", 1);
        while (input::ks.g != key::F1) platform::os().yield();
        input::ks.wckp = 0;
        input::fkeys = input::FKeyRoutines{};
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(before, 3);   // F1, F2 and F10; not F3 or A
    EXPECT_EQ(stops, 3);    // nothing more during the reading
}

TEST(KeyEvent, OnlyTheStopKeysAreNoAnswer) {
    for (const char* g : {key::F8, key::Ctrl, key::Alt, key::Pause, key::ScrollLock})
        EXPECT_TRUE(input::hushonly(g)) << g;
    for (const char* g : {key::F1, key::Enter, key::Escape, key::Shift, "65", ""})
        EXPECT_FALSE(input::hushonly(g)) << g;
}

// Start-up wires the key event to the sounds: F1 during the opening strike
// stops it in the ambient buffer; F3 does not.
TEST(KeyEvent, StartUpWiresTheF1StopToTheSounds) {
    auto r = simtest::runBinary("expect-sound golf1\nkey F3 F1\n");
    ASSERT_EQ(r.code, 0) << r.dump();
    int f3 = r.find("key 114"), f1 = r.find("key 112");
    ASSERT_GE(f3, 0) << r.dump();
    ASSERT_GT(f1, f3) << r.dump();
    EXPECT_EQ(r.find("stop golf1"), f1 + 1) << r.dump();
}
