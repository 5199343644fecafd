// The game's generated sound files: sizes and formats as the start-up check
// expects, no clipping, seamless loops, indicators that peak at half their
// data, and a generator that writes the same bytes every time.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <strings.h>
#include <unistd.h>

#include "sound/wave_table.h"

namespace {

namespace fs = std::filesystem;

const fs::path gameDir = GREENLARK_GAME_DIR;
const char* const loops[] = {"golf10.wav", "golf29.wav", "golf30.wav", "golf31.wav"};

std::string readFile(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::uint32_t le32(const std::string& b, size_t at) {
    return std::uint32_t(std::uint8_t(b[at])) | std::uint32_t(std::uint8_t(b[at + 1])) << 8 |
           std::uint32_t(std::uint8_t(b[at + 2])) << 16 | std::uint32_t(std::uint8_t(b[at + 3])) << 24;
}

std::uint16_t le16(const std::string& b, size_t at) {
    return std::uint16_t(std::uint8_t(b[at]) | std::uint8_t(b[at + 1]) << 8);
}

std::vector<int> samplesOf(const std::string& bytes) {
    std::vector<int> s;
    for (size_t at = 44; at + 1 < bytes.size(); at += 2) s.push_back(std::int16_t(le16(bytes, at)));
    return s;
}

std::vector<int> samplesOf(const char* name) { return samplesOf(readFile(gameDir / name)); }

bool isLoop(const char* name) {
    for (const char* l : loops)
        if (std::string(l) == name) return true;
    return false;
}

// Zero crossings in each of n equal windows.
std::vector<int> crossingsPerWindow(const std::vector<int>& s, int n) {
    std::vector<int> counts(size_t(n), 0);
    size_t w = s.size() / size_t(n);
    for (size_t i = 1; i < w * size_t(n); ++i)
        if ((s[i - 1] < 0) != (s[i] < 0)) ++counts[i / w];
    return counts;
}

std::string temporaryDir(const char* tag) {
    fs::path p = fs::temp_directory_path() / ("greenlark-waves-" + std::to_string(getpid()) + "-" + tag);
    fs::remove_all(p);
    fs::create_directories(p);
    return p.string();
}

// The files exist only where the build generates them.
class GameWaves : public ::testing::Test {
protected:
    void SetUp() override {
#ifndef GREENLARK_WAVEGEN
        GTEST_SKIP() << "this build does not generate the sound files";
#endif
    }
};

}  // namespace

TEST(WaveTable, ListsEveryFileOnceInCaseInsensitiveOrder) {
    std::set<std::string> names;
    for (int i = 0; i < sound::waveCount; ++i) {
        names.insert(sound::waveSizes[i].name);
        if (i > 0) {
            EXPECT_LT(strcasecmp(sound::waveSizes[i - 1].name, sound::waveSizes[i].name), 0) << i;
        }
    }
    EXPECT_EQ(names.size(), 67u);
    for (int k = 1; k <= 35; ++k) EXPECT_TRUE(names.count("amb" + std::to_string(k) + ".wav")) << k;
    for (int k = 0; k <= 31; ++k) EXPECT_TRUE(names.count("golf" + std::to_string(k) + ".wav")) << k;
    EXPECT_STREQ(sound::waveSizes[0].name, "amb1.wav");
    EXPECT_STREQ(sound::waveSizes[1].name, "amb10.wav");
    EXPECT_STREQ(sound::waveSizes[66].name, "golf9.wav");
}

TEST(WaveTable, IndicatorsRunAtTheirOwnRateAndTwinsShareTheirSize) {
    const sound::WaveSize* hit = sound::findWave(sound::hitIndicatorName);
    const sound::WaveSize* hitBeeps = sound::findWave(sound::hitIndicatorBeepsName);
    const sound::WaveSize* putt = sound::findWave(sound::puttIndicatorName);
    const sound::WaveSize* puttBeeps = sound::findWave(sound::puttIndicatorBeepsName);
    ASSERT_TRUE(hit && hitBeeps && putt && puttBeeps);
    EXPECT_EQ(hit->bytes, sound::hitIndicatorBytes);
    EXPECT_EQ(hitBeeps->bytes, sound::hitIndicatorBytes);
    EXPECT_EQ(putt->bytes, sound::puttIndicatorBytes);
    EXPECT_EQ(puttBeeps->bytes, sound::puttIndicatorBytes);
    EXPECT_EQ(sound::findWave("GOLF7.WAV"), hit);
    EXPECT_EQ(sound::findWave("golf99.wav"), nullptr);
    for (const sound::WaveSize& w : sound::waveSizes) {
        bool indicator = w.name == std::string("golf6.wav") || w.name == std::string("golf7.wav") ||
                         w.name == std::string("golf27.wav") || w.name == std::string("golf28.wav");
        EXPECT_EQ(w.rate, indicator ? sound::indicatorRate : sound::effectRate) << w.name;
    }
    EXPECT_EQ(sound::indicatorRate, 11025);
}

TEST(WaveTable, EveryNamedStemIsACheckedFileOfItsOwn) {
    namespace stem = sound::stem;
    const char* const stems[] = {
        stem::jingle, stem::strike, stem::sandStrike, stem::misuseSwing, stem::sink, stem::splash,
        stem::puttIndicator, stem::hitIndicator, stem::crowdOoh, stem::crowdAww, stem::crowdLoop,
        stem::clap1, stem::clap2, stem::clap3, stem::trees, stem::jingleEnd, stem::tick, stem::puttStrike,
        stem::bigSwing, stem::error, stem::birdie, stem::par, stem::eagle, stem::penalty, stem::holeInOne,
        stem::worse, stem::powerSample, stem::puttIndicatorBeeps, stem::hitIndicatorBeeps, stem::voiceWait,
        stem::washer, stem::water};
    std::set<std::string> seen;
    for (const char* s : stems) {
        EXPECT_NE(sound::findWave((std::string(s) + ".wav").c_str()), nullptr) << s;
        EXPECT_TRUE(seen.insert(s).second) << s << " named twice";
    }
    EXPECT_EQ(seen.size(), 32u);   // golf0 to golf31
    EXPECT_EQ(sound::hitIndicatorName, std::string(stem::hitIndicator) + ".wav");
    EXPECT_EQ(sound::puttIndicatorBeepsName, std::string(stem::puttIndicatorBeeps) + ".wav");
}

TEST_F(GameWaves, MatchTheSizeTableAndAPlainPcmHeader) {
    for (const sound::WaveSize& w : sound::waveSizes) {
        SCOPED_TRACE(w.name);
        std::string b = readFile(gameDir / w.name);
        ASSERT_EQ(long(b.size()), w.bytes);
        EXPECT_EQ(b.substr(0, 4), "RIFF");
        EXPECT_EQ(le32(b, 4), std::uint32_t(w.bytes - 8));
        EXPECT_EQ(b.substr(8, 8), "WAVEfmt ");
        EXPECT_EQ(le32(b, 16), 16u);
        EXPECT_EQ(le16(b, 20), 1);   // PCM
        EXPECT_EQ(le16(b, 22), 1);   // mono
        EXPECT_EQ(le32(b, 24), std::uint32_t(w.rate));
        EXPECT_EQ(le32(b, 28), std::uint32_t(w.rate * 2));
        EXPECT_EQ(le16(b, 32), 2);
        EXPECT_EQ(le16(b, 34), 16);
        EXPECT_EQ(b.substr(36, 4), "data");
        EXPECT_EQ(le32(b, 40), std::uint32_t(w.bytes - 44));
    }
}

TEST_F(GameWaves, StayUnderMinusOneDbfsAndAreNotSilent) {
    for (const sound::WaveSize& w : sound::waveSizes) {
        std::vector<int> s = samplesOf(w.name);
        int peak = 0;
        for (int v : s) peak = std::max(peak, std::abs(v));
        EXPECT_LE(peak, 29204) << w.name;
        EXPECT_GE(peak, 1000) << w.name;   // about -30 dBFS: something is there
    }
}

TEST_F(GameWaves, OneShotsStartAndEndInSilence) {
    for (const sound::WaveSize& w : sound::waveSizes) {
        if (isLoop(w.name)) continue;
        std::vector<int> s = samplesOf(w.name);
        ASSERT_FALSE(s.empty()) << w.name;
        EXPECT_LE(std::abs(s.front()), 64) << w.name;
        EXPECT_LE(std::abs(s.back()), 64) << w.name;
    }
}

TEST_F(GameWaves, LoopsJoinWithoutASeam) {
    for (const char* name : loops) {
        std::vector<int> s = samplesOf(name);
        ASSERT_GT(s.size(), 1000u) << name;
        std::vector<int> steps;
        for (size_t i = 1; i < s.size(); ++i) steps.push_back(std::abs(s[i] - s[i - 1]));
        std::sort(steps.begin(), steps.end());
        int typical = steps[steps.size() * 9 / 10];
        EXPECT_LE(std::abs(s.front() - s.back()), typical) << name;
        // And the joint sits in sound, not in a silence that hides a seam.
        int around = 0;
        for (size_t i = 0; i < 200; ++i) around = std::max({around, std::abs(s[i]), std::abs(s[s.size() - 1 - i])});
        EXPECT_GT(around, 100) << name;
    }
}

TEST_F(GameWaves, IndicatorPitchPeaksAtHalfTheDataAndFallsBackSymmetrically) {
    for (const char* name : {sound::hitIndicatorName, sound::puttIndicatorName}) {
        SCOPED_TRACE(name);
        std::vector<int> s = samplesOf(name);
        ASSERT_EQ(s.size() % 2, 0u);
        std::vector<int> z = crossingsPerWindow(s, 20);
        for (int i = 1; i < 10; ++i) EXPECT_GT(z[size_t(i)], z[size_t(i - 1)]) << "rising at window " << i;
        for (int i = 10; i < 19; ++i) EXPECT_GT(z[size_t(i)], z[size_t(i + 1)]) << "falling at window " << i;
        for (int i = 0; i < 10; ++i) EXPECT_NEAR(z[size_t(i)], z[size_t(19 - i)], 2 + z[size_t(i)] / 50) << i;
        // Three octaves up from the start.
        double ratio = double(z[9]) / z[0];
        EXPECT_GT(ratio, 5.5);
        EXPECT_LT(ratio, 8.5);
        // Right at the middle: the windows just either side match.
        size_t half = s.size() / 2, w = s.size() / 100;
        std::vector<int> before(s.begin() + long(half - w), s.begin() + long(half));
        std::vector<int> after(s.begin() + long(half), s.begin() + long(half + w));
        EXPECT_NEAR(crossingsPerWindow(before, 1)[0], crossingsPerWindow(after, 1)[0], 2);
    }
}

TEST_F(GameWaves, BeepingTwinsDifferOnlyAtTheTenPerCentMarks) {
    struct Pair { const char* plain; const char* beeps; };
    for (Pair p : {Pair{sound::hitIndicatorName, sound::hitIndicatorBeepsName},
                   Pair{sound::puttIndicatorName, sound::puttIndicatorBeepsName}}) {
        SCOPED_TRACE(p.beeps);
        std::string plainBytes = readFile(gameDir / p.plain), beepBytes = readFile(gameDir / p.beeps);
        ASSERT_EQ(plainBytes.size(), beepBytes.size());
        EXPECT_EQ(plainBytes.substr(0, 44), beepBytes.substr(0, 44));
        std::vector<int> a = samplesOf(plainBytes), b = samplesOf(beepBytes);
        long n = long(a.size()), half = n / 2, reach = sound::indicatorRate / 50;   // 20 ms
        std::vector<long> marks;
        for (int tenth = 1; tenth <= 9; ++tenth) {
            marks.push_back(half * tenth / 10);
            marks.push_back(n - half * tenth / 10);
        }
        marks.push_back(half);
        std::vector<bool> nearMark(size_t(n), false);
        for (long m : marks) {
            double energy = 0;
            for (long i = std::max(0L, m - reach); i < std::min(n, m + reach); ++i) {
                nearMark[size_t(i)] = true;
                energy += double(a[size_t(i)] - b[size_t(i)]) * (a[size_t(i)] - b[size_t(i)]);
            }
            EXPECT_GT(std::sqrt(energy / (2.0 * reach)), 1000.0) << "no beep at frame " << m;
        }
        long strays = 0;
        for (long i = 0; i < n; ++i)
            if (!nearMark[size_t(i)] && a[size_t(i)] != b[size_t(i)]) ++strays;
        EXPECT_EQ(strays, 0);
    }
}

#ifdef GREENLARK_WAVEGEN
TEST(WaveGenerator, WritesTheSameBytesOnEveryRun) {
    std::string first = temporaryDir("a"), second = temporaryDir("b");
    ASSERT_EQ(std::system((std::string(GREENLARK_WAVEGEN) + " " + first).c_str()), 0);
    ASSERT_EQ(std::system((std::string(GREENLARK_WAVEGEN) + " " + second).c_str()), 0);
    for (const sound::WaveSize& w : sound::waveSizes) {
        std::string x = readFile(fs::path(first) / w.name), y = readFile(fs::path(second) / w.name);
        EXPECT_EQ(long(x.size()), w.bytes) << w.name;
        EXPECT_TRUE(x == y) << w.name << " differs between runs";
    }
    fs::remove_all(first);
    fs::remove_all(second);
}
#endif
