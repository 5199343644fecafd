// espeak-ng as the speech service. espeak is not thread-safe, so every call
// into it happens on one thread of our own, which synthesises the queued
// texts one by one in synchronous mode and hands the samples, trimmed of
// their leading silence and resampled, to the speech feed the mixer plays.
#pragma once

#include <clocale>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/real/resampler.h"
#include "platform/real/speech_feed.h"

namespace platform::real {

// Starts espeak-ng for the whole process, once, on the calling thread; its
// sample rate, or 0 when it cannot start. An engine made later uses it as it
// is.
int startSynthesiser();

class SpeechEngine {
public:
    SpeechEngine(SpeechFeed& feed, int outputRate);
    ~SpeechEngine();
    SpeechEngine(const SpeechEngine&) = delete;
    SpeechEngine& operator=(const SpeechEngine&) = delete;

    // False when espeak-ng could not start; then nothing is ever spoken.
    bool ready();
    void say(const std::string& text);
    // Stops the text being spoken and drops the queue, at once.
    void silence();
    // True while a text waits or is being synthesised.
    bool busy();
    void setVoice(const std::string& espeakName);
    void setWordsPerMinute(int wpm);

    // The synthesiser's callback; public for espeak's C interface only.
    int onSamples(const short* wav, int n);

private:
    // A text with the voice and rate in force when it was queued.
    struct Utterance {
        std::string text;
        std::string voice;
        int wpm = 0;
    };

    void run();
    bool start();
    bool next(Utterance& u);
    void applySettings(const Utterance& u);
    void synthesise(const std::string& text);
    bool deliver(const std::vector<float>& samples);

    SpeechFeed& feed_;
    int outputRate_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<Utterance> queue_;
    bool quit_ = false;
    bool started_ = false;
    bool ready_ = false;
    bool synthesising_ = false;
    std::uint64_t synthGeneration_ = 0;
    std::string voice_ = "en-us";
    int wpm_ = 175;

    // Used by the speech thread only.
    locale_t utf8_ = nullptr;
    std::string appliedVoice_;
    int appliedWpm_ = 0;
    std::unique_ptr<Resampler> resampler_;
    bool leading_ = true;
    std::vector<float> chunk_;
    std::thread thread_;
};

}  // namespace platform::real
