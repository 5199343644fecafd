// espeak-ng on the engine's own thread, heard through the speech feed.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <thread>
#include <vector>

#include "platform/real/speech_engine.h"
#include "platform/real/speech_feed.h"
#include "platform/real/voices.h"

namespace {

using namespace platform::real;
using namespace std::chrono_literals;

struct SpeechEngineTest : ::testing::Test {
    SpeechFeed feed;
    SpeechEngine engine{feed, 48000};

    void SetUp() override { ASSERT_TRUE(engine.ready()); }
    void finish() {
        for (int i = 0; i < 500 && engine.busy(); ++i) std::this_thread::sleep_for(10ms);
        ASSERT_FALSE(engine.busy());
    }
    // Everything queued in the feed, taken out as the mixer would.
    std::vector<float> drain() {
        std::vector<float> all, block(2 * 4800);
        for (std::int64_t at = 0; feed.hasSamples(); at += 4800) {
            std::fill(block.begin(), block.end(), 0.0f);
            int n = feed.mixInto(block.data(), 4800, at);
            for (int i = 0; i < n; ++i) all.push_back(block[size_t(2 * i)]);
        }
        return all;
    }
    std::vector<float> spoken(const std::string& text) {
        engine.say(text);
        finish();
        return drain();
    }
};

TEST_F(SpeechEngineTest, SpeechStartsWithSoundNotTheSynthesisersLeadIn) {
    auto samples = spoken("Please type your name.");
    ASSERT_GT(samples.size(), 4800u);
    EXPECT_GE(std::fabs(samples[0]) * 32768.0f, 80.0f);
}

TEST_F(SpeechEngineTest, EachTextKeepsTheRateInForceWhenItWasQueued) {
    engine.setWordsPerMinute(400);
    size_t fast = spoken("Seven iron, one hundred and forty yards.").size();
    engine.setWordsPerMinute(120);
    engine.say("Seven iron, one hundred and forty yards.");
    engine.setWordsPerMinute(400);
    finish();
    size_t slow = drain().size();
    EXPECT_GT(slow, fast * 2);
}

TEST_F(SpeechEngineTest, SilenceDropsTheQueueAtOnce) {
    for (int i = 0; i < 5; ++i) engine.say("A long sentence that would take a while to say in full.");
    engine.silence();
    EXPECT_FALSE(engine.busy());
    EXPECT_FALSE(feed.hasSamples());
    finish();
    EXPECT_LT(drain().size(), 48000u);
}

TEST_F(SpeechEngineTest, AnUnknownVoiceFallsBackToEnglish) {
    engine.setVoice("no-such-voice");
    EXPECT_GT(spoken("Hello.").size(), 4800u);
}

// A voice espeak-ng does not know would quietly speak as the fallback does.
TEST_F(SpeechEngineTest, EveryListedVoiceIsOneEspeakKnows) {
    engine.setVoice("no-such-voice");
    auto fallback = spoken("Hello, golfer.");
    for (int i = 0; i < voiceCount(); ++i) {
        if (voiceId(i) == "en") continue;
        engine.setVoice(voiceId(i));
        EXPECT_NE(spoken("Hello, golfer."), fallback) << voiceId(i);
    }
}

}  // namespace
