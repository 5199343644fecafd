// The key event, the key strings and the waits, run in this process on the
// simulated platform.
#include <gtest/gtest.h>

#include <cstdint>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"
#include "voice/speech.h"
#include "voice/state.h"

using simtest::runInProcess;

namespace {

void wire() {
    input::ks = input::KeyState{};
    input::fkeys = input::FKeyRoutines{};
    voice::vs = voice::VoiceState{};
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
}

TEST(KeyNaming, TheCharacterOfEachCodeAndTheKeyNames) {
    const std::pair<int, const char*> chars[] = {{65, "a"}, {112, "p"}, {119, "w"}, {99, "c"},  {105, "i"},
                                                 {107, "k"}, {110, "n"}, {32, " "},  {192, "\u00e0"}};
    for (auto [code, c] : chars) EXPECT_EQ(input::keychar(code), c) << code;
    EXPECT_EQ(input::upperkey("a") + input::upperkey("3") + input::upperkey("\u00e0"), "A3\u00c0");
    for (const char* g : {key::F8, key::Ctrl, key::Alt, key::Pause, key::ScrollLock})
        EXPECT_TRUE(input::hushonly(g)) << g;
    for (const char* g : {key::F1, key::Enter, key::Escape, key::Shift, "65", ""}) EXPECT_FALSE(input::hushonly(g)) << g;

    auto r = runInProcess("key A\nkey F1\nend\n", [] {
        wire();
        voice::vs.keytog = 1;
        input::getkey();
        voice::saykey();
        voice::vs.keytog = 0;
        input::getkey();
        voice::saykey2();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_FALSE(r.has("say2 \"a\"")) << "keytog silences the naming";
    EXPECT_FALSE(r.has("say \"p\"")) << "F1 names nothing";
    EXPECT_EQ(r.sequence({"rate 5", "rate 0"}).back(), r.find("rate 0")) << "a key is named five rate steps quicker";
}

// F1, F2 and F10 stop the sounds; an F-key routine runs nested in the event
// and leaves F1; during a power reading keys only set the key strings.
TEST(KeyEvent, FKeysOutsideAndInsideAPowerReading) {
    int stops = 0, before = -1, ran = 0;
    std::string seen;
    auto r = runInProcess("key F1 F2 F10 F3 A\nkey F4\nexpect \"reading\"\nkey F4 F1\nend\n", [&] {
        wire();
        input::fkeys.stopAbAndClaps = [&] { ++stops; };
        input::fkeys.speckeys = [&] {
            ++ran;
            input::ks.g = "65";
        };
        while (input::ks.g != "65") platform::os().yield();
        before = stops;
        input::clk();
        input::getkey();
        seen = input::ks.g;
        input::clk();
        input::ks.wckp = 1;
        platform::os().speak(" reading ", 1);
        while (input::ks.g != key::F1) platform::os().yield();
        input::ks.wckp = 0;
        input::fkeys = input::FKeyRoutines{};
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(before, 3) << "F1, F2 and F10; not F3 or A";
    EXPECT_EQ(stops, 3) << "nothing more during the reading";
    EXPECT_EQ(seen, key::F1);
    EXPECT_EQ(ran, 1);

    // Start-up wires the stop to the sounds: F1 during the opening strike
    // stops it; F3 does not.
    r = simtest::runBinary("expect-sound golf1\nkey F3 F1\n");
    ASSERT_EQ(r.code, 0) << r.dump();
    int f3 = r.find("key 114"), f1 = r.find("key 112");
    ASSERT_GT(f1, f3) << r.dump();
    EXPECT_EQ(r.find("stop golf1"), f1 + 1) << r.dump();
}

// Virtual milliseconds that dy(a) waits with the tick count starting at start.
std::uint32_t pause(std::uint32_t start, double a) {
    std::uint32_t waited = 0;
    auto r = simtest::runInProcessFromTick(start, "end\n", [&] {
        std::uint32_t from = platform::os().tick();
        input::dy(a);
        waited = platform::os().tick() - from;
    });
    EXPECT_EQ(r.code, 0) << r.dump();
    return waited;
}

TEST(Waits, DyClkAndTheSpeechWait) {
    EXPECT_EQ(pause(0, 0.3), 308u) << "307.5 ms, and the tick is whole";
    EXPECT_EQ(pause(0, 0), 1u) << "still yields, until a tick has passed";
    for (std::uint32_t start : {0u, 0xFFFFFFFFu, 0xFFFFFE00u, 0xFFFFFC00u, 0x7FFFFE00u}) {
        EXPECT_EQ(pause(start, 1), 1026u) << start;
        EXPECT_EQ(pause(start, 0.5), 513u) << start;
    }

    std::string during, afterClk;
    std::uint32_t ended = 0;
    auto r = runInProcess("key A\nwait 1\nkey Space\nend\n", [&] {
        wire();
        input::dy(0.5);
        during = input::ks.g;
        input::clk();
        afterClk = input::ks.g;
        voice::say2(std::string(200, 'x'));   // twelve seconds of speech
        voice::speechwait();
        ended = platform::os().tick();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(during, "65") << "a key during dy stays";
    EXPECT_EQ(afterClk, "") << "clk drops it";
    EXPECT_LT(ended, 2500u) << "the speech wait ends at a key";
    EXPECT_GT(r.find("hush", r.find("key 32")), 0);
}

}  // namespace
