// The spoken menu, the waits and the key naming, run in this process on the
// simulated platform.
#include <gtest/gtest.h>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"
#include "voice/patterns.h"
#include "voice/speech.h"
#include "voice/state.h"

using simtest::runInProcess;

namespace {

void wire() {
    input::ks = input::KeyState{};
    voice::vs = voice::VoiceState{};
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
}

voice::Menu threeEntries() {
    voice::Menu m;
    m.header = " select ";
    m.entries = {" one ", " two ", " three "};
    m.hot = [](const std::string& g, const std::string&) { return g == "50" ? 2 : 0; };
    return m;
}

int chosen = 0;

TEST(MenuPattern, WrapsBothWaysWithoutRepeatingTheHeader) {
    auto r = runInProcess(R"(expect " one "
key Up
expect " three "
key Down
expect " one "
key Down Down Down Enter
end
)",
                          [] {
                              wire();
                              chosen = voice::menu(threeEntries());
                          });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(r.count("say2 \" select \""), 1);
}

TEST(MenuPattern, HotKeyMovesWithoutAcceptingAndOtherKeysRestart) {
    auto r = runInProcess(R"(expect " one "
key 2
expect " two "
key Q
expect " select "
key F1
expect " select "
key Enter
end
)",
                          [] {
                              wire();
                              chosen = voice::menu(threeEntries());
                          });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(chosen, 2) << "Q and F1 keep the pointer where it was";
    EXPECT_TRUE(r.has("say2 \"q\""));
}

TEST(MenuPattern, ResetFlagsPutThePointerBack) {
    auto r = runInProcess(R"(expect " one "
key Down Q
expect " select "
key Enter
end
)",
                          [] {
                              wire();
                              voice::Menu m = threeEntries();
                              m.resetOnOther = true;
                              chosen = voice::menu(m);
                          });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(chosen, 1);
}

TEST(Waits, DyLastsItsUnitsOf1025Milliseconds) {
    std::uint32_t before = 0, after = 0;
    auto r = runInProcess("end\n", [&] {
        wire();
        before = platform::os().tick();
        input::dy(0.3);
        after = platform::os().tick();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_GE(double(after - before), 307.5);
    EXPECT_LE(after - before, 309u);
}

TEST(Waits, KeysDuringDyStayAndClkDropsThem) {
    std::string during, afterClk;
    auto r = runInProcess("key A\nend\n", [&] {
        wire();
        input::dy(0.5);
        during = input::ks.g;
        input::clk();
        afterClk = input::ks.g;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(during, "65");
    EXPECT_EQ(afterClk, "");
}

TEST(Waits, SpeechWaitEndsAtAKeyAndHushes) {
    std::uint32_t ended = 0;
    auto r = runInProcess("wait 1\nkey Space\nend\n", [&] {
        wire();
        voice::say2(std::string(200, 'x'));   // twelve seconds of speech
        voice::speechwait();
        ended = platform::os().tick();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_LT(ended, 2000u);
    EXPECT_GT(r.find("hush", r.find("key 32")), 0);
}

TEST(KeyNaming, KeytogSilencesSaykeyAndF1NamesNothing) {
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
    EXPECT_FALSE(r.has("say2 \"a\""));
    EXPECT_FALSE(r.has("say \"p\""));
    // saykey speaks at the rate five above the voice's and puts it back.
    EXPECT_TRUE(r.has("rate 5"));
    EXPECT_TRUE(r.has("rate 0"));
}

}  // namespace
