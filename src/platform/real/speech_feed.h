// The queue of synthesised speech between the speech thread and the mixer:
// mono samples at the device rate. A flush starts a new generation, and
// samples of an older generation are refused, so speech that was silenced
// can never slip in behind the flush.
//
// What the mixer took is kept a while, with the device frames it went to,
// so that the mixer can take the speech back to a frame it mixed but the
// listener has not yet heard and mix it again from there.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <vector>

namespace platform::real {

class SpeechFeed {
public:
    // Samples kept after they were mixed, for mixing them again.
    static constexpr std::size_t kKept = std::size_t(1) << 16;

    // `capacity`: how many samples may wait to be mixed.
    explicit SpeechFeed(std::size_t capacity = std::size_t(1) << 20);

    std::uint64_t generation() const { return generation_.load(); }
    // Adds as many samples as fit, if `generation` is still current; returns
    // how many went in.
    std::size_t push(std::uint64_t generation, const float* samples, std::size_t n);
    // Drops everything queued and starts a new generation.
    void flush();
    // Adds up to `frames` samples, scaled by the gain, to both channels of a
    // stereo block that the device plays from `deviceFrame`. Returns how
    // many it added. Called by the audio thread.
    int mixInto(float* stereo, int frames, std::int64_t deviceFrame);
    // Takes the speech back to what was mixed at device frame `frame`.
    void rewind(std::int64_t frame);
    bool hasSamples() const;
    // The device frame just past the last speech sample handed out.
    std::int64_t endFrame() const;
    // When the speech now queued became available: the monotonicNs() of the
    // push that found the feed empty.
    std::int64_t readySince() const;
    void setGain(float gain);
    // Called, outside the feed's lock, with the first device frame that must
    // be mixed again: 0 for at once (a flush, a new volume), or the frame
    // where the mixed speech ran out before more came.
    void onChange(std::function<void(std::int64_t)> hook) { changed_ = std::move(hook); }

private:
    // Samples [sample, sample + frames) went to device frames from `deviceFrame`.
    struct Stretch {
        std::int64_t deviceFrame = 0;
        std::uint64_t sample = 0;
        int frames = 0;
    };
    static constexpr int kStretches = 16;
    float at(std::uint64_t i) const { return ring_[i % ring_.size()]; }
    void remember(const Stretch& s);
    void notify(std::int64_t frame) const {
        if (changed_) changed_(frame);
    }

    mutable std::mutex mutex_;
    std::size_t capacity_;
    std::vector<float> ring_;
    std::uint64_t pushed_ = 0;   // samples ever pushed
    std::uint64_t taken_ = 0;    // the next sample to mix
    std::array<Stretch, kStretches> stretches_{};
    int count_ = 0;
    // The mixed sound has had no speech from device frame dryFrom_ on,
    // because none had come yet.
    bool dry_ = false;
    std::int64_t dryFrom_ = 0;
    std::int64_t endFrame_ = 0;
    std::int64_t readySince_ = 0;
    std::atomic<std::uint64_t> generation_{1};
    std::atomic<float> gain_{1.0f};
    std::function<void(std::int64_t)> changed_;
};

}  // namespace platform::real
