// Our mixer: any number of sounds made from wave files, played at once with
// volume and pan, plus the speech stream. The game thread calls the
// commands; the audio thread renders. Both take one lock, briefly; rendering
// neither allocates nor touches files.
//
// The mixer renders ahead of the listener, and can take its state back to
// any device frame it rendered that the listener has not yet heard: an
// output that can write over what it already handed to the device renders
// again from there whenever the game changes what is to be heard (a sound
// starts, stops or changes volume or pan, speech is queued or cut), so that
// the change is heard at once however much is buffered.
//
// Times are monotonicNs() values, passed in so that a harness can drive the
// mixer with a clock of its own.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/real/device_clock.h"
#include "platform/real/mixer_sound.h"
#include "platform/real/speech_feed.h"

namespace platform::real {

class Mixer {
public:
    // latencyFrames: how far the listener is behind the block being rendered,
    // for an output that does not report what is heard.
    Mixer(int deviceRate, int latencyFrames);

    // Every call that takes an id throws Failure when there is no such sound.
    int add(const Wave& wave);
    void release(int id);
    void releaseAll();
    void play(int id, bool loop, std::int64_t now);
    void stop(int id, std::int64_t now);
    // 1 while a one-shot is heard, 5 while looping, else 0.
    int status(int id, std::int64_t now);
    void setPosition(int id, long bytes);
    CursorPair position(int id, std::int64_t now);
    void setVolume(int id, int hundredthsDb);
    void setPan(int id, int hundredthsDb);
    int frequency(int id);
    void setFrequency(int id, int hz);

    SpeechFeed& speech() { return speech_; }
    // True while speech is queued or still heard.
    bool speechAudible(std::int64_t now);
    // The first moment after `after` when the end of a one-shot or of the
    // speech will be heard.
    std::optional<std::int64_t> nextEndAfter(std::int64_t after);

    // The output's side. render() fills `frames` interleaved stereo frames
    // from the next device frame on; true when a one-shot or the speech ran
    // out in them. The first form also notes the request on the clock.
    bool render(float* out, int frames, std::int64_t now);
    bool render(float* out, int frames);
    // The next device frame to render.
    std::int64_t rendered();
    // Takes every sound and the speech back to where they were at device
    // frame `frame` (no earlier than the last frame heard, no later than
    // rendered()), keeping every change the game made since.
    void rewind(std::int64_t frame);
    // The first device frame the game's changes since the last call affect
    // (0: from the next frame that can still be changed), if any.
    std::optional<std::int64_t> takeChange();
    // Called after each change, outside the mixer's lock.
    void onChange(std::function<void()> hook) { poke_ = std::move(hook); }
    // The sound server had read up to device frame `frame` at `ns`.
    void reached(std::int64_t frame, std::int64_t ns);
    double heardFrame(std::int64_t ns);

    // How many frames the output has been silent for: the frames rendered
    // since the last one with a sound playing or speech in it; 0 while a
    // sound plays or speech waits to be mixed.
    std::int64_t quietFrames();
    // The stream stopped after a quiet stretch and is about to start again.
    void deviceRestarted();
    int rate() const { return rate_; }

private:
    Sound& find(int id);
    void changed(std::int64_t from);
    void setGains(int id, const std::function<void(Sound&)>& set);
    std::shared_ptr<const std::vector<float>> resampled(const Wave& wave);
    // Mixes one sound into a block starting at device frame `first`;
    // returns true when a one-shot ended.
    bool mixSound(Sound& s, float* out, int frames, std::int64_t first);
    bool mixBlock(float* out, int frames, std::int64_t first);
    void rewindSound(Sound& s, std::int64_t frame);

    int rate_;
    std::mutex mutex_;
    DeviceClock clock_;
    std::map<int, std::unique_ptr<Sound>> sounds_;
    int nextId_ = 1;
    std::int64_t deviceFrame_ = 0;
    std::int64_t quietFrom_ = 0;   // every frame rendered from here on was silent
    SpeechFeed speech_;
    static constexpr std::int64_t kNoChange = INT64_MAX;
    std::atomic<std::int64_t> change_{kNoChange};
    std::function<void()> poke_;

    // Each file's samples at the device rate, made once: the newest at the
    // front, the oldest dropped past kCachedSamples.
    static constexpr std::size_t kCachedSamples = std::size_t(32) << 20;
    struct Cached {
        std::string key;
        std::shared_ptr<const std::vector<float>> samples;
    };
    std::mutex cacheMutex_;
    std::list<Cached> cache_;
};

}  // namespace platform::real
