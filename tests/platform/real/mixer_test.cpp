// The mixer driven by hand: blocks rendered at chosen moments of a made-up
// clock, as an output's thread would.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "platform/real/mixer.h"
#include "test_waves.h"

namespace {

using platform::real::Mixer;
using realtest::makeWave;
using realtest::rampValue;
using realtest::rampWave;

constexpr int kRate = 48000;
constexpr int kBlock = 480;
constexpr std::int64_t kStart = 5000000000;

// A mixer at 48 kHz, ten-millisecond blocks, the listener one block behind.
struct MixerTest : ::testing::Test {
    Mixer mixer{kRate, kBlock};
    std::vector<float> out = std::vector<float>(2 * kBlock);
    long blocks = 0;

    // Renders the next block, on time.
    void render() {
        mixer.render(out.data(), kBlock, kStart + blocks * 10000000);
        ++blocks;
    }
    // The moment the listener hears device frame `frame`.
    static std::int64_t heardAt(double frame) { return kStart + std::int64_t((frame + kBlock) * 1e9 / kRate); }
    float left(int i) const { return out[size_t(2 * i)]; }
    float right(int i) const { return out[size_t(2 * i + 1)]; }
};

TEST_F(MixerTest, VolumeAndPanFollowTheDecibelRulesAndSoundsAddUp) {
    struct Case {
        int volume, pan;
        double left, right;
    };
    const Case cases[] = {{0, 0, 1, 1},
                          {-600, -1000, std::pow(10.0, -0.3), std::pow(10.0, -0.8)},
                          {-600, 2500, std::pow(10.0, -1.55), std::pow(10.0, -0.3)},
                          {-10000, 0, 0, 0}};
    int id = mixer.add(makeWave(1, 16, kRate, std::vector<double>(48000, 0.5)));
    int other = mixer.add(makeWave(2, 8, kRate, std::vector<double>(96000, 0.25)));
    mixer.play(id, false, kStart);
    for (const Case& c : cases) {
        mixer.setVolume(id, c.volume);
        mixer.setPan(id, c.pan);
        render();
        EXPECT_NEAR(left(10), 0.5 * c.left, 1e-4) << c.volume << " " << c.pan;
        EXPECT_NEAR(right(10), 0.5 * c.right, 1e-4) << c.volume << " " << c.pan;
    }
    mixer.play(other, false, kStart);
    render();
    EXPECT_NEAR(left(10), 0.25, 1e-2) << "a stereo sound adds to the silenced one";
}

// Samples and cursors to the frame: a stopped sound goes on from the frame
// heard at the stop; a one-shot mixed to its end is playing until its end
// is heard, and then back at its start.
TEST_F(MixerTest, AOneShotStopsWhereHeardAndEndsWhenHeardOut) {
    int id = mixer.add(rampWave(3000));
    mixer.play(id, false, kStart);
    render();
    render();
    mixer.stop(id, heardAt(333));
    EXPECT_EQ(mixer.position(id, heardAt(2000)).play, 333 * 2);
    render();
    EXPECT_EQ(left(0), 0.0f);
    mixer.play(id, false, kStart);
    render();
    EXPECT_NEAR(left(1), rampValue(334), 1e-4);
    for (int k = 0; k < 6; ++k) render();   // mixed to its end at device frame 1440 + 2667
    EXPECT_EQ(mixer.status(id, heardAt(4000.5)), 1);
    EXPECT_EQ(mixer.position(id, heardAt(4000.5)).play, (4000 - 1440 + 333) * 2);
    EXPECT_EQ(mixer.status(id, heardAt(4107.5)), 0);
    EXPECT_EQ(mixer.position(id, heardAt(4107.5)).play, 0);
}

TEST_F(MixerTest, ALoopWrapsAndItsCursorStaysInside) {
    int id = mixer.add(rampWave(300));
    mixer.play(id, true, kStart);
    EXPECT_EQ(mixer.status(id, kStart), 5);
    render();
    EXPECT_NEAR(left(299), rampValue(299), 1e-4);
    EXPECT_NEAR(left(300), rampValue(0), 1e-4);
    render();
    EXPECT_EQ(mixer.status(id, heardAt(900)), 5);
    EXPECT_EQ(mixer.position(id, heardAt(750.5)).play, (750 - 600) * 2);
}

// The play cursor counts bytes of the file's own data at the file's own
// rate, for the frame the listener hears; a position set reads back as set.
TEST_F(MixerTest, PlayCursorInTheFilesBytesForEveryFormat) {
    struct Format {
        int channels, bits, rate;
    };
    const Format formats[] = {{1, 8, 11025}, {1, 16, 22050}, {2, 8, 44100}, {2, 16, 48000}, {2, 16, 96000}};
    for (auto f : formats) {
        Mixer m(kRate, kBlock);
        int id = m.add(makeWave(f.channels, f.bits, f.rate, std::vector<double>(size_t(f.rate * f.channels), 0.1)));
        int align = f.channels * f.bits / 8;
        m.setPosition(id, 7 * align);
        EXPECT_EQ(m.position(id, kStart).play, 7 * align) << f.rate;
        m.setPosition(id, 0);
        m.play(id, false, kStart);
        for (long k = 0; k < 8; ++k) m.render(out.data(), kBlock, kStart + k * 10000000);
        const double heard = 2345.3;
        EXPECT_EQ(m.position(id, heardAt(heard)).play, long(heard * f.rate / kRate) * align)
            << f.channels << " channels, " << f.bits << " bits, " << f.rate << " Hz";
    }
}

// A wave file's tone at 22,050 Hz comes out at the device rate at its level
// and without the images linear interpolation leaves beside it.
TEST_F(MixerTest, ResampledAtItsLevelWithoutImages) {
    std::vector<double> tone;
    for (int i = 0; i < 22050; ++i) tone.push_back(0.5 * std::sin(2 * M_PI * 8000 * i / 22050));
    int id = mixer.add(makeWave(1, 16, 22050, tone));
    mixer.play(id, true, kStart);
    std::vector<float> block(2 * 9600), left;
    mixer.render(block.data(), 9600);
    mixer.render(block.data(), 9600);
    for (size_t i = 0; i < block.size(); i += 2) left.push_back(block[i]);
    EXPECT_NEAR(realtest::levelDb(left, 8000), 0.0, 0.5);
    EXPECT_LT(realtest::levelDb(left, 14050), -60.0);
}

// Speech goes to both sides at its volume until heard out; the output is
// quiet from then on, until a sound plays, even a silenced one.
TEST_F(MixerTest, SpeechAndQuiet) {
    auto& speech = mixer.speech();
    std::vector<float> words(100, 0.5f);
    speech.setGain(0.5f);
    speech.push(speech.generation(), words.data(), words.size());
    EXPECT_EQ(mixer.quietFrames(), 0);
    render();
    EXPECT_NEAR(left(99), 0.25, 1e-6);
    EXPECT_NEAR(right(99), 0.25, 1e-6);
    EXPECT_EQ(left(100), 0.0f);
    EXPECT_TRUE(mixer.speechAudible(heardAt(99)));
    EXPECT_FALSE(mixer.speechAudible(heardAt(100.5)));
    EXPECT_EQ(mixer.nextEndAfter(kStart), heardAt(100));
    render();
    EXPECT_EQ(mixer.quietFrames(), kBlock);
    int looped = mixer.add(rampWave(100));
    mixer.setVolume(looped, -10000);
    mixer.play(looped, true, kStart);
    EXPECT_EQ(mixer.quietFrames(), 0);
}

// The output renders 60 ms ahead and the game changes something: the mixer
// goes back to a frame it rendered and renders again from there. What comes
// out must be exactly what a mixer that knew of the change at that frame
// renders, for every kind of change.
TEST(MixerRewrite, RenderedAgainAsIfTheChangeHadBeenKnown) {
    struct Change {
        const char* what;
        std::function<void(Mixer&)> make;
    };
    // Sounds 1 to 3: a stereo loop at 22,050 Hz, a one-shot at 11,025 Hz that
    // ends inside what is rendered ahead, and a stopped one at 48 kHz.
    const Change changes[] = {
        {"a sound starts", [](Mixer& m) { m.play(3, false, kStart); }},
        {"a loop stops", [](Mixer& m) { m.stop(1, kStart); }},
        {"volume", [](Mixer& m) { m.setVolume(1, -1200); }},
        {"pan", [](Mixer& m) { m.setPan(1, 3000); }},
        {"position", [](Mixer& m) { m.setPosition(1, 4000); }},
        {"frequency", [](Mixer& m) { m.setFrequency(1, 11025); }},
        {"release", [](Mixer& m) { m.release(1); }},
        {"a one-shot rendered to its end loops on", [](Mixer& m) { m.play(2, true, kStart); }},
        {"speech is cut", [](Mixer& m) { m.speech().flush(); }},
        {"more speech comes", [](Mixer& m) {
             std::vector<float> more(3000, -0.3f);
             m.speech().push(m.speech().generation(), more.data(), more.size());
         }},
    };
    auto noise = [](int n, unsigned seed) {
        std::mt19937 rng(seed);
        std::vector<double> v(static_cast<size_t>(n));
        for (double& x : v) x = std::uniform_real_distribution<>(-0.5, 0.5)(rng);
        return v;
    };
    auto start = [&](Mixer& m) {
        m.add(makeWave(2, 16, 22050, noise(2 * 3000, 1)));
        m.add(makeWave(1, 8, 11025, noise(500, 2)));
        m.add(makeWave(1, 16, kRate, noise(4000, 3)));
        m.play(1, true, kStart);
        m.play(2, false, kStart);
        std::vector<float> words(1500, 0.2f);
        m.speech().push(m.speech().generation(), words.data(), words.size());
    };
    auto render = [](Mixer& m, std::int64_t frames, std::vector<float>& into) {
        std::vector<float> block(size_t(2 * frames));
        m.render(block.data(), int(frames));
        into.insert(into.end(), block.begin(), block.end());
    };
    for (const Change& c : changes) {
        Mixer ahead(kRate, 0), knew(kRate, 0);
        start(ahead);
        start(knew);
        std::vector<float> heard, expected;
        render(ahead, 2880, heard);
        ahead.takeChange();
        c.make(ahead);
        auto from = ahead.takeChange();
        ASSERT_TRUE(from) << c.what << ": the output must hear of it";
        std::int64_t at = std::max<std::int64_t>(*from, 1000);
        heard.resize(size_t(2 * at));
        ahead.rewind(at);
        render(ahead, 4000 - at, heard);
        render(knew, at, expected);
        c.make(knew);
        render(knew, 4000 - at, expected);
        ASSERT_EQ(heard.size(), expected.size());
        size_t differ = 0;
        while (differ < heard.size() && heard[differ] == expected[differ]) ++differ;
        EXPECT_EQ(differ, heard.size()) << c.what << ": first differs at frame " << differ / 2;
    }
}

}  // namespace
