// The platform's sound calls, answered by the mixer.
#include "platform/files.h"
#include "platform/real/device_clock.h"
#include "platform/real/sdl_platform.h"
#include "platform/real/tone.h"

namespace platform::real {

void SdlPlatform::openSoundDevice() {
    if (!audio_) throw Failure("no sound device");
    soundOpen_ = true;
}

void SdlPlatform::closeSoundDevice() {
    if (audio_ && soundOpen_) {
        audio_->mixer().releaseAll();
        journal_.releasedAll();
        beepId_ = 0;
    }
    soundOpen_ = false;
}

Mixer& SdlPlatform::openMixer() {
    if (!audio_ || !soundOpen_) throw Failure("the sound device is not open");
    return audio_->mixer();
}

// The beep's buffer is the platform's own, not one of the game's.
Mixer& SdlPlatform::soundsFor(int id) {
    Mixer& mixer = openMixer();
    if (id == beepId_) throw Failure("no sound buffer " + std::to_string(id));
    return mixer;
}

int SdlPlatform::createBuffer(const std::string& path) {
    Mixer& mixer = openMixer();
    std::string bytes = files::read("", path);
    Wave wave = bufferWave(bytes, path);
    pacer_.active();
    int id = mixer.add(wave);
    journal_.made(id, path, long(bytes.size()));
    return id;
}

void SdlPlatform::releaseBuffer(int id) {
    soundsFor(id).release(id);
    journal_.released(id);
}

int SdlPlatform::getFrequency(int id) { return soundsFor(id).frequency(id); }

void SdlPlatform::setFrequency(int id, int hz) { soundsFor(id).setFrequency(id, hz); }

void SdlPlatform::setCurrentPosition(int id, long bytes) {
    soundsFor(id).setPosition(id, bytes);
    pacer_.active();
}

CursorPair SdlPlatform::getCurrentPosition(int id) {
    CursorPair at = soundsFor(id).position(id, monotonicNs());
    journal_.read(id, at.play);
    return at;
}

void SdlPlatform::setVolumeDb(int id, int hundredthsDb) { soundsFor(id).setVolume(id, hundredthsDb); }

void SdlPlatform::setPan(int id, int hundredthsDb) { soundsFor(id).setPan(id, hundredthsDb); }

void SdlPlatform::play(int id, int loopFlag) {
    Mixer& mixer = soundsFor(id);
    std::int64_t now = monotonicNs();
    bool starts = journal_.on() && mixer.status(id, now) == 0;
    mixer.play(id, loopFlag != 0, now);
    if (starts) journal_.played(id, loopFlag != 0);
    audio_->wake();
    pacer_.active();
}

int SdlPlatform::getStatus(int id) { return soundsFor(id).status(id, monotonicNs()); }

void SdlPlatform::stop(int id) {
    soundsFor(id).stop(id, monotonicNs());
    pacer_.active();
}

std::optional<Journal::Indicator> SdlPlatform::playingIndicator() {
    if (!audio_ || !soundOpen_) return std::nullopt;
    Mixer& mixer = audio_->mixer();
    std::int64_t now = monotonicNs();
    for (int id : journal_.indicators()) {
        std::optional<Journal::Indicator> found;
        attempt([&] {
            if (mixer.status(id, now) == statusPlaying) found = Journal::Indicator{id, mixer.position(id, now).play};
        });
        if (found) return found;
    }
    return std::nullopt;
}

std::uint64_t SdlPlatform::clockSeed() {
    auto seed = std::uint64_t(monotonicNs());
    journal_.seed(seed);
    return seed;
}

// Our buffers live in memory and are never lost.
void SdlPlatform::restore(int id) { soundsFor(id).frequency(id); }

void SdlPlatform::beep() {
    if (!audio_) return;
    Mixer& mixer = audio_->mixer();
    if (beepId_ == 0) beepId_ = mixer.add(toneWave(880, 100, mixer.rate()));
    mixer.setPosition(beepId_, 0);
    mixer.play(beepId_, false, monotonicNs());
    audio_->wake();
    pacer_.active();
}

}  // namespace platform::real
