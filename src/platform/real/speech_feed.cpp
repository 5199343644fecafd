#include "platform/real/speech_feed.h"

#include <algorithm>

#include "platform/real/device_clock.h"

namespace platform::real {

SpeechFeed::SpeechFeed(std::size_t capacity) : capacity_(capacity), ring_(capacity + kKept) {}

std::size_t SpeechFeed::push(std::uint64_t generation, const float* samples, std::size_t n) {
    std::size_t take = 0;
    bool resume = false;
    std::int64_t from = 0;
    {
        std::lock_guard lock(mutex_);
        if (generation != generation_.load()) return 0;
        take = std::min<std::size_t>(n, capacity_ - std::size_t(pushed_ - taken_));
        if (take == 0) return 0;
        if (pushed_ == taken_) readySince_ = monotonicNs();
        for (std::size_t i = 0; i < take; ++i) ring_[(pushed_ + i) % ring_.size()] = samples[i];
        pushed_ += take;
        resume = dry_;
        from = dryFrom_;
    }
    if (resume) notify(from);
    return take;
}

void SpeechFeed::flush() {
    {
        std::lock_guard lock(mutex_);
        generation_.fetch_add(1);
        taken_ = pushed_;
        count_ = 0;
        dry_ = false;
        endFrame_ = 0;
    }
    notify(0);
}

void SpeechFeed::setGain(float gain) {
    gain_.store(gain);
    notify(0);
}

// A stretch that carries straight on from the last one extends it.
void SpeechFeed::remember(const Stretch& s) {
    if (count_ > 0) {
        Stretch& last = stretches_[size_t(count_ - 1)];
        if (last.deviceFrame + last.frames == s.deviceFrame && last.sample + std::uint64_t(last.frames) == s.sample &&
            last.frames < (1 << 24)) {
            last.frames += s.frames;
            return;
        }
    }
    if (count_ == kStretches) {
        std::rotate(stretches_.begin(), stretches_.begin() + 1, stretches_.end());
        --count_;
    }
    stretches_[size_t(count_++)] = s;
}

int SpeechFeed::mixInto(float* stereo, int frames, std::int64_t deviceFrame) {
    std::lock_guard lock(mutex_);
    int n = int(std::min<std::uint64_t>(pushed_ - taken_, std::uint64_t(frames)));
    if (n < frames && !dry_) {
        dry_ = true;
        dryFrom_ = deviceFrame + n;
    } else if (n == frames) {
        dry_ = false;
    }
    if (n == 0) return 0;
    float gain = gain_.load();
    for (int i = 0; i < n; ++i) {
        float s = at(taken_ + std::uint64_t(i)) * gain;
        stereo[2 * i] += s;
        stereo[2 * i + 1] += s;
    }
    remember({deviceFrame, taken_, n});
    taken_ += std::uint64_t(n);
    endFrame_ = deviceFrame + n;
    return n;
}

// Samples older than kKept before the next one to mix may be overwritten:
// the mixer never goes back that far.
void SpeechFeed::rewind(std::int64_t frame) {
    std::lock_guard lock(mutex_);
    while (count_ > 0 && stretches_[size_t(count_ - 1)].deviceFrame >= frame) {
        taken_ = stretches_[size_t(count_ - 1)].sample;
        --count_;
    }
    if (count_ > 0) {
        Stretch& last = stretches_[size_t(count_ - 1)];
        if (last.deviceFrame + last.frames > frame) {
            last.frames = int(frame - last.deviceFrame);
            taken_ = last.sample + std::uint64_t(last.frames);
        }
    }
    taken_ = std::max(taken_, pushed_ > kKept + capacity_ ? pushed_ - kKept - capacity_ : 0);
    if (dry_ && dryFrom_ >= frame) dry_ = false;
    endFrame_ = std::min(endFrame_, frame);
}

bool SpeechFeed::hasSamples() const {
    std::lock_guard lock(mutex_);
    return pushed_ > taken_;
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
