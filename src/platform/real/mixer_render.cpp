// The audio thread's side of the mixer.
#include <algorithm>
#include <cmath>

#include "platform/real/mixer.h"

namespace platform::real {

namespace {

// Frame `index` and the next, `frac` of the way between them (0 at the
// sound's own rate); past the end a looping sound continues from its start
// and a one-shot fades to silence.
void frameAt(const Sound& s, long index, double frac, float& left, float& right) {
    const float* a = &(*s.samples)[size_t(index * s.channels)];
    left = a[0];
    right = a[s.channels - 1];
    if (frac == 0) return;
    long next = index + 1;
    if (next >= s.frames) next = s.looping ? 0 : -1;
    float b0 = 0, b1 = 0;
    if (next >= 0) {
        const float* b = &(*s.samples)[size_t(next * s.channels)];
        b0 = b[0];
        b1 = b[s.channels - 1];
    }
    auto f = float(frac);
    left += (b0 - left) * f;
    right += (b1 - right) * f;
}

}  // namespace

bool Mixer::mixSound(Sound& s, float* out, int frames, std::int64_t first) {
    double step = stepOf(s);
    Segment seg{first, s.pos, step, 0, s.looping, false};
    int i = 0;
    for (; i < frames; ++i) {
        if (s.pos >= double(s.frames)) {
            if (!s.looping || s.frames == 0) break;
            s.pos = std::fmod(s.pos, double(s.frames));
        }
        auto index = long(s.pos);
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
    if (sounding) quietFrom_ = first + frames;
    return ended;
}

bool Mixer::render(float* out, int frames, std::int64_t now) {
    {
        std::lock_guard lock(mutex_);
        clock_.handedOut(deviceFrame_, frames, now);
    }
    return render(out, frames);
}

bool Mixer::render(float* out, int frames) {
    std::fill(out, out + 2 * frames, 0.0f);
    std::lock_guard lock(mutex_);
    bool ended = mixBlock(out, frames, deviceFrame_);
    deviceFrame_ += frames;
    return ended;
}

std::int64_t Mixer::rendered() {
    std::lock_guard lock(mutex_);
    return deviceFrame_;
}

// A one-shot whose end was rendered after `frame` plays on from there.
void Mixer::rewindSound(Sound& s, std::int64_t frame) {
    if (!s.playing && s.endPending && frame < s.endFrame) {
        s.playing = true;
        s.looping = false;
        s.endPending = false;
    }
    if (s.playing) s.pos = heardPosition(s, double(frame));
    cutHistory(s, frame);
}

void Mixer::rewind(std::int64_t frame) {
    std::lock_guard lock(mutex_);
    frame = std::min(frame, deviceFrame_);
    for (auto& [id, sound] : sounds_) rewindSound(*sound, frame);
    speech_.rewind(frame);
    quietFrom_ = std::min(quietFrom_, frame);
    deviceFrame_ = frame;
}

void Mixer::reached(std::int64_t frame, std::int64_t ns) {
    std::lock_guard lock(mutex_);
    clock_.handedOut(frame, int(std::max<std::int64_t>(deviceFrame_ - frame, 0)), ns);
}

double Mixer::heardFrame(std::int64_t ns) {
    std::lock_guard lock(mutex_);
    return clock_.heardFrame(ns);
}

std::int64_t Mixer::quietFrames() {
    if (speech_.hasSamples()) return 0;
    std::lock_guard lock(mutex_);
    for (auto& [id, sound] : sounds_)
        if (sound->playing) return 0;
    return deviceFrame_ - quietFrom_;
}

void Mixer::deviceRestarted() {
    std::lock_guard lock(mutex_);
    clock_.restart();
}

bool Mixer::speechAudible(std::int64_t now) {
    if (speech_.hasSamples()) return true;
    std::int64_t end = speech_.endFrame();
    std::lock_guard lock(mutex_);
    return clock_.heardFrame(now) < double(end);
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
