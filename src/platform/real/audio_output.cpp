#include "platform/real/audio_output.h"

#include <algorithm>
#include <cmath>

#include "platform/platform.h"

namespace platform::real {

namespace {

constexpr int kRate = 48000;

}  // namespace

int periodFrames(const std::string& driver, int rate) {
    if (driver == "dummy" || driver == "disk") return rate / 100;
    return 256;
}

// A device that double-buffers plays a block one period after asking for
// it. PulseAudio asks when our stream's buffer runs low and plays the block
// about half a period later (measured on a null sink, whose own latency is
// near zero; a sound card adds its own).
int latencyFrames(const std::string& driver, int period) {
    if (driver == "pulseaudio") return period / 2;
    return period;
}

// Stereo at 44.1 or 48 kHz, float or 16-bit as the device prefers; any
// other format SDL converts from float.
void AudioOutput::open(const std::string& driver) {
    SDL_AudioSpec want{};
    want.freq = kRate;
    want.format = AUDIO_F32SYS;
    want.channels = 2;
    want.samples = Uint16(periodFrames(driver, kRate));
    want.callback = &AudioOutput::callback;
    want.userdata = this;
    device_ = SDL_OpenAudioDevice(nullptr, 0, &want, &spec_,
                                  SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_FORMAT_CHANGE);
    if (device_ && spec_.format != AUDIO_F32SYS && spec_.format != AUDIO_S16SYS) {
        SDL_CloseAudioDevice(device_);
        device_ = SDL_OpenAudioDevice(nullptr, 0, &want, &spec_, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE);
    }
    if (!device_) throw Failure(std::string("no sound device: ") + SDL_GetError());
}

AudioOutput::AudioOutput(std::uint32_t wakeEvent) {
    const char* driver = SDL_GetCurrentAudioDriver();
    if (!driver) throw Failure("no audio driver");
    open(driver);
    scratch_.resize(size_t(spec_.samples) * 2 * 4);
    mixer_ = std::make_unique<Mixer>(spec_.freq, latencyFrames(driver, spec_.samples));
    waker_ = std::make_unique<Waker>(*mixer_, wakeEvent);
    SDL_PauseAudioDevice(device_, 0);
}

AudioOutput::~AudioOutput() {
    SDL_CloseAudioDevice(device_);
    waker_.reset();
}

void SDLCALL AudioOutput::callback(void* self, Uint8* stream, int len) {
    static_cast<AudioOutput*>(self)->fill(stream, len);
}

void AudioOutput::fill(Uint8* stream, int len) {
    std::int64_t now = monotonicNs();
    if (spec_.format == AUDIO_F32SYS) {
        auto* out = reinterpret_cast<float*>(stream);
        int frames = len / 8;
        if (mixer_->render(out, frames, now)) waker_->notify();
        for (int i = 0; i < 2 * frames; ++i) out[i] = std::clamp(out[i], -1.0f, 1.0f);
        return;
    }
    int frames = std::min(len / 4, int(scratch_.size() / 2));
    if (mixer_->render(scratch_.data(), frames, now)) waker_->notify();
    auto* out = reinterpret_cast<Sint16*>(stream);
    for (int i = 0; i < 2 * frames; ++i)
        out[i] = Sint16(std::lround(std::clamp(scratch_[size_t(i)], -1.0f, 1.0f) * 32767.0f));
}

}  // namespace platform::real
