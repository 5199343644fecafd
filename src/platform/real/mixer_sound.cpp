#include "platform/real/mixer_sound.h"

#include <algorithm>
#include <cmath>

namespace platform::real {

namespace {

float sampleAt(const Wave& w, std::size_t index) {
    if (w.bits == 8) return (float(w.data[index]) - 128.0f) / 128.0f;
    auto lo = w.data[2 * index], hi = w.data[2 * index + 1];
    return float(std::int16_t(std::uint16_t(lo | hi << 8))) / 32768.0f;
}

// Hundredths of a decibel to an amplitude factor; the bottom of the range
// and anything below it is silence.
float gainOf(int hundredthsDb) {
    if (hundredthsDb <= -10000) return 0.0f;
    return float(std::pow(10.0, std::min(hundredthsDb, 0) / 2000.0));
}

}  // namespace

Sound decodeSound(const Wave& wave) {
    Sound s;
    s.channels = wave.channels;
    s.blockAlign = wave.blockAlign;
    s.frames = wave.frames();
    s.frequency = s.fileRate = wave.rate;
    std::size_t n = std::size_t(s.frames) * std::size_t(s.channels);
    s.samples.resize(n);
    for (std::size_t i = 0; i < n; ++i) s.samples[i] = sampleAt(wave, i);
    return s;
}

void applyGains(Sound& s) {
    float volume = gainOf(s.volume);
    s.leftGain = volume * (s.pan > 0 ? gainOf(-s.pan) : 1.0f);
    s.rightGain = volume * (s.pan < 0 ? gainOf(s.pan) : 1.0f);
}

void restartHistory(Sound& s, double pos) {
    s.historyCount = 0;
    s.historyNext = 0;
    s.restPos = pos;
    s.endPending = false;
}

void addSegment(Sound& s, const Segment& seg) {
    s.history[size_t(s.historyNext)] = seg;
    s.historyNext = (s.historyNext + 1) % Sound::kHistory;
    s.historyCount = std::min(s.historyCount + 1, Sound::kHistory);
}

double heardPosition(const Sound& s, double heard) {
    const Segment* at = nullptr;
    for (int i = 1; i <= s.historyCount; ++i) {
        const Segment& seg = s.history[size_t((s.historyNext - i + Sound::kHistory) % Sound::kHistory)];
        if (double(seg.deviceFrame) <= heard) {
            at = &seg;
            break;
        }
    }
    if (!at) return s.restPos;
    double into = std::min(heard - double(at->deviceFrame), double(at->frames));
    if (at->ended && into >= at->frames) return 0;
    double pos = at->sourcePos + into * at->step;
    if (at->looping && s.frames > 0) return std::fmod(pos, double(s.frames));
    return std::min(pos, double(s.frames));
}

}  // namespace platform::real
