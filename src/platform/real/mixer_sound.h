// One sound the mixer holds: the file's samples resampled to the device's
// rate, and the state of its playing, shared between the game thread and the
// audio thread under the mixer's lock.
//
// What was mixed is remembered as stretches of device frames, so that the
// mixer can tell which frame of the sound the listener hears, and can take
// its state back to any frame it has mixed but the listener not yet heard.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/wav.h"

namespace platform::real {

// A stretch the mixer mixed: from device frame `deviceFrame`, `frames`
// frames of the sound starting at its frame `sourcePos`, advancing `step`
// frames per device frame. `ended`: a one-shot reached its end there.
struct Segment {
    std::int64_t deviceFrame = 0;
    double sourcePos = 0;
    double step = 1;
    int frames = 0;
    bool looping = false;
    bool ended = false;
};

struct Sound {
    // Interleaved, `channels` per frame, -1..1, at the device's rate; shared
    // by every buffer made from the same file.
    std::shared_ptr<const std::vector<float>> samples;
    int channels = 1;
    int blockAlign = 1;           // bytes per frame in the file
    long frames = 0;              // at the device's rate
    long fileFrames = 0;
    int fileRate = 0;
    int deviceRate = 0;
    int frequency = 0;            // as set: the file's own rate unless changed
    int volume = 0;               // hundredths of a decibel
    int pan = 0;
    float leftGain = 1;
    float rightGain = 1;

    double pos = 0;               // the next frame to mix
    bool playing = false;
    bool looping = false;

    static constexpr int kHistory = 32;
    std::array<Segment, kHistory> history{};
    int historyCount = 0;
    int historyNext = 0;
    // The position before the first remembered stretch is heard.
    double restPos = 0;
    // A one-shot that the mixer finished but the listener still hears until
    // device frame endFrame.
    bool endPending = false;
    std::int64_t endFrame = 0;
};

// The file's samples as floats at its own rate, interleaved.
std::vector<float> waveSamples(const Wave& wave);
// A stopped sound at position 0 made from `samples`, the wave's samples
// already at `deviceRate`.
Sound makeSound(const Wave& wave, std::shared_ptr<const std::vector<float>> samples, int deviceRate);
// Sets the two channel gains from the volume and the pan.
void applyGains(Sound& s);
// Device frames of the sound advanced per device frame: 1 at the file's own
// rate.
double stepOf(const Sound& s);
// Sound frames to bytes of the file, and back.
long fileBytes(const Sound& s, double pos);
double soundPos(const Sound& s, long bytes);

// Forgets what was heard and reports `pos` until new stretches are heard.
void restartHistory(Sound& s, double pos);
void addSegment(Sound& s, const Segment& seg);
// The sound's frame at device frame `at`; 0 once a finished one-shot's end
// is past.
double heardPosition(const Sound& s, double at);
// Forgets every stretch from device frame `at` on.
void cutHistory(Sound& s, std::int64_t at);

}  // namespace platform::real
