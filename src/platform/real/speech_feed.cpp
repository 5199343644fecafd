#include "platform/real/speech_feed.h"

#include <algorithm>

#include "platform/real/device_clock.h"

namespace platform::real {

SpeechFeed::SpeechFeed(std::size_t capacity) : ring_(capacity) {}

std::size_t SpeechFeed::push(std::uint64_t generation, const float* samples, std::size_t n) {
    std::lock_guard lock(mutex_);
    if (generation != generation_.load()) return 0;
    std::size_t take = std::min(n, ring_.size() - count_);
    if (count_ == 0 && take > 0) readySince_ = monotonicNs();
    for (std::size_t i = 0; i < take; ++i) ring_[(head_ + i) % ring_.size()] = samples[i];
    head_ = (head_ + take) % ring_.size();
    count_ += take;
    return take;
}

void SpeechFeed::flush() {
    std::lock_guard lock(mutex_);
    generation_.fetch_add(1);
    count_ = 0;
    endFrame_ = 0;
}

int SpeechFeed::mixInto(float* stereo, int frames, std::int64_t deviceFrame) {
    std::lock_guard lock(mutex_);
    int n = int(std::min<std::size_t>(count_, std::size_t(frames)));
    if (n == 0) return 0;
    float gain = gain_.load();
    std::size_t tail = (head_ + ring_.size() - count_) % ring_.size();
    for (int i = 0; i < n; ++i) {
        float s = ring_[(tail + std::size_t(i)) % ring_.size()] * gain;
        stereo[2 * i] += s;
        stereo[2 * i + 1] += s;
    }
    count_ -= std::size_t(n);
    endFrame_ = deviceFrame + n;
    return n;
}

bool SpeechFeed::hasSamples() const {
    std::lock_guard lock(mutex_);
    return count_ > 0;
}

std::int64_t SpeechFeed::readySince() const {
    std::lock_guard lock(mutex_);
    return readySince_;
}

std::int64_t SpeechFeed::endFrame() const {
    std::lock_guard lock(mutex_);
    return endFrame_;
}

}  // namespace platform::real
