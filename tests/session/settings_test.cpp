// The settings changed by ear: F9, F11 and F12 from the menu, the picker
// and a round; the limits of the volumes; the name offered from golf.cfg.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "round/fresh_game.h"
#include "session/settings.h"
#include "session/state.h"
#include "sim_harness.h"
#include "sound/bank.h"
#include "voice/state.h"

namespace {

// F9 with one step up, F11 through its three stages, F12 with one no; each
// followed by the steps that hear the interrupted prompt again.
std::string settingsKeys(const std::string& again) {
    return R"(key F9
expect "to adjust the speech rate, use the arrow keys and then press enter"
key Up Enter
)" + again + R"(key F11
expect " use the up and down arrow keys to raise and lower the volume of this voice. "
key Enter
expect " use the up and down arrow keys to adjust the volume. and then press enter. "
key Enter
expect " use the up and down arrow keys to adjust the volume. and then press enter. "
key Enter
)" + again + R"(key F12
expect " Jo  do you wish to use this voice.  no "
key Enter
expect " Jo  do you wish to use this voice. yes "
key Enter
)" + again;
}

TEST(Settings, EachFKeyInTheMenuThePickerAndARoundSaysTheInterruptedPromptAgain) {
    const std::string menu = "expect \" select \"\nexpect \" 2. use ball washer \"\n";
    const std::string picker = "expect \" Please Pick A-Course To Play. \"\nexpect \" Amateur Green\"\n";
    const std::string tee = "expect \"For woods, or PW For Pitching Wedge. \"\nexpect \" 1\"\n";
    std::string script = simtest::kToTheMenu + std::string("expect \" 2. use ball washer \"\n") + settingsKeys(menu) +
                         "key 1 Enter\n" + picker + "key Down\nexpect \" Down Hill\"\n" + settingsKeys(picker) +
                         "key Enter\nexpect \"Select Your Club\"\nexpect \" 1\"\n" + settingsKeys(tee);
    auto r = simtest::runBinary(script);
    ASSERT_EQ(r.code, 0) << r.dump();
    // The menu and the picker start again from their header, the picker on
    // its first entry; the club prompt comes in its F1 form.
    EXPECT_EQ(r.count("say2 \" select \""), 4);
    EXPECT_EQ(r.count("say2 \" Please Pick A-Course To Play. \""), 4);
    EXPECT_EQ(r.count("For woods, or PW For Pitching Wedge. \""), 3);
    // Each F9 raised the rate by one, each no moved one voice on, from the
    // last of three back to the first.
    EXPECT_EQ(r.sequence({"rate 1", "rate 2", "rate 3"}).back(), r.find("rate 3")) << r.dump();
    auto voices = r.sequence({"voice 1", "voice 2", "voice 0"});
    EXPECT_GT(voices.back(), voices.front()) << r.dump();
    // The voice is made at the rate and the volume the player has: once in
    // the opening, then for each new voice.
    EXPECT_EQ(r.count("volume 95"), 4);
    EXPECT_LT(r.find("volume 95"), r.find("Greenlark. version eleven"));
    // F11 in the round brings the crowd back at the effects volume; the
    // water stays off.
    int f11 = r.find("key 122", r.find("Select Your Club"));
    EXPECT_GT(r.find("play golf10", f11), f11);
    int crowd = r.find("setvol golf10 #", f11);
    ASSERT_GT(crowd, f11) << r.dump();
    EXPECT_TRUE(r.lines[size_t(crowd)].ends_with(" 0")) << r.lines[size_t(crowd)];
    EXPECT_LT(r.find("play golf31", f11), 0);
}

TEST(Settings, VolumeLimitsAndTheirWords) {
    auto r = simtest::runInProcess(R"(expect "volume of this voice"
key Down
expect " quieter "
key Down
expect " minimum "
key Enter
expect "adjust the volume."
key Down
expect " quieter "
wait 3
key Down
expect " minimum "
wait 3
key Enter
expect "adjust the volume."
key Up
expect " maximum "
wait 3
key Up
expect " maximum "
wait 3
key Enter
end
)",
                                   [] {
                                       roundtest::freshGame();
                                       session::ss.vv = 10;
                                       sound::bk.wavol = -4900;
                                       sound::bk.wavol2 = -100;
                                       session::adjvol();
                                   });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(session::ss.vv, 0);
    EXPECT_EQ(sound::bk.wavol, -5000);
    EXPECT_EQ(sound::bk.wavol2, 0);
    // The voice at 5 and then 0; the effects at -5000 twice, the sample
    // heard on each press; the indicators at 0 twice.
    EXPECT_EQ(r.sequence({"volume 5", "volume 0"}).back(), r.find("volume 0")) << r.dump();
    EXPECT_EQ(r.count("play golf2 "), 3);
    EXPECT_EQ(r.count("play golf26 "), 3);
    int sample = r.find("play golf2 "), power = r.find("play golf26 ");
    for (int at = r.find("setvol golf2 #", sample); at >= 0 && at < power; at = r.find("setvol golf2 #", at + 1))
        EXPECT_TRUE(r.lines[size_t(at)].ends_with(" -5000")) << r.lines[size_t(at)];
    // Then the preloaded effects stand at the new volume.
    int last = r.find("key 13", r.find("play golf26"));
    for (const char* stem : {"golf1 ", "golf5 ", "golf10 ", "golf17 "})
        EXPECT_GT(r.find(std::string("setvol ") + stem, last), last) << stem;
    EXPECT_EQ(input::ks.g, "112");
}

TEST(Settings, TheNameInGolfCfgIsOfferedFirstAndANoAsksForAnother) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    std::ofstream(docs + "/brindlewick/golf.cfg", std::ios::binary) << " Ann \r\n 0 \r\n";
    auto r = simtest::runInProcess(R"(expect " Is  Ann  correct for your name? yes "
key N
expect " Please enter your name. "
type Bo
key Enter
expect " Is  Bo  correct for your name? yes "
key Enter
)",
                                   [] {
                                       roundtest::freshGame();
                                       session::getplayername();
                                   },
                                   docs);
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(voice::vs.r, " Bo ");
    EXPECT_EQ(r.count("Please enter your name"), 1) << "the stored name is not asked for";
}

}  // namespace
