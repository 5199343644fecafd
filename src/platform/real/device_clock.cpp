#include "platform/real/device_clock.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace platform::real {

std::int64_t monotonicNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec;
}

DeviceClock::DeviceClock(int rate, int latencyFrames)
    : rate_(rate), latency_(latencyFrames), nsPerFrame_(1e9 / rate) {}

// The lowest offset among the `newest` latest requests.
double DeviceClock::lowestOf(int newest) const {
    double low = std::numeric_limits<double>::max();
    for (int i = 1; i <= newest; ++i) low = std::min(low, offsets_[size_t((next_ - i + kWindow) % kWindow)]);
    return low;
}

void DeviceClock::handedOut(std::int64_t first, int frames, std::int64_t ns) {
    offsets_[size_t(next_)] = double(ns) - double(first) * nsPerFrame_;
    next_ = (next_ + 1) % kWindow;
    count_ = std::min(count_ + 1, kWindow);
    lowest_ = lowestOf(count_);
    if (count_ > kRecent && lowestOf(kRecent) > lowest_ + kRiseNs) {
        count_ = kRecent;
        lowest_ = lowestOf(count_);
    }
    handedEnd_ = first + frames;
}

void DeviceClock::restart() {
    count_ = 0;
    next_ = 0;
    heardFloor_ = handedEnd_;
}

double DeviceClock::heardFrame(std::int64_t ns) const {
    if (count_ == 0) return double(heardFloor_);
    double frame = (double(ns) - lowest_) / nsPerFrame_ - latency_;
    return std::clamp(frame, double(heardFloor_), double(handedEnd_));
}

std::int64_t DeviceClock::timeOfFrame(double frame) const {
    if (count_ == 0) return std::numeric_limits<std::int64_t>::max();
    return std::int64_t(lowest_ + (frame + latency_) * nsPerFrame_);
}

}  // namespace platform::real
