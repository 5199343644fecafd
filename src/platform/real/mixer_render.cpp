// The audio callback's side of the mixer.
#include <algorithm>
#include <cmath>

#include "platform/real/mixer.h"

namespace platform::real {

namespace {

// Linear interpolation between frame `index` and the next one; past the end
// a looping sound continues from its start and a one-shot fades to silence.
void frameAt(const Sound& s, long index, double frac, float& left, float& right) {
    long next = index + 1;
    if (next >= s.frames) next = s.looping ? 0 : -1;
    const float* a = &s.samples[size_t(index * s.channels)];
    float a0 = a[0], a1 = a[s.channels - 1];
    float b0 = 0, b1 = 0;
    if (next >= 0) {
        const float* b = &s.samples[size_t(next * s.channels)];
        b0 = b[0];
        b1 = b[s.channels - 1];
    }
    float f = float(frac);
    left = a0 + (b0 - a0) * f;
    right = a1 + (b1 - a1) * f;
}

}  // namespace

bool Mixer::mixSound(Sound& s, float* out, int frames, std::int64_t first) {
    double step = double(s.frequency) / rate_;
    Segment seg{first, s.pos, step, 0, s.looping, false};
    int i = 0;
    for (; i < frames; ++i) {
        if (s.pos >= double(s.frames)) {
            if (!s.looping || s.frames == 0) break;
            s.pos = std::fmod(s.pos, double(s.frames));
        }
        long index = long(s.pos);
        float left, right;
        frameAt(s, index, s.pos - double(index), left, right);
        out[2 * i] += left * s.leftGain;
        out[2 * i + 1] += right * s.rightGain;
        s.pos += step;
    }
    seg.frames = i;
    seg.ended = i < frames;
    addSegment(s, seg);
    if (!seg.ended) return false;
    s.playing = false;
    s.pos = 0;
    s.restPos = 0;
    s.endPending = true;
    s.endFrame = first + i;
    return true;
}

bool Mixer::mixBlock(float* out, int frames, std::int64_t first) {
    bool hadSpeech = speech_.hasSamples();
    int spoken = speech_.mixInto(out, frames, first);
    bool ended = hadSpeech && spoken < frames;
    bool sounding = spoken > 0;
    for (auto& [id, sound] : sounds_) {
        if (!sound->playing) continue;
        sounding = true;
        if (mixSound(*sound, out, frames, first)) ended = true;
    }
    quiet_ = sounding ? 0 : quiet_ + frames;
    return ended;
}

bool Mixer::render(float* out, int frames, std::int64_t now) {
    std::fill(out, out + 2 * frames, 0.0f);
    std::lock_guard lock(mutex_);
    clock_.handedOut(deviceFrame_, frames, now);
    bool ended = mixBlock(out, frames, deviceFrame_);
    deviceFrame_ += frames;
    return ended;
}

std::int64_t Mixer::quietFrames() {
    if (speech_.hasSamples()) return 0;
    std::lock_guard lock(mutex_);
    for (auto& [id, sound] : sounds_)
        if (sound->playing) return 0;
    return quiet_;
}

void Mixer::deviceRestarted() {
    std::lock_guard lock(mutex_);
    clock_.restart();
}

bool Mixer::speechAudible(std::int64_t now) {
    if (speech_.hasSamples()) return true;
    std::int64_t end = speech_.endFrame();
    std::lock_guard lock(mutex_);
    return heardFrame(now) < double(end);
}

std::optional<std::int64_t> Mixer::nextEndAfter(std::int64_t after) {
    std::lock_guard lock(mutex_);
    std::optional<std::int64_t> best;
    auto consider = [&](std::int64_t frame) {
        std::int64_t t = clock_.timeOfFrame(double(frame));
        if (t > after && (!best || t < *best)) best = t;
    };
    if (!speech_.hasSamples() && speech_.endFrame() > 0) consider(speech_.endFrame());
    for (auto& [id, sound] : sounds_)
        if (sound->endPending) consider(sound->endFrame);
    return best;
}

}  // namespace platform::real
