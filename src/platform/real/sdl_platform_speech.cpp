// The platform's speech calls.
#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/real/device_clock.h"
#include "platform/real/sdl_platform.h"
#include "platform/real/voices.h"

namespace platform::real {

int SdlPlatform::voiceCount() { return real::voiceCount(); }

std::string SdlPlatform::voiceName(int index) {
    if (index < 0 || index >= real::voiceCount()) throw Failure("no voice " + std::to_string(index));
    return voiceTitle(index);
}

void SdlPlatform::applyVoice() {
    if (!speech_) return;
    speech_->setVoice(voiceId(voiceIndex_));
    speech_->setWordsPerMinute(wordsPerMinute(rate_));
    audio_->mixer().speech().setGain(float(volume_) / 100.0f);
}

void SdlPlatform::createVoice() {
    if (speech_) speech_->silence();
    voiceMade_ = true;
    applyVoice();
}

void SdlPlatform::releaseVoice() {
    if (speech_) speech_->silence();
    voiceMade_ = false;
}

void SdlPlatform::setVoice(int index) {
    if (index < 0 || index >= real::voiceCount()) throw Failure("no voice " + std::to_string(index));
    voiceIndex_ = index;
    applyVoice();
}

void SdlPlatform::setRate(int rate) {
    rate_ = rate;
    applyVoice();
}

void SdlPlatform::setVolume(int volume) {
    volume_ = std::clamp(volume, 0, 100);
    applyVoice();
}

void SdlPlatform::speak(const std::string& text, int flag) {
    pacer_.active();
    if (!speech_) return;
    if (flag == 2) {
        speech_->silence();
        return;
    }
    if (!speech_->ready()) return;
    if (!voiceMade_) createVoice();
    audio_->wake();
    speech_->say(text);
    // Waits without turning the event loop: keys stay queued for later.
    while (flag == 0 && runningState() != 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

int SdlPlatform::runningState() {
    if (!speech_) return 0;
    if (speech_->busy() || audio_->mixer().speechAudible(monotonicNs())) return 2;
    return 0;
}

}  // namespace platform::real
