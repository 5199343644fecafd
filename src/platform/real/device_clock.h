// Where the listener is in the stream the audio device plays.
//
// SDL's device asks for sound one block ahead of what it plays: each
// request arrives at (or a little after) the moment the device needs it, so
// the earliest request, measured against the frames handed out so far,
// marks the device's own clock; scheduling delays only ever make requests
// late. The estimate takes the lowest offset over the last few dozen
// requests and places the listener the device's buffering behind it. A
// PulseAudio server's reports of how far it has read, stamped with the
// server's own time, are read the same way, with nothing behind them. When
// the device falls behind (a stall, an underrun) every later request is
// late by the same amount: once the last few all are, the older ones are
// forgotten. When the stream stops and starts again, the device's clock
// starts anew.
#pragma once

#include <array>
#include <cstdint>

namespace platform::real {

// Nanoseconds from the monotonic clock.
std::int64_t monotonicNs();

class DeviceClock {
public:
    static constexpr int kWindow = 48;
    static constexpr int kRecent = 8;
    static constexpr double kRiseNs = 2.5e6;

    DeviceClock(int rate, int latencyFrames);

    // A request for `frames` frames starting at device frame `first`, made at `ns`.
    void handedOut(std::int64_t first, int frames, std::int64_t ns);
    // The stream stopped after everything handed out was heard, and the
    // device will ask again from a new start: the old requests are forgotten.
    void restart();
    // The device frame being heard at `ns` (fractional; never past what was
    // handed out, never before what was heard when the stream last stopped).
    double heardFrame(std::int64_t ns) const;
    // When device frame `frame` will be heard.
    std::int64_t timeOfFrame(double frame) const;
    int rate() const { return rate_; }
    int latencyFrames() const { return latency_; }

private:
    double lowestOf(int newest) const;
    int rate_;
    int latency_;
    double nsPerFrame_;
    std::array<double, kWindow> offsets_{};
    int count_ = 0;
    int next_ = 0;
    double lowest_ = 0;
    std::int64_t handedEnd_ = 0;
    std::int64_t heardFloor_ = 0;
};

}  // namespace platform::real
