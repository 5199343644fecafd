// The engine's side that the game thread calls.
#include "platform/real/speech_engine.h"

#include "platform/real/speech_text.h"

namespace platform::real {

// Returns once espeak-ng has started (a few milliseconds), so that its
// start-up never runs alongside the caller's.
SpeechEngine::SpeechEngine(SpeechFeed& feed, int outputRate)
    : feed_(feed), outputRate_(outputRate), thread_([this] { run(); }) {
    ready();
}

SpeechEngine::~SpeechEngine() {
    {
        std::lock_guard lock(mutex_);
        quit_ = true;
        queue_.clear();
        feed_.flush();
    }
    wake_.notify_all();
    thread_.join();
}

bool SpeechEngine::ready() {
    std::unique_lock lock(mutex_);
    wake_.wait(lock, [this] { return started_; });
    return ready_;
}

void SpeechEngine::say(const std::string& text) {
    {
        std::lock_guard lock(mutex_);
        if (!ready_) return;
        queue_.push_back({textForSynth(text), voice_, wpm_});
    }
    wake_.notify_all();
}

void SpeechEngine::silence() {
    std::lock_guard lock(mutex_);
    queue_.clear();
    feed_.flush();
}

bool SpeechEngine::busy() {
    std::lock_guard lock(mutex_);
    return !queue_.empty() || (synthesising_ && synthGeneration_ == feed_.generation());
}

void SpeechEngine::setVoice(const std::string& espeakName) {
    std::lock_guard lock(mutex_);
    voice_ = espeakName;
}

void SpeechEngine::setWordsPerMinute(int wpm) {
    std::lock_guard lock(mutex_);
    wpm_ = wpm;
}

}  // namespace platform::real
