// The SDL audio device, fed by our mixer from SDL's audio callback.
#pragma once

#include <SDL2/SDL.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/real/mixer.h"
#include "platform/real/waker.h"

namespace platform::real {

class AudioOutput {
public:
    // Opens the default device; `wakeEvent` is the SDL event type pushed when
    // a sound or the speech ends. Throws Failure when there is no device.
    explicit AudioOutput(std::uint32_t wakeEvent);
    ~AudioOutput();
    AudioOutput(const AudioOutput&) = delete;
    AudioOutput& operator=(const AudioOutput&) = delete;

    Mixer& mixer() { return *mixer_; }
    int rate() const { return spec_.freq; }
    int period() const { return spec_.samples; }

private:
    void open(const std::string& driver);
    static void SDLCALL callback(void* self, Uint8* stream, int len);
    void fill(Uint8* stream, int len);

    SDL_AudioSpec spec_{};
    SDL_AudioDeviceID device_ = 0;
    std::unique_ptr<Mixer> mixer_;
    std::unique_ptr<Waker> waker_;
    std::vector<float> scratch_;   // for a device that takes 16-bit samples
};

// Frames per device period: about 5 ms on a real device; a whole number of
// milliseconds for SDL's drivers that sleep in whole milliseconds.
int periodFrames(const std::string& driver, int rate);
// How far behind the block being rendered the listener is, in frames.
int latencyFrames(const std::string& driver, int period);

}  // namespace platform::real
