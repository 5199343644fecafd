// The side flags of a hole, the choice and the pan of ambient sounds, and
// the water loops.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "course/course.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"
#include "sound/ambient.h"
#include "sound/bank.h"

using simtest::runInProcess;

namespace {

void hole1(int left, int right) {
    course::cs.H[1][3] = left;
    course::cs.H[1][4] = right;
    sound::am = sound::Ambient{};
    sound::chamb(1);
}

TEST(AmbientFlags, SidesOfTheHole) {
    hole1(162, 162);
    EXPECT_EQ(sound::am.cow, 3);
    hole1(6, 9);
    EXPECT_EQ(sound::am.water, 3);
    hole1(9, 6);
    EXPECT_EQ(sound::am.water, 1) << "a left match sets the flag anew";
    hole1(154, 75);
    EXPECT_EQ(sound::am.deer, 1);
    EXPECT_EQ(sound::am.santa, 1);
    EXPECT_EQ(sound::am.parklot, 2);
    EXPECT_EQ(sound::am.cars, 2);
    hole1(160, 1);
    int* flags[] = {&sound::am.cow, &sound::am.pig, &sound::am.horse, &sound::am.siren, &sound::am.chicken,
                    &sound::am.turkey, &sound::am.ajaf, &sound::am.airplane, &sound::am.train, &sound::am.cars,
                    &sound::am.parklot, &sound::am.water, &sound::am.swim, &sound::am.deer, &sound::am.santa};
    for (int* f : flags) EXPECT_EQ(*f, 0);
    // A new hole clears what the last one set.
    hole1(12, 4);
    EXPECT_EQ(sound::am.chicken, 1);
    EXPECT_EQ(sound::am.ajaf, 2);
    EXPECT_EQ(sound::am.deer, 0);
}

TEST(AmbientFlags, SoundsNeedTheFlagOfTheirKind) {
    EXPECT_EQ(sound::ambflag(13), nullptr);
    EXPECT_EQ(sound::ambflag(38), nullptr);
    EXPECT_EQ(sound::ambflag(14), &sound::am.cow);
    EXPECT_EQ(sound::ambflag(17), &sound::am.cow);
    EXPECT_EQ(sound::ambflag(20), &sound::am.ajaf);
    EXPECT_EQ(sound::ambflag(31), &sound::am.swim);
    EXPECT_EQ(sound::ambflag(35), &sound::am.pig);
    EXPECT_EQ(sound::ambflag(37), &sound::am.santa);
}

// Runs many scheduler steps on a hole and gathers the pan of each sound.
std::map<std::string, std::vector<int>> pans(int left, int right, int steps) {
    std::map<std::string, std::vector<int>> out;
    auto r = runInProcess("end\n", [&] {
        sound::bk = sound::Bank{};
        hole1(left, right);
        sound::countamb();
        for (int i = 0; i < steps; ++i) {
            sound::ambtick();
            platform::attempt([] { platform::os().stop(sound::bk.ab); });
        }
    });
    EXPECT_EQ(r.code, 0) << r.dump();
    for (const auto& line : r.lines) {
        std::istringstream in(line);
        std::string t, word, stem, id;
        int pan = 0;
        if (in >> t >> word >> stem >> id >> pan && word == "setpan") out[stem].push_back(pan);
    }
    return out;
}

TEST(AmbientChoice, LocationSoundsComeFromTheirSideAndGeneralOnesNearTheMiddle) {
    auto p = pans(162, 44, 400);   // cows on the left, a pool on the right
    ASSERT_FALSE(p.empty());
    for (const auto& [stem, list] : p) {
        int n = std::stoi(stem.substr(3));
        for (int pan : list) {
            if (n == 14 || n == 17) {
                EXPECT_LE(pan, -800) << stem;
                EXPECT_GE(pan, -899) << stem;
            } else if (n == 31) {
                EXPECT_GE(pan, 800) << stem;
                EXPECT_LE(pan, 899) << stem;
            } else if (n == 11) {
                EXPECT_EQ(pan, 0);
            } else {
                EXPECT_LE(n, 13) << stem << " has no place beside this hole";
                EXPECT_GE(pan, -600);
                EXPECT_LE(pan, 599);
            }
        }
    }
    EXPECT_TRUE(p.count("amb14") || p.count("amb17"));
    EXPECT_TRUE(p.count("amb31"));
    EXPECT_TRUE(p.count("amb11"));
}

TEST(AmbientChoice, BothSidesMeansEitherSideNeverTheMiddle) {
    auto p = pans(162, 162, 400);
    int left = 0, right = 0;
    for (const char* cow : {"amb14", "amb17"})
        for (int pan : p[cow]) {
            EXPECT_GE(std::abs(pan), 800);
            (pan < 0 ? left : right)++;
        }
    EXPECT_GT(left, 0);
    EXPECT_GT(right, 0);
}

TEST(AmbientScheduler, SilencedSpeechAndRunningSoundsHoldItBack) {
    int afterCowtog = 0, pushed = 0, before = 0;
    auto r = runInProcess("end\n", [&] {
        sound::bk = sound::Bank{};
        hole1(1, 1);
        sound::countamb();
        sound::bk.cowtog = 1;
        sound::am.nexttick = 5;
        sound::ambtick();
        afterCowtog = sound::am.nexttick;
        sound::bk.cowtog = 0;
        sound::am.ambwait = 2000;
        platform::os().speak("a long sentence to keep the voice busy", 1);
        before = int(platform::os().tick());
        sound::ambtick();
        pushed = sound::am.nexttick;
        platform::os().speak("", 2);
        sound::ambtick();   // the first choice of the run
        sound::ambtick();   // still playing: only a new wait
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_EQ(afterCowtog, 5);
    EXPECT_EQ(pushed, before + 2000);
    EXPECT_EQ(r.count("setpan amb"), 1) << r.dump();
}

// The first sound after a key wait begins comes 1025 to 3074 ms later, also
// when the tick count passes 2^31 or wraps at 2^32 on the way.
TEST(AmbientScheduler, TheFirstWaitHoldsAcrossTheTickCountsLimits) {
    for (std::uint32_t start : {0x7FFFFE00u, 0xFFFFFE00u}) {
        SCOPED_TRACE(start);
        std::uint32_t waited = 0;
        auto r = simtest::runInProcessFromTick(start, "end\n", [&] {
            sound::bk = sound::Bank{};
            hole1(1, 1);
            sound::countamb();
            auto& os = platform::os();
            std::uint32_t from = os.tick();
            sound::ambenter();
            while (sound::am.ambinit == 0 && os.tick() - from < 10000) {
                os.yield();
                sound::ambpass();
            }
            waited = os.tick() - from;
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_GT(waited, 1025u);
        EXPECT_LE(waited, 3076u);
        EXPECT_EQ(r.count("setpan amb"), 1) << r.dump();
    }
}

TEST(AmbientWater, LoopsStartOnTheSideOfTheWater) {
    auto r = runInProcess("end\n", [] {
        sound::bk = sound::Bank{};
        sound::CreateSounds();
        hole1(6, 9);
        sound::startwater();
    });
    ASSERT_EQ(r.code, 0) << r.dump();
    int wb2 = r.find("setpan golf31 #14 -800");
    int wb1 = r.find("setpan golf31 #13 800");
    ASSERT_GE(wb2, 0) << r.dump();
    ASSERT_GE(wb1, 0);
    EXPECT_LT(wb2, wb1) << "the left loop starts first";
    EXPECT_EQ(r.count("play golf31"), 2);
}

}  // namespace
