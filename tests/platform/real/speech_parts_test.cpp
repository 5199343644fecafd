// The pieces behind the speech: the feed, the text the synthesiser gets,
// the voice list and the rate.
#include <gtest/gtest.h>

#include <vector>

#include "platform/real/speech_feed.h"
#include "platform/real/speech_text.h"
#include "platform/real/voices.h"

namespace {

using namespace platform::real;

TEST(SpeechFeed, RefusesSamplesOfASilencedGeneration) {
    SpeechFeed feed(16);
    std::vector<float> s(10, 0.5f);
    auto old = feed.generation();
    EXPECT_EQ(feed.push(old, s.data(), s.size()), 10u);
    feed.flush();
    EXPECT_FALSE(feed.hasSamples());
    EXPECT_EQ(feed.push(old, s.data(), s.size()), 0u);
    EXPECT_EQ(feed.push(feed.generation(), s.data(), s.size()), 10u);
}

TEST(SpeechFeed, TakesNoMoreThanFitsAndHandsOutInOrder) {
    SpeechFeed feed(8);
    std::vector<float> s{1, 2, 3, 4, 5, 6};
    auto g = feed.generation();
    EXPECT_EQ(feed.push(g, s.data(), 6), 6u);
    EXPECT_EQ(feed.push(g, s.data(), 6), 2u);
    std::vector<float> out(2 * 10, 0.0f);
    EXPECT_EQ(feed.mixInto(out.data(), 5, 100), 5);
    EXPECT_EQ(out[0], 1.0f);
    EXPECT_EQ(out[9], 5.0f);
    EXPECT_EQ(feed.endFrame(), 105);
    std::fill(out.begin(), out.end(), 0.0f);
    EXPECT_EQ(feed.push(g, s.data(), 6), 5u);   // the ring wraps
    EXPECT_EQ(feed.mixInto(out.data(), 10, 105), 8);
    EXPECT_EQ(out[0], 6.0f);
    EXPECT_EQ(out[2], 1.0f);
    EXPECT_EQ(out[14], 5.0f);
    EXPECT_EQ(feed.endFrame(), 113);
}

TEST(TextForSynth, HyphensBetweenLettersBecomeBlanks) {
    EXPECT_EQ(textForSynth("A-chicken-farm"), "A chicken farm");
    EXPECT_EQ(textForSynth(" You are at hole 3 of Par-3 lane. "), " You are at hole 3 of Par-3 lane. ");
    EXPECT_EQ(textForSynth("-5 and 6-"), "-5 and 6-");
    EXPECT_EQ(textForSynth("-"), "-");
    EXPECT_EQ(textForSynth(""), "");
}

TEST(Voices, EnglishVoicesWithSpeakableNames) {
    ASSERT_GE(voiceCount(), 6);
    for (int i = 0; i < voiceCount(); ++i) {
        EXPECT_EQ(voiceId(i).rfind("en", 0), 0u) << voiceId(i);
        EXPECT_EQ(voiceTitle(i).find_first_of("+-_"), std::string::npos) << voiceTitle(i);
    }
    EXPECT_EQ(voiceId(-1), voiceId(0));
    EXPECT_EQ(voiceId(voiceCount()), voiceId(0));
}

TEST(Voices, RateStepsByAboutTenPercentWithinEspeaksRange) {
    EXPECT_EQ(wordsPerMinute(0), 175);
    EXPECT_EQ(wordsPerMinute(1), 193);
    EXPECT_EQ(wordsPerMinute(-1), 159);
    EXPECT_EQ(wordsPerMinute(5), 282);
    EXPECT_EQ(wordsPerMinute(-10), 80);
    EXPECT_EQ(wordsPerMinute(10), 450);
    EXPECT_EQ(wordsPerMinute(100), 450);
}

}  // namespace
