// The mixer driven by hand: blocks rendered at chosen moments of a made-up
// clock, as the audio callback would.
#include <gtest/gtest.h>

#include <cmath>
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
        mixer.render(out.data(), kBlock, timeOfBlock(blocks));
        ++blocks;
    }
    std::int64_t timeOfBlock(long k) const { return kStart + k * 10000000; }
    // The moment the listener hears device frame `frame`.
    std::int64_t heardAt(double frame) const { return kStart + std::int64_t((frame + kBlock) * 1e9 / kRate); }
    float left(int i) const { return out[size_t(2 * i)]; }
    float right(int i) const { return out[size_t(2 * i + 1)]; }
};

TEST_F(MixerTest, VolumeAndPanFollowTheDecibelRules) {
    int id = mixer.add(makeWave(1, 16, kRate, std::vector<double>(4000, 0.5)));
    mixer.setVolume(id, -600);
    mixer.setPan(id, -1000);
    mixer.play(id, false);
    render();
    double volume = std::pow(10.0, -0.3);
    EXPECT_NEAR(left(10), 0.5 * volume, 1e-4);
    EXPECT_NEAR(right(10), 0.5 * volume * std::pow(10.0, -0.5), 1e-4);
    mixer.setPan(id, 2500);
    render();
    EXPECT_NEAR(left(10), 0.5 * volume * std::pow(10.0, -1.25), 1e-4);
    EXPECT_NEAR(right(10), 0.5 * volume, 1e-4);
    mixer.setVolume(id, -10000);
    render();
    EXPECT_EQ(left(10), 0.0f);
    EXPECT_EQ(right(10), 0.0f);
}

TEST_F(MixerTest, StereoKeepsItsSidesAndSoundsAddUp) {
    int a = mixer.add(makeWave(2, 16, kRate, {0.5, -0.25, 0.5, -0.25, 0.5, -0.25}));
    int b = mixer.add(makeWave(1, 8, kRate, {0.25, 0.25, 0.25}));
    mixer.play(a, false);
    mixer.play(b, false);
    render();
    EXPECT_NEAR(left(1), 0.75, 1e-2);
    EXPECT_NEAR(right(1), 0.0, 1e-2);
}

TEST_F(MixerTest, ResamplesByLinearInterpolation) {
    int id = mixer.add(rampWave(1000, kRate / 2));
    mixer.play(id, false);
    render();
    EXPECT_NEAR(left(20), rampValue(10), 1e-4);
    EXPECT_NEAR(left(21), (rampValue(10) + rampValue(11)) / 2, 1e-4);
    EXPECT_EQ(mixer.frequency(id), kRate / 2);
}

TEST_F(MixerTest, LoopWrapsToTheStartAndKeepsPlaying) {
    int id = mixer.add(rampWave(300));
    mixer.play(id, true);
    EXPECT_EQ(mixer.status(id, timeOfBlock(0)), 5);
    render();
    EXPECT_NEAR(left(299), rampValue(299), 1e-4);
    EXPECT_NEAR(left(300), rampValue(0), 1e-4);
    EXPECT_NEAR(left(479), rampValue(179), 1e-4);
    render();
    EXPECT_EQ(mixer.status(id, heardAt(900)), 5);
    EXPECT_EQ(mixer.position(id, heardAt(750.5)).play, (750 - 600) * 2);
}

TEST_F(MixerTest, OneShotStopsAtItsEndWithThePositionBackAtZero) {
    int id = mixer.add(rampWave(200));
    EXPECT_EQ(mixer.status(id, timeOfBlock(0)), 0);
    mixer.play(id, false);
    EXPECT_EQ(mixer.status(id, timeOfBlock(0)), 1);
    render();
    EXPECT_NEAR(left(199), rampValue(199), 1e-4);
    EXPECT_EQ(left(201), 0.0f);
    // Mixed to its end, but the listener is still in it.
    EXPECT_EQ(mixer.status(id, heardAt(150)), 1);
    EXPECT_EQ(mixer.position(id, heardAt(150)).play, 300);
    EXPECT_EQ(mixer.status(id, heardAt(200.5)), 0);
    EXPECT_EQ(mixer.position(id, heardAt(200.5)).play, 0);
    render();
    EXPECT_EQ(left(0), 0.0f);
}

TEST_F(MixerTest, PlayOnAPlayingSoundDoesNotRewind) {
    int id = mixer.add(rampWave(4000));
    mixer.play(id, false);
    render();
    mixer.play(id, false);
    render();
    EXPECT_NEAR(left(5), rampValue(kBlock + 5), 1e-4);
}

TEST_F(MixerTest, StopKeepsThePositionAndZeroRewinds) {
    int id = mixer.add(rampWave(4000));
    mixer.play(id, false);
    render();
    render();
    mixer.stop(id, heardAt(333));
    EXPECT_EQ(mixer.status(id, heardAt(333)), 0);
    EXPECT_EQ(mixer.position(id, heardAt(2000)).play, 333 * 2);
    render();
    EXPECT_EQ(left(0), 0.0f);
    mixer.play(id, false);
    render();
    EXPECT_NEAR(left(0), rampValue(333), 1e-4);
    mixer.stop(id, timeOfBlock(blocks));
    mixer.setPosition(id, 0);
    EXPECT_EQ(mixer.position(id, timeOfBlock(blocks)).play, 0);
    mixer.play(id, false);
    render();
    EXPECT_NEAR(left(7), rampValue(7), 1e-4);
}

struct Format {
    int channels, bits, rate;
};

// The play cursor counts bytes of the file's own data at the file's own
// rate, for the frame the listener hears.
TEST_F(MixerTest, PlayCursorInTheFilesBytesForEveryFormat) {
    const Format formats[] = {{1, 8, 11025}, {1, 16, 22050}, {2, 8, 44100}, {2, 16, 48000}, {2, 16, 96000}};
    for (auto f : formats) {
        Mixer m(kRate, kBlock);
        int id = m.add(makeWave(f.channels, f.bits, f.rate, std::vector<double>(size_t(f.rate * f.channels), 0.1)));
        m.play(id, false);
        for (long k = 0; k < 8; ++k) m.render(out.data(), kBlock, timeOfBlock(k));
        const double heard = 2345.3;
        long frame = long(heard * f.rate / kRate);
        EXPECT_EQ(m.position(id, heardAt(heard)).play, frame * f.channels * f.bits / 8)
            << f.channels << " channels, " << f.bits << " bits, " << f.rate << " Hz";
    }
}

TEST_F(MixerTest, FrequencyIsStored) {
    int id = mixer.add(rampWave(10, 22050));
    EXPECT_EQ(mixer.frequency(id), 22050);
    mixer.setFrequency(id, 22050);
    EXPECT_EQ(mixer.frequency(id), 22050);
    mixer.setFrequency(id, 11025);
    EXPECT_EQ(mixer.frequency(id), 11025);
}

TEST_F(MixerTest, EveryCallOnAMissingIdFails) {
    int id = mixer.add(rampWave(10));
    mixer.release(id);
    for (int bad : {id, 0, -1, 999}) {
        EXPECT_THROW(mixer.release(bad), platform::Failure);
        EXPECT_THROW(mixer.play(bad, false), platform::Failure);
        EXPECT_THROW(mixer.stop(bad, kStart), platform::Failure);
        EXPECT_THROW(mixer.status(bad, kStart), platform::Failure);
        EXPECT_THROW(mixer.setPosition(bad, 0), platform::Failure);
        EXPECT_THROW(mixer.position(bad, kStart), platform::Failure);
        EXPECT_THROW(mixer.setVolume(bad, 0), platform::Failure);
        EXPECT_THROW(mixer.setPan(bad, 0), platform::Failure);
        EXPECT_THROW(mixer.frequency(bad), platform::Failure);
        EXPECT_THROW(mixer.setFrequency(bad, 44100), platform::Failure);
    }
}

TEST_F(MixerTest, ReleaseAllEmptiesTheMixer) {
    int id = mixer.add(rampWave(4000));
    mixer.play(id, true);
    mixer.releaseAll();
    EXPECT_THROW(mixer.status(id, kStart), platform::Failure);
    render();
    EXPECT_EQ(left(3), 0.0f);
}

TEST_F(MixerTest, SpeechIsMixedToBothSidesAtItsVolumeUntilHeardOut) {
    auto& speech = mixer.speech();
    std::vector<float> words(100, 0.5f);
    speech.setGain(0.5f);
    speech.push(speech.generation(), words.data(), words.size());
    EXPECT_TRUE(mixer.speechAudible(timeOfBlock(0)));
    render();
    EXPECT_NEAR(left(99), 0.25, 1e-6);
    EXPECT_NEAR(right(99), 0.25, 1e-6);
    EXPECT_EQ(left(100), 0.0f);
    EXPECT_TRUE(mixer.speechAudible(heardAt(99)));
    EXPECT_FALSE(mixer.speechAudible(heardAt(100.5)));
    EXPECT_EQ(mixer.nextEndAfter(kStart), heardAt(100));
}

TEST_F(MixerTest, RenderReportsWhatRanOut) {
    int looped = mixer.add(rampWave(100));
    mixer.play(looped, true);
    EXPECT_FALSE(mixer.render(out.data(), kBlock, timeOfBlock(0)));
    int once = mixer.add(rampWave(100));
    mixer.play(once, false);
    EXPECT_TRUE(mixer.render(out.data(), kBlock, timeOfBlock(1)));
    EXPECT_EQ(mixer.nextEndAfter(kStart), heardAt(kBlock + 100));
}

// The stream may stop once the output has been silent for a while: silence
// is counted in frames, and any sound playing or speech waiting ends it.
TEST_F(MixerTest, QuietCountsTheSilentBlocksSinceTheLastSound) {
    render();
    render();
    EXPECT_EQ(mixer.quietFrames(), 2 * kBlock);
    int id = mixer.add(rampWave(100));
    EXPECT_EQ(mixer.quietFrames(), 2 * kBlock);
    mixer.play(id, false);
    EXPECT_EQ(mixer.quietFrames(), 0);
    render();
    EXPECT_EQ(mixer.quietFrames(), 0);
    render();
    EXPECT_EQ(mixer.quietFrames(), kBlock);
    int looped = mixer.add(rampWave(100));
    mixer.play(looped, true);
    mixer.setVolume(looped, -10000);
    render();
    EXPECT_EQ(mixer.quietFrames(), 0);
    mixer.stop(looped, timeOfBlock(blocks));
    render();
    EXPECT_EQ(mixer.quietFrames(), kBlock);
    std::vector<float> words(10, 0.5f);
    mixer.speech().push(mixer.speech().generation(), words.data(), words.size());
    EXPECT_EQ(mixer.quietFrames(), 0);
    render();
    render();
    EXPECT_EQ(mixer.quietFrames(), kBlock);
}

// After a restart the device asks again from where it stopped, much later.
TEST_F(MixerTest, ARestartedDeviceTellsPositionsAndEndsFromItsNewStart) {
    int id = mixer.add(rampWave(4000));
    mixer.play(id, false);
    mixer.stop(id, timeOfBlock(0));
    mixer.setPosition(id, 2 * 100);
    render();
    mixer.deviceRestarted();
    const long later = 500;
    blocks = later;
    mixer.play(id, false);
    EXPECT_EQ(mixer.position(id, timeOfBlock(later)).play, 2 * 100);
    // The one block handed out before counts as the first; the device now
    // asks for device frame 480 at the time of block 500.
    mixer.render(out.data(), kBlock, timeOfBlock(later));
    EXPECT_NEAR(left(0), rampValue(100), 1e-4);
    std::int64_t heard = timeOfBlock(later) + std::int64_t((kBlock + 50.5) * 1e9 / kRate);
    EXPECT_EQ(mixer.position(id, heard).play, 2 * 150);
    EXPECT_EQ(mixer.status(id, heard), 1);
}

}  // namespace
