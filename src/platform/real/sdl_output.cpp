#include "platform/real/sdl_output.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "platform/platform.h"

namespace platform::real {

namespace {

constexpr int kRate = 48000;
// While the stream runs, the keeper looks this often whether it may stop.
constexpr int kLookMs = 250;

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
void SdlOutput::open(const std::string& driver) {
    SDL_AudioSpec want{};
    want.freq = kRate;
    want.format = AUDIO_F32SYS;
    want.channels = 2;
    want.samples = Uint16(periodFrames(driver, kRate));
    want.callback = &SdlOutput::callback;
    want.userdata = this;
    SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &want, &spec_,
                                                   SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_FORMAT_CHANGE);
    if (device && spec_.format != AUDIO_F32SYS && spec_.format != AUDIO_S16SYS) {
        SDL_CloseAudioDevice(device);
        device = SDL_OpenAudioDevice(nullptr, 0, &want, &spec_, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE);
    }
    if (!device) throw Failure(std::string("no sound device: ") + SDL_GetError());
    device_ = device;
}

SdlOutput::SdlOutput(std::uint32_t wakeEvent, int sleepMs) {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) throw Failure(std::string("no audio driver: ") + SDL_GetError());
    const char* driver = SDL_GetCurrentAudioDriver();
    try {
        if (!driver) throw Failure("no audio driver");
        open(driver);
    } catch (const Failure&) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        throw;
    }
    scratch_.resize(size_t(spec_.samples) * 2 * 4);
    mixer_ = std::make_unique<Mixer>(spec_.freq, latencyFrames(driver, spec_.samples));
    waker_ = std::make_unique<Waker>(*mixer_, wakeEvent);
    sleepMs_ = std::string(driver) == "disk" ? 0 : sleepMs;
    wokenAt_ = monotonicNs();
    SDL_PauseAudioDevice(device_, 0);
    keeper_ = std::thread([this] { keep(); });
}

SdlOutput::~SdlOutput() {
    {
        std::lock_guard lock(keepMutex_);
        quit_ = true;
    }
    keepWake_.notify_all();
    keeper_.join();
    close();
    waker_.reset();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

// The stream starts again as it was first opened; the mixer's clock starts
// anew. When the device cannot be opened the stream stays stopped until the
// next wake().
void SdlOutput::reopen() {
    SDL_AudioSpec want = spec_;
    want.callback = &SdlOutput::callback;
    want.userdata = this;
    mixer_->deviceRestarted();
    SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &want, nullptr, 0);
    if (!device) return;
    device_ = device;
    SDL_PauseAudioDevice(device, 0);
}

void SdlOutput::close() {
    if (device_) SDL_CloseAudioDevice(device_);
    device_ = 0;
}

void SdlOutput::wake() {
    {
        std::lock_guard lock(keepMutex_);
        wokenAt_ = monotonicNs();
        wanted_ = true;
    }
    keepWake_.notify_all();
}

// Nothing has sounded, and nothing was about to, for the whole stretch.
bool SdlOutput::maySleep() {
    if (sleepMs_ <= 0) return false;
    std::int64_t frames = std::int64_t(sleepMs_) * spec_.freq / 1000;
    return mixer_->quietFrames() >= frames && monotonicNs() - wokenAt_ >= std::int64_t(sleepMs_) * 1000000;
}

// The keeper's thread: starts the stream when something is to sound, stops
// it after a quiet stretch.
void SdlOutput::keep() {
    std::unique_lock lock(keepMutex_);
    while (!quit_) {
        if (!streaming()) {
            keepWake_.wait(lock, [this] { return quit_ || wanted_; });
            if (quit_) break;
            wanted_ = false;
            lock.unlock();
            reopen();
            lock.lock();
            continue;
        }
        keepWake_.wait_for(lock, std::chrono::milliseconds(kLookMs));
        wanted_ = false;
        if (quit_ || !maySleep()) continue;
        lock.unlock();
        close();
        lock.lock();
        // A sound that started while the stream was stopping starts it again.
        if (mixer_->quietFrames() == 0) wanted_ = true;
    }
}

void SDLCALL SdlOutput::callback(void* self, Uint8* stream, int len) {
    static_cast<SdlOutput*>(self)->fill(stream, len);
}

void SdlOutput::fill(Uint8* stream, int len) {
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
