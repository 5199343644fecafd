// What a player hears of the sound bank: held sounds and keys, the crowd
// switch, what StopAllSounds leaves running, and the wave checks.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"
#include "sound/bank.h"
#include "sound/checks.h"
#include "sound/wave_table.h"
#include "voice/state.h"

using simtest::runBinary;
using simtest::runInProcess;

namespace {

void fresh() {
    input::ks = input::KeyState{};
    voice::vs = voice::VoiceState{};
    input::fkeys = input::FKeyRoutines{};
    sound::bk = sound::Bank{};
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
    sound::CreateSounds();
}

std::string g;

TEST(BankScenario, AKeyDuringPlay2CutsTheSoundAndStays) {
    auto r = runInProcess("wait 0.5\nkey A\nend\n", [] {
        fresh();
        sound::play2("golf0");
        g = input::ks.g;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(g, "65");
    int key = r.find("key 65");
    ASSERT_GE(key, 0);
    EXPECT_EQ(r.find("stop golf0"), key + 1) << r.dump();
    EXPECT_GE(r.find("release golf0"), key);
}

TEST(BankScenario, PlayDropsAKeyFromBeforeAndKeepsOneFromDuring) {
    std::string before, during;
    auto r = runInProcess("key A\nwait 0.2\nkey B\nend\n", [&] {
        fresh();
        input::dy(0.15);   // A arrives here
        sound::play("golf16");
        before = input::ks.g;
        sound::play("golf0");   // B arrives during it
        during = input::ks.g;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(before, "");
    EXPECT_EQ(during, "66");
    // golf0 was not cut by the key: it ran to its end, so no stop line shows
    // before its release.
    int play = r.find("play golf0");
    ASSERT_GE(play, 0);
    EXPECT_LT(r.find("stop golf0", play), 0);
    EXPECT_GE(r.find("release golf0", play), 0);
}

TEST(BankScenario, CowtogSilencesOnlyCrowdAndStartedSounds) {
    std::string kept;
    auto r = runInProcess("key A\nend\n", [&] {
        fresh();
        sound::bk.cowtog = 1;
        input::dy(0.2);
        sound::playcrowdwav();   // clears no keys while silenced
        kept = input::ks.g;
        sound::playantwav();
        sound::playaww();
        sound::playclap1();
        sound::playclap2();
        sound::playclap3();
        sound::playgolfwav();
        sound::play("golf16");
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(kept, "65");
    for (const char* quiet : {"play golf10", "play golf8", "play golf9", "play golf11", "play golf12", "play golf13"})
        EXPECT_FALSE(r.has(quiet)) << quiet;
    EXPECT_TRUE(r.has("play golf1 "));
    EXPECT_TRUE(r.has("play golf16 "));
}

TEST(BankScenario, StopAllSoundsLeavesTheWaterAndClapsRestart) {
    auto r = runInProcess("end\n", [] {
        fresh();
        auto& os = platform::os();
        sound::bk.ab = sound::loadbuffer("amb1", 0);   // start-up leaves a sound in it
        os.play(sound::bk.wb1, 1);
        sound::playcrowdwav();
        sound::playclap1();
        input::dy(0.5);
        sound::playclap1();   // still running: cut back to its start
        input::dy(0.1);
        sound::StopAllSounds();
        input::dy(0.1);
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("stop golf10")) << r.dump();
    EXPECT_TRUE(r.has("stop golf11"));
    EXPECT_FALSE(r.has("stop golf31"));
    EXPECT_EQ(r.count("play golf11"), 1) << "a restart of a running clap is no second play";
    EXPECT_LT(r.find("play golf11"), r.find("stop golf11"));
    // The crowd stands 100 below the effects from the start.
    EXPECT_TRUE(r.has("setvol golf10 #8 -100"));
}

TEST(BankScenario, ASettingsRoutineThatReplacesSbEndsTheWait) {
    std::uint32_t took = 0;
    auto r = runInProcess("wait 0.3\nkey F11\nend\n", [&] {
        fresh();
        input::fkeys.adjvol = [] { sound::replaceSb(sound::loadbuffer("golf2", 0)); };
        std::uint32_t t0 = platform::os().tick();
        sound::play("golf13");   // seven seconds
        took = platform::os().tick() - t0;
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_LT(took, 1000u);
    EXPECT_TRUE(r.has("release golf13"));
    EXPECT_TRUE(r.has("release golf2")) << "the wait releases whatever sb then holds";
}

// A copy of the game folder to spoil.
std::string gameCopy() {
    std::string dir = simtest::tempDir();
    for (const auto& e : std::filesystem::directory_iterator(GREENLARK_GAME_DIR))
        if (e.path().extension() == ".wav") std::filesystem::copy(e.path(), dir + "/" + e.path().filename().string());
    return dir;
}

const char* kCorrupt = "Sorry but one or more of the wave files seem to be corrupt\\rPlease contact Tobrell";

TEST(WaveChecks, AMissingOrResizedFileStopsStartUp) {
    std::string dir = gameCopy();
    std::filesystem::remove(dir + "/amb7.wav");
    auto missing = runBinary("expect \"seem to be corrupt\"\nend\n", {"--cwd", dir});
    ASSERT_EQ(missing.code, 0) << missing.dump();
    EXPECT_TRUE(missing.has(std::string("say2 \"") + kCorrupt));
    EXPECT_TRUE(missing.has(std::string("msgbox \"") + kCorrupt));
    EXPECT_FALSE(missing.has("Greenlark. version eleven"));

    std::filesystem::copy_file(GREENLARK_GAME_DIR "/amb7.wav", dir + "/amb7.wav");
    std::filesystem::resize_file(dir + "/golf30.wav", 1000);
    auto resized = runBinary("expect \"seem to be corrupt\"\nend\n", {"--cwd", dir});
    EXPECT_EQ(resized.code, 0) << resized.dump();

    // Names are matched without regard to case; an extra ambient file fails
    // nothing.
    std::filesystem::copy_file(GREENLARK_GAME_DIR "/golf30.wav", dir + "/golf30.wav",
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::rename(dir + "/golf5.wav", dir + "/GOLF5.WAV");
    std::filesystem::copy_file(dir + "/amb1.wav", dir + "/amb99.wav");
    auto fine = runBinary("expect \"Greenlark. version eleven\"\n", {"--cwd", dir});
    EXPECT_EQ(fine.code, 0) << fine.dump();
    std::filesystem::remove_all(dir);
}

TEST(WaveChecks, AWrongRateIndicatorIsFoundOnlyWhenInUse) {
    // golf28 of the right size but at 22050 samples a second.
    std::string dir = gameCopy();
    {
        std::FILE* f = std::fopen((dir + "/golf28.wav").c_str(), "r+b");
        ASSERT_NE(f, nullptr);
        unsigned char rate[8] = {0x22, 0x56, 0, 0, 0x44, 0xAC, 0, 0};   // 22050, 44100 bytes a second
        std::fseek(f, 24, SEEK_SET);
        std::fwrite(rate, 1, 8, f);
        std::fclose(f);
    }
    int regular = 0, beeps = 0;
    auto r = runInProcess("end\n", [&] {
        fresh();
        sound::checkwaves();
        sound::CheckHitWav();
        regular = sound::bk.fq;
        sound::bk.powav = 1;
        sound::CheckHitWav();
        beeps = sound::bk.fq;
    }, "", dir);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(regular, 11025);
    EXPECT_EQ(beeps, 13);
    EXPECT_TRUE(r.has("say \" Sorry but the hit power wave file seems to be corrupt.  Please contact Tobrell. \""));
    std::filesystem::remove_all(dir);
}

TEST(WaveChecks, ThePuttIndicatorCheckReadsItsOwnFile) {
    std::string dir = gameCopy();
    std::filesystem::resize_file(dir + "/golf6.wav", sound::puttIndicatorBytes - 2);
    int fq = 0;
    auto r = runInProcess("end\n", [&] {
        fresh();
        sound::CheckHitWav();
        sound::checkputtwav();
        fq = sound::bk.fq;
    }, "", dir);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(fq, 13);
    EXPECT_TRUE(r.has("putt power wave file seems to be corrupt"));
    EXPECT_FALSE(r.has("hit power wave file"));
    std::filesystem::remove_all(dir);
}

// A hit indicator file of exactly its size: a mono fmt chunk of the given
// format tag and sample size, a data chunk (or none), and a LIST chunk that
// fills the rest.
std::string indicatorOf(int tag, int bits, bool dataChunk, long dataBytes) {
    auto le = [](std::string& s, std::uint32_t v, int n) {
        for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xff);
    };
    int align = bits / 8;
    std::string f = "RIFF";
    le(f, std::uint32_t(sound::hitIndicatorBytes - 8), 4);
    f += "WAVEfmt ";
    le(f, 16, 4);
    le(f, std::uint32_t(tag), 2);
    le(f, 1, 2);
    le(f, std::uint32_t(sound::indicatorRate), 4);
    le(f, std::uint32_t(sound::indicatorRate * align), 4);
    le(f, std::uint32_t(align), 2);
    le(f, std::uint32_t(bits), 2);
    if (dataChunk) {
        f += "data";
        le(f, std::uint32_t(dataBytes), 4);
        f += std::string(size_t(dataBytes), '\x10');
    }
    long rest = sound::hitIndicatorBytes - long(f.size()) - 8;
    f += "LIST";
    le(f, std::uint32_t(rest), 4);
    f += std::string(size_t(rest), ' ');
    return f;
}

// An indicator of the right size that no buffer can be made of fails its
// check, as a wrong size does; one that is not in the working folder at all
// abandons the check with the rate still standing.
TEST(WaveChecks, AnIndicatorNoBufferCanBeMadeOfFailsItsCheck) {
    struct Bad {
        const char* what;
        std::string bytes;
    };
    const long fill = sound::hitIndicatorBytes - 44;
    const Bad bad[] = {{"float", indicatorOf(3, 32, true, fill - 8)},
                       {"24-bit", indicatorOf(1, 24, true, fill - 8)},
                       {"no data chunk", indicatorOf(1, 16, false, 0)},
                       {"an empty data chunk", indicatorOf(1, 16, true, 0)}};
    std::string dir = gameCopy();
    for (const Bad& b : bad) {
        ASSERT_EQ(long(b.bytes.size()), sound::hitIndicatorBytes) << b.what;
        std::ofstream(dir + "/golf7.wav", std::ios::binary | std::ios::trunc) << b.bytes;
        int fq = 0;
        auto r = runInProcess("end\n", [&] {
            fresh();
            sound::checkwaves();
            sound::CheckHitWav();
            fq = sound::bk.fq;
        }, "", dir);
        ASSERT_EQ(r.code, 0) << b.what << "\n" << r.dump();
        EXPECT_EQ(fq, sound::failedCheck) << b.what;
        EXPECT_TRUE(r.has("hit power wave file seems to be corrupt")) << b.what << "\n" << r.dump();
        EXPECT_TRUE(r.has("fail \"no sound buffer from " + dir + "/golf7.wav: ")) << b.what;
    }
    auto startUp = runBinary("expect \"seem to be corrupt\"\nend\n", {"--game", dir});
    EXPECT_EQ(startUp.code, 0) << startUp.dump();
    EXPECT_TRUE(startUp.has("msgbox")) << startUp.dump();

    std::filesystem::remove(dir + "/golf7.wav");
    int fq = 0;
    auto gone = runInProcess("end\n", [&] {
        fresh();
        sound::CheckHitWav();
        fq = sound::bk.fq;
    }, "", dir);
    ASSERT_EQ(gone.code, 0) << gone.dump();
    EXPECT_EQ(fq, sound::indicatorRate);
    EXPECT_FALSE(gone.has("corrupt")) << gone.dump();
    std::filesystem::remove_all(dir);
}

}  // namespace

namespace {

TEST(BankScenario, WithoutAnAmbientBufferStopAllSoundsStopsNothing) {
    auto r = runInProcess("end\n", [] {
        fresh();
        sound::playcrowdwav();
        sound::StopAllSounds();   // ab never came into being: the list is abandoned
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("play golf10"));
    EXPECT_FALSE(r.has("stop golf10"));
}

}  // namespace
