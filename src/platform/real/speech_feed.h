// The queue of synthesised speech between the speech thread and the mixer:
// mono samples at the device rate. A flush starts a new generation, and
// samples of an older generation are refused, so speech that was silenced
// can never slip in behind the flush.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <vector>

namespace platform::real {

class SpeechFeed {
public:
    explicit SpeechFeed(std::size_t capacity = std::size_t(1) << 20);

    std::uint64_t generation() const { return generation_.load(); }
    // Adds as many samples as fit, if `generation` is still current; returns
    // how many went in.
    std::size_t push(std::uint64_t generation, const float* samples, std::size_t n);
    // Drops everything queued and starts a new generation.
    void flush();
    // Adds up to `frames` samples, scaled by the gain, to both channels of a
    // stereo block that the device plays from `deviceFrame`. Returns how
    // many it added. Called by the audio callback.
    int mixInto(float* stereo, int frames, std::int64_t deviceFrame);
    bool hasSamples() const;
    // The device frame just past the last speech sample handed out.
    std::int64_t endFrame() const;
    // When the speech now queued became available: the monotonicNs() of the
    // push that found the feed empty.
    std::int64_t readySince() const;
    void setGain(float gain) { gain_.store(gain); }

private:
    mutable std::mutex mutex_;
    std::vector<float> ring_;
    std::size_t head_ = 0;   // next write
    std::size_t count_ = 0;
    std::int64_t endFrame_ = 0;
    std::int64_t readySince_ = 0;
    std::atomic<std::uint64_t> generation_{1};
    std::atomic<float> gain_{1.0f};
};

}  // namespace platform::real
