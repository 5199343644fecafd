#include "platform/real/mixer.h"

#include <algorithm>

#include "platform/sound_limits.h"

namespace platform::real {

Mixer::Mixer(int deviceRate, int latencyFrames) : rate_(deviceRate), clock_(deviceRate, latencyFrames) {}

Sound& Mixer::find(int id) {
    auto it = sounds_.find(id);
    if (it == sounds_.end()) throw Failure("no sound buffer " + std::to_string(id));
    return *it->second;
}

// The sound and its place in the table are made before the lock is taken,
// and freed after it is let go: the audio callback shares the lock.
int Mixer::add(const Wave& wave) {
    std::map<int, std::unique_ptr<Sound>> made;
    made.emplace(0, std::make_unique<Sound>(decodeSound(wave)));
    auto node = made.extract(made.begin());
    std::lock_guard lock(mutex_);
    int id = nextId_++;
    node.key() = id;
    sounds_.insert(std::move(node));
    return id;
}

void Mixer::release(int id) {
    decltype(sounds_)::node_type gone;
    std::lock_guard lock(mutex_);
    auto it = sounds_.find(id);
    if (it == sounds_.end()) throw Failure("no sound buffer " + std::to_string(id));
    gone = sounds_.extract(it);
}

void Mixer::releaseAll() {
    std::map<int, std::unique_ptr<Sound>> gone;
    std::lock_guard lock(mutex_);
    gone.swap(sounds_);
}

void Mixer::play(int id, bool loop) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    if (!s.playing) restartHistory(s, s.pos);
    s.playing = true;
    s.looping = loop;
}

void Mixer::stop(int id, std::int64_t now) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    if (s.playing) s.pos = heardPosition(s, heardFrame(now));
    s.playing = false;
    restartHistory(s, s.pos);
}

int Mixer::status(int id, std::int64_t now) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    if (s.playing) return s.looping ? 5 : 1;
    if (s.endPending && heardFrame(now) < double(s.endFrame)) return 1;
    s.endPending = false;
    return 0;
}

void Mixer::setPosition(int id, long bytes) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    s.pos = double(checkedPosition(id, bytes, s.frames * s.blockAlign, s.blockAlign) / s.blockAlign);
    restartHistory(s, s.pos);
}

CursorPair Mixer::position(int id, std::int64_t now) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    CursorPair c;
    c.play = long(heardPosition(s, heardFrame(now))) * s.blockAlign;
    c.write = s.playing ? long(s.pos) * s.blockAlign : c.play;
    return c;
}

void Mixer::setVolume(int id, int hundredthsDb) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    checkVolume(id, hundredthsDb);
    s.volume = hundredthsDb;
    applyGains(s);
}

void Mixer::setPan(int id, int hundredthsDb) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    checkPan(id, hundredthsDb);
    s.pan = hundredthsDb;
    applyGains(s);
}

int Mixer::frequency(int id) {
    std::lock_guard lock(mutex_);
    return find(id).frequency;
}

void Mixer::setFrequency(int id, int hz) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    checkFrequency(id, hz);
    s.frequency = hz == originalFrequency ? s.fileRate : hz;
}

}  // namespace platform::real
