// The SDL audio device, fed by our mixer from SDL's audio callback: the
// output where no PulseAudio server answers. Changes are heard when the
// device asks for its next block.
//
// A stream that plays silence still costs: the sound server and our audio
// thread wake every few milliseconds to pass it on. Once nothing has sounded
// for a while (every sound stopped, no speech queued or heard) the stream
// stops, and the next sound or speech starts it again. A thread of our own
// stops and starts it, so that the game never waits for the device.
#pragma once

#include <SDL2/SDL.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/real/mixer.h"
#include "platform/real/waker.h"

namespace platform::real {

class SdlOutput {
public:
    // Opens the default device and starts the stream; `wakeEvent` is the SDL
    // event type pushed when a sound or the speech ends. After `sleepMs` of
    // silence the stream stops (never with 0, nor on SDL's disk driver,
    // whose file would start anew). Throws Failure when there is no device.
    SdlOutput(std::uint32_t wakeEvent, int sleepMs);
    ~SdlOutput();
    SdlOutput(const SdlOutput&) = delete;
    SdlOutput& operator=(const SdlOutput&) = delete;

    Mixer& mixer() { return *mixer_; }
    int rate() const { return spec_.freq; }
    int period() const { return spec_.samples; }

    // Something is about to sound: the stream keeps running, or starts again
    // if it had stopped. Returns at once.
    void wake();
    // True while the stream runs.
    bool streaming() const { return device_.load() != 0; }

private:
    void open(const std::string& driver);
    void reopen();
    void close();
    bool maySleep();
    void keep();
    static void SDLCALL callback(void* self, Uint8* stream, int len);
    void fill(Uint8* stream, int len);

    SDL_AudioSpec spec_{};
    std::atomic<SDL_AudioDeviceID> device_{0};
    std::unique_ptr<Mixer> mixer_;
    std::unique_ptr<Waker> waker_;
    std::vector<float> scratch_;   // for a device that takes 16-bit samples

    int sleepMs_;
    std::mutex keepMutex_;
    std::condition_variable keepWake_;
    bool wanted_ = false;
    bool quit_ = false;
    std::int64_t wokenAt_ = 0;
    std::thread keeper_;
};

// Frames per device period: about 5 ms on a real device; a whole number of
// milliseconds for SDL's drivers that sleep in whole milliseconds.
int periodFrames(const std::string& driver, int rate);
// How far behind the block being rendered the listener is, in frames.
int latencyFrames(const std::string& driver, int period);

}  // namespace platform::real
