// The stream stops while nothing sounds and starts again for the next sound
// or speech; SDL's dummy driver plays at the pace of a real device.
#include <gtest/gtest.h>

#include <SDL2/SDL.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <thread>
#include <unistd.h>

#include "platform/real/audio_output.h"
#include "platform/real/device_clock.h"
#include "test_waves.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using platform::real::AudioOutput;
using platform::real::monotonicNs;

constexpr int kSleepMs = 100;

// Waits up to five seconds for `done`; whether it came is the test's to check.
bool eventually(const std::function<bool()>& done) {
    for (int i = 0; i < 500 && !done(); ++i) std::this_thread::sleep_for(10ms);
    return done();
}

struct AudioOutputTest : ::testing::Test {
    std::unique_ptr<AudioOutput> out;

    void start(const char* driver) {
        setenv("SDL_AUDIODRIVER", driver, 1);
        ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_AUDIO), 0) << SDL_GetError();
        out = std::make_unique<AudioOutput>(SDL_USEREVENT, kSleepMs);
    }
    void TearDown() override {
        out.reset();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    bool stopped() {
        return eventually([this] { return !out->streaming(); });
    }
};

TEST_F(AudioOutputTest, StopsWhenQuietAndStartsAgainForASound) {
    start("dummy");
    EXPECT_TRUE(out->streaming());
    ASSERT_TRUE(stopped());
    auto& mixer = out->mixer();
    int id = mixer.add(realtest::rampWave(2400));
    mixer.play(id, false, monotonicNs());
    out->wake();
    EXPECT_TRUE(eventually([&] { return out->streaming(); }));
    EXPECT_TRUE(eventually([&] { return mixer.status(id, monotonicNs()) == 0; }));
    // Heard out: the stream stops again, and the sound can be played anew.
    ASSERT_TRUE(stopped());
    mixer.play(id, false, monotonicNs());
    out->wake();
    EXPECT_TRUE(eventually([&] { return out->streaming(); }));
    EXPECT_TRUE(eventually([&] { return mixer.status(id, monotonicNs()) == 0; }));
}

TEST_F(AudioOutputTest, SpeechQueuedWhileStoppedIsPlayed) {
    start("dummy");
    ASSERT_TRUE(stopped());
    auto& speech = out->mixer().speech();
    std::vector<float> words(4800, 0.25f);
    out->wake();
    speech.push(speech.generation(), words.data(), words.size());
    EXPECT_TRUE(eventually([&] { return !speech.hasSamples(); }));
    EXPECT_TRUE(eventually([&] { return !out->mixer().speechAudible(monotonicNs()); }));
}

// A loop keeps the stream running however long it plays, even unheard.
TEST_F(AudioOutputTest, ALoopKeepsTheStreamRunning) {
    start("dummy");
    auto& mixer = out->mixer();
    int id = mixer.add(realtest::rampWave(480));
    mixer.setVolume(id, -10000);
    mixer.play(id, true, monotonicNs());
    out->wake();
    std::this_thread::sleep_for(std::chrono::milliseconds(6 * kSleepMs));
    EXPECT_TRUE(out->streaming());
    mixer.stop(id, monotonicNs());
    EXPECT_TRUE(stopped());
}

// The disk driver's file would start anew each time the stream started.
TEST_F(AudioOutputTest, NeverStopsOnTheDiskDriver) {
    fs::path file = fs::temp_directory_path() / ("greenlark-output-" + std::to_string(getpid()) + ".raw");
    setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
    start("disk");
    std::this_thread::sleep_for(std::chrono::milliseconds(6 * kSleepMs));
    EXPECT_TRUE(out->streaming());
    out.reset();
    fs::remove(file);
}

}  // namespace
