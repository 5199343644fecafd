// One sound the mixer holds: the file's samples as floats, and the state of
// its playing, shared between the game thread and the audio callback under
// the mixer's lock.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/wav.h"

namespace platform::real {

// A stretch the callback mixed: from device frame `deviceFrame`, `frames`
// frames of the sound starting at source frame `sourcePos`, advancing `step`
// source frames per device frame. `ended`: a one-shot reached its end there.
struct Segment {
    std::int64_t deviceFrame = 0;
    double sourcePos = 0;
    double step = 1;
    int frames = 0;
    bool looping = false;
    bool ended = false;
};

struct Sound {
    std::vector<float> samples;   // interleaved, `channels` per frame, -1..1
    int channels = 1;
    int blockAlign = 1;           // bytes per frame in the file
    long frames = 0;
    int frequency = 0;            // source frames per second
    int fileRate = 0;             // the file's own
    int volume = 0;               // hundredths of a decibel
    int pan = 0;
    float leftGain = 1;
    float rightGain = 1;

    double pos = 0;               // the next source frame to mix
    bool playing = false;
    bool looping = false;

    // What the listener hears lags what was mixed: the recent stretches, and
    // the position to report before the first of them is heard.
    static constexpr int kHistory = 8;
    std::array<Segment, kHistory> history{};
    int historyCount = 0;
    int historyNext = 0;
    double restPos = 0;
    // A one-shot that the mixer finished but the listener still hears until
    // device frame endFrame.
    bool endPending = false;
    std::int64_t endFrame = 0;
};

// The wave's samples as floats, with the sound stopped at position 0.
Sound decodeSound(const Wave& wave);
// Sets the two channel gains from the volume and the pan.
void applyGains(Sound& s);
// Forgets what was heard and reports `pos` until new stretches are heard.
void restartHistory(Sound& s, double pos);
void addSegment(Sound& s, const Segment& seg);
// The source frame heard at device frame `heard`; 0 once a finished
// one-shot's end is heard.
double heardPosition(const Sound& s, double heard);

}  // namespace platform::real
