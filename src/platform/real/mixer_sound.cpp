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

const Segment& newest(const Sound& s, int i) {
    return s.history[size_t((s.historyNext - i + Sound::kHistory) % Sound::kHistory)];
}

}  // namespace

std::vector<float> waveSamples(const Wave& wave) {
    std::vector<float> out(std::size_t(wave.frames()) * std::size_t(wave.channels));
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = sampleAt(wave, i);
    return out;
}

Sound makeSound(const Wave& wave, std::shared_ptr<const std::vector<float>> samples, int deviceRate) {
    Sound s;
    s.channels = wave.channels;
    s.blockAlign = wave.blockAlign;
    s.fileFrames = wave.frames();
    s.frequency = s.fileRate = wave.rate;
    s.deviceRate = deviceRate;
    s.frames = long(samples->size()) / s.channels;
    s.samples = std::move(samples);
    return s;
}

void applyGains(Sound& s) {
    float volume = gainOf(s.volume);
    s.leftGain = volume * (s.pan > 0 ? gainOf(-s.pan) : 1.0f);
    s.rightGain = volume * (s.pan < 0 ? gainOf(s.pan) : 1.0f);
}

double stepOf(const Sound& s) { return s.frequency == s.fileRate ? 1.0 : double(s.frequency) / s.fileRate; }

// A hair above the exact product, so that a position set from bytes reads
// back as the same bytes.
long fileBytes(const Sound& s, double pos) {
    auto frame = long(std::floor(pos * s.fileRate / s.deviceRate + 1e-6));
    return std::min(frame, s.fileFrames) * s.blockAlign;
}

double soundPos(const Sound& s, long bytes) { return double(bytes / s.blockAlign) * s.deviceRate / s.fileRate; }

void restartHistory(Sound& s, double pos) {
    s.historyCount = 0;
    s.historyNext = 0;
    s.restPos = pos;
    s.endPending = false;
}

// A stretch that carries straight on from the last one extends it.
void addSegment(Sound& s, const Segment& seg) {
    if (s.historyCount > 0) {
        Segment& last = s.history[size_t((s.historyNext - 1 + Sound::kHistory) % Sound::kHistory)];
        double next = last.sourcePos + last.frames * last.step;
        if (last.looping && s.frames > 0) next = std::fmod(next, double(s.frames));
        if (!last.ended && last.step == seg.step && last.looping == seg.looping && next == seg.sourcePos &&
            last.deviceFrame + last.frames == seg.deviceFrame && last.frames < (1 << 24)) {
            last.frames += seg.frames;
            last.ended = seg.ended;
            return;
        }
    }
    s.history[size_t(s.historyNext)] = seg;
    s.historyNext = (s.historyNext + 1) % Sound::kHistory;
    s.historyCount = std::min(s.historyCount + 1, Sound::kHistory);
}

double heardPosition(const Sound& s, double at) {
    const Segment* seg = nullptr;
    for (int i = 1; i <= s.historyCount && !seg; ++i)
        if (double(newest(s, i).deviceFrame) <= at) seg = &newest(s, i);
    if (!seg) return s.restPos;
    double into = std::min(at - double(seg->deviceFrame), double(seg->frames));
    if (seg->ended && into >= seg->frames) return 0;
    double pos = seg->sourcePos + into * seg->step;
    if (seg->looping && s.frames > 0) return std::fmod(pos, double(s.frames));
    return std::min(pos, double(s.frames));
}

void cutHistory(Sound& s, std::int64_t at) {
    while (s.historyCount > 0 && newest(s, 1).deviceFrame >= at) {
        s.historyNext = (s.historyNext - 1 + Sound::kHistory) % Sound::kHistory;
        --s.historyCount;
    }
    if (s.historyCount == 0) return;
    Segment& last = s.history[size_t((s.historyNext - 1 + Sound::kHistory) % Sound::kHistory)];
    if (last.deviceFrame + last.frames > at) {
        last.frames = int(at - last.deviceFrame);
        last.ended = false;
    }
}

}  // namespace platform::real
