// The platform's speech calls: espeak-ng in process for its own voices, and
// speech-dispatcher for the voices listed after them.
#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/real/device_clock.h"
#include "platform/real/sdl_platform.h"
#include "platform/real/terminal_text.h"
#include "platform/real/voices.h"

namespace platform::real {

namespace {

// How long start-up may wait for speech-dispatcher's list of voices, when it
// is running at all: espeak-ng's module alone lists some thirteen thousand
// voices, which takes it about two seconds.
constexpr auto kSearchLimit = std::chrono::seconds(10);

int dispatcherVoices(Dispatcher* d) { return d ? int(d->voices().size()) : 0; }

}  // namespace

// The search is waited for once; a dispatcher that did not answer in time is
// left out for the rest of the run, so the voice list never changes.
Dispatcher* SdlPlatform::dispatcher() {
    if (dispatcherSearch_.valid() && !dispatcherGivenUp_) {
        if (dispatcherSearch_.wait_for(kSearchLimit) == std::future_status::ready)
            dispatcher_ = dispatcherSearch_.get();
        else
            dispatcherGivenUp_ = true;
    }
    return dispatcher_.get();
}

int SdlPlatform::voiceCount() { return real::voiceCount() + dispatcherVoices(dispatcher()); }

std::string SdlPlatform::voiceName(int index) {
    if (index < 0 || index >= voiceCount()) throw Failure("no voice " + std::to_string(index));
    if (index < real::voiceCount()) return voiceTitle(index);
    return dispatcher()->voices()[size_t(index - real::voiceCount())].title;
}

void SdlPlatform::applyVoice() {
    if (onDispatcher()) dispatcher_->use(dispatcherVoice_);
    if (speech_) speech_->setVoice(voiceId(std::min(voiceIndex_, real::voiceCount() - 1)));
    setRate(rate_);
    setVolume(volume_);
}

void SdlPlatform::createVoice() {
    if (speech_) speech_->silence();
    if (onDispatcher()) dispatcher_->silence();
    voiceMade_ = true;
    applyVoice();
}

void SdlPlatform::releaseVoice() {
    if (speech_) speech_->silence();
    if (onDispatcher()) dispatcher_->silence();
    voiceMade_ = false;
}

void SdlPlatform::setVoice(int index) {
    if (index < 0 || index >= voiceCount()) throw Failure("no voice " + std::to_string(index));
    if (speech_) speech_->silence();
    if (onDispatcher()) dispatcher_->silence();
    voiceIndex_ = index;
    dispatcherVoice_ = index < real::voiceCount() ? -1 : index - real::voiceCount();
    applyVoice();
}

// Rate and volume send only themselves: key names change the rate twice a
// key, and every setting is a round trip to speech-dispatcher.
void SdlPlatform::setRate(int rate) {
    rate_ = rate;
    if (onDispatcher()) dispatcher_->setRate(rate_);
    if (speech_) speech_->setWordsPerMinute(wordsPerMinute(rate_));
}

void SdlPlatform::setVolume(int volume) {
    volume_ = std::clamp(volume, 0, 100);
    if (onDispatcher()) dispatcher_->setVolume(volume_);
    if (speech_) audio_->mixer().speech().setGain(float(volume_) / 100.0f);
}

void SdlPlatform::speak(const std::string& text, int flag) {
    pacer_.active();
    if (flag != speakPurge) journal_.spoke(text, flag);
    if (flag != speakPurge && texts_) writeTextLine(text);
    if (flag == speakPurge) {
        if (speech_) speech_->silence();
        if (onDispatcher()) dispatcher_->silence();
        return;
    }
    if (!voiceMade_) createVoice();
    if (onDispatcher()) {
        dispatcher_->say(text);
    } else {
        if (!speech_ || !speech_->ready()) return;
        audio_->wake();
        speech_->say(text);
    }
    // Waits without turning the event loop: keys stay queued for later.
    while (flag == 0 && runningState() != 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

int SdlPlatform::runningState() {
    if (onDispatcher()) return dispatcher_->speaking() ? 2 : 0;
    if (!speech_) return 0;
    if (speech_->busy() || audio_->mixer().speechAudible(monotonicNs())) return 2;
    return 0;
}

}  // namespace platform::real
