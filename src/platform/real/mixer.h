// Our mixer: any number of sounds made from wave files, played at once with
// volume and pan, resampled to the device rate, plus the speech stream. The
// game thread calls the commands; the audio callback calls render(). Both
// take one lock, briefly; render() neither allocates nor touches files.
//
// Times are monotonicNs() values, passed in so that a harness can drive the
// mixer with a clock of its own.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/platform.h"
#include "platform/real/device_clock.h"
#include "platform/real/mixer_sound.h"
#include "platform/real/speech_feed.h"

namespace platform::real {

class Mixer {
public:
    // latencyFrames: how far the listener is behind the block being rendered.
    Mixer(int deviceRate, int latencyFrames);

    // Every call that takes an id throws Failure when there is no such sound.
    int add(const Wave& wave);
    void release(int id);
    void releaseAll();
    void play(int id, bool loop);
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

    // Fills `frames` interleaved stereo frames. Returns true when a one-shot
    // or the speech ran out in this block.
    bool render(float* out, int frames, std::int64_t now);
    // How many frames the output has been silent for: the blocks rendered
    // since the last one with a sound playing or speech in it; 0 while a
    // sound plays or speech waits to be mixed.
    std::int64_t quietFrames();
    // The stream stopped after a quiet stretch and is about to start again.
    void deviceRestarted();
    int rate() const { return rate_; }

private:
    Sound& find(int id);
    double heardFrame(std::int64_t now) const { return clock_.heardFrame(now); }
    // Mixes one sound into a block starting at device frame `first`;
    // returns true when a one-shot ended.
    bool mixSound(Sound& s, float* out, int frames, std::int64_t first);
    bool mixBlock(float* out, int frames, std::int64_t first);

    int rate_;
    std::mutex mutex_;
    DeviceClock clock_;
    std::map<int, std::unique_ptr<Sound>> sounds_;
    int nextId_ = 1;
    std::int64_t deviceFrame_ = 0;
    std::int64_t quiet_ = 0;
    SpeechFeed speech_;
};

}  // namespace platform::real
