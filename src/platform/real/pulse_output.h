// Our own output on a PulseAudio server (PipeWire's pulse layer as well),
// through libpulse's threaded main loop.
//
// It keeps 40 to 60 ms rendered ahead of the listener, enough to ride out a
// late wake of our thread, and still answers a key at once: whenever the
// game changes what is to be heard, the mixer goes back to a frame a little
// past the server's read position, and what was buffered from there is
// rendered again and written over it (an absolute seek in the stream). The
// server tells which frame is being heard, so the play cursor is what the
// player hears.
//
// A server that will not take such a write over is written to by appending
// only, with a small buffer. After two seconds of silence the stream goes
// away, and the next sound or speech opens a new one. While no stream can
// play (the server went away), the mixer runs on into nothing at the
// device's pace, so that every sound and every text still ends when it
// would have, and the next sound tries the server again.
#pragma once

#include <pulse/pulseaudio.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/real/mixer.h"
#include "platform/real/waker.h"

namespace platform::real {

class PulseOutput {
public:
    // Rendered ahead of the listener, topped up every kTickMs.
    static constexpr int kAheadMs = 60;
    static constexpr int kTickMs = 20;
    // Where the server refuses a write over, appending keeps this much.
    static constexpr int kAppendAheadMs = 20;
    // A change is written from this far past the server's read position.
    static constexpr double kMarginMs = 1.0;

    // Connects to the server (never starting one) and opens a stream at the
    // server's own rate; `wakeEvent` is the SDL event type pushed when a
    // sound or the speech ends. Throws Failure when no server answers or it
    // refuses the stream.
    PulseOutput(std::uint32_t wakeEvent, int sleepMs);
    ~PulseOutput();
    PulseOutput(const PulseOutput&) = delete;
    PulseOutput& operator=(const PulseOutput&) = delete;

    Mixer& mixer() { return *mixer_; }
    int rate() const { return rate_; }
    // Something is about to sound: the stream keeps running, or starts again.
    void wake();
    bool streaming() const { return streaming_.load(); }
    // False once the server was found to ignore writes over buffered sound.
    bool rewrites() const { return rewrites_.load(); }

private:
    void start(std::uint32_t wakeEvent);
    void release();
    void poke();
    void openStream();
    void closeStream();
    void onPoke();
    void onTick();
    void topUp();
    void rewrite();
    void write(std::int64_t from, std::int64_t frames, bool over);
    // Tells the mixer's clock what the server last said it had read.
    void heard();
    void verify();
    bool maySleep();
    void startDrain();
    void drain();
    void reconnect();
    std::int64_t framesIn(double ms) const { return std::int64_t(ms * rate_ / 1000); }

    static void contextState(pa_context* c, void* self);
    static void streamState(pa_stream* s, void* self);
    static void request(pa_stream* s, std::size_t bytes, void* self);
    static void timingUpdated(pa_stream* s, void* self);
    static void ranDry(pa_stream* s, void* self);
    static void verified(pa_stream* s, int success, void* self);
    static void poked(pa_mainloop_api* api, pa_io_event* e, int fd, pa_io_event_flags_t flags, void* self);
    static void ticked(pa_mainloop_api* api, pa_time_event* e, const struct timeval* tv, void* self);
    static void drained(pa_mainloop_api* api, pa_time_event* e, const struct timeval* tv, void* self);

    pa_threaded_mainloop* loop_ = nullptr;
    pa_context* context_ = nullptr;
    int rate_ = 0;
    int sleepMs_;
    std::unique_ptr<Mixer> mixer_;
    std::unique_ptr<Waker> waker_;

    // Used on the main loop's thread, under its lock.
    pa_stream* stream_ = nullptr;
    pa_time_event* tick_ = nullptr;
    pa_io_event* pokeEvent_ = nullptr;
    pa_time_event* drain_ = nullptr;
    std::int64_t drainFrom_ = 0;     // the device frame and the moment the drain began
    std::int64_t drainSince_ = 0;
    std::int64_t triedAt_ = 0;       // the last time the server was tried again
    std::int64_t base_ = 0;          // the device frame at the stream's first byte
    std::vector<float> block_;
    bool verifying_ = false;         // a write over awaits the server's word
    bool spoilt_ = false;            // and something was written since
    bool verifiedOnce_ = false;

    int pokeFd_ = -1;
    std::atomic<bool> streaming_{false};
    std::atomic<bool> rewrites_{true};
    std::atomic<std::int64_t> wokenAt_{0};
};

}  // namespace platform::real
