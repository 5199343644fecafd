#include "platform/real/mixer.h"

#include <algorithm>
#include <functional>
#include <string_view>

#include "platform/real/resampler.h"
#include "platform/sound_limits.h"

namespace platform::real {

Mixer::Mixer(int deviceRate, int latencyFrames) : rate_(deviceRate), clock_(deviceRate, latencyFrames) {
    speech_.onChange([this](std::int64_t from) { changed(from); });
}

Sound& Mixer::find(int id) {
    auto it = sounds_.find(id);
    if (it == sounds_.end()) throw Failure("no sound buffer " + std::to_string(id));
    return *it->second;
}

// The earliest change wins; the output hears of it at once.
void Mixer::changed(std::int64_t from) {
    std::int64_t was = change_.load();
    while (from < was && !change_.compare_exchange_weak(was, from)) {
    }
    if (poke_) poke_();
}

std::optional<std::int64_t> Mixer::takeChange() {
    std::int64_t from = change_.exchange(kNoChange);
    if (from == kNoChange) return std::nullopt;
    return from;
}

// Sounds made from the same file share one copy of its samples at the
// device rate.
std::shared_ptr<const std::vector<float>> Mixer::resampled(const Wave& wave) {
    std::string_view bytes(reinterpret_cast<const char*>(wave.data.data()), wave.data.size());
    std::string key = std::to_string(wave.channels) + "/" + std::to_string(wave.bits) + "/" +
                      std::to_string(wave.rate) + "/" + std::to_string(bytes.size()) + "/" +
                      std::to_string(std::hash<std::string_view>{}(bytes));
    {
        std::lock_guard lock(cacheMutex_);
        for (auto it = cache_.begin(); it != cache_.end(); ++it) {
            if (it->key != key) continue;
            cache_.splice(cache_.begin(), cache_, it);
            return it->samples;
        }
    }
    auto made = std::make_shared<const std::vector<float>>(
        resampleWhole(waveSamples(wave), wave.channels, wave.rate, rate_));
    std::lock_guard lock(cacheMutex_);
    cache_.push_front({key, made});
    std::size_t total = 0;
    for (auto it = cache_.begin(); it != cache_.end();) {
        total += it->samples->size();
        it = total > kCachedSamples && it != cache_.begin() ? cache_.erase(it) : std::next(it);
    }
    return made;
}

// The sound and its place in the table are made before the lock is taken,
// and freed after it is let go: the audio thread shares the lock.
int Mixer::add(const Wave& wave) {
    std::map<int, std::unique_ptr<Sound>> made;
    made.emplace(0, std::make_unique<Sound>(makeSound(wave, resampled(wave), rate_)));
    auto node = made.extract(made.begin());
    std::lock_guard lock(mutex_);
    int id = nextId_++;
    node.key() = id;
    sounds_.insert(std::move(node));
    return id;
}

void Mixer::release(int id) {
    decltype(sounds_)::node_type gone;
    {
        std::lock_guard lock(mutex_);
        auto it = sounds_.find(id);
        if (it == sounds_.end()) throw Failure("no sound buffer " + std::to_string(id));
        gone = sounds_.extract(it);
    }
    if (gone.mapped()->playing || gone.mapped()->endPending) changed(0);
}

void Mixer::releaseAll() {
    std::map<int, std::unique_ptr<Sound>> gone;
    {
        std::lock_guard lock(mutex_);
        gone.swap(sounds_);
    }
    changed(0);
}

// A one-shot the listener still hears goes on where it is.
void Mixer::play(int id, bool loop, std::int64_t now) {
    {
        std::lock_guard lock(mutex_);
        Sound& s = find(id);
        if (s.playing && s.looping == loop) return;
        if (!s.playing && !(s.endPending && clock_.heardFrame(now) < double(s.endFrame))) restartHistory(s, s.pos);
        s.endPending = false;
        s.playing = true;
        s.looping = loop;
    }
    changed(0);
}

void Mixer::stop(int id, std::int64_t now) {
    {
        std::lock_guard lock(mutex_);
        Sound& s = find(id);
        double heard = clock_.heardFrame(now);
        bool sounding = s.playing || (s.endPending && heard < double(s.endFrame));
        if (sounding) s.pos = heardPosition(s, heard);
        s.playing = false;
        restartHistory(s, s.pos);
        if (!sounding) return;
    }
    changed(0);
}

int Mixer::status(int id, std::int64_t now) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    if (s.playing) return s.looping ? 5 : 1;
    if (s.endPending && clock_.heardFrame(now) < double(s.endFrame)) return 1;
    s.endPending = false;
    return 0;
}

void Mixer::setPosition(int id, long bytes) {
    {
        std::lock_guard lock(mutex_);
        Sound& s = find(id);
        s.pos = soundPos(s, checkedPosition(id, bytes, s.fileFrames * s.blockAlign, s.blockAlign));
        restartHistory(s, s.pos);
        if (!s.playing) return;
    }
    changed(0);
}

CursorPair Mixer::position(int id, std::int64_t now) {
    std::lock_guard lock(mutex_);
    Sound& s = find(id);
    CursorPair c;
    c.play = fileBytes(s, heardPosition(s, clock_.heardFrame(now)));
    c.write = s.playing ? fileBytes(s, s.pos) : c.play;
    return c;
}

// A new volume or pan is heard at once on a sound that is being heard.
void Mixer::setGains(int id, const std::function<void(Sound&)>& set) {
    {
        std::lock_guard lock(mutex_);
        Sound& s = find(id);
        set(s);
        applyGains(s);
        if (!s.playing && !s.endPending) return;
    }
    changed(0);
}

void Mixer::setVolume(int id, int hundredthsDb) {
    setGains(id, [&](Sound& s) {
        checkVolume(id, hundredthsDb);
        s.volume = hundredthsDb;
    });
}

void Mixer::setPan(int id, int hundredthsDb) {
    setGains(id, [&](Sound& s) {
        checkPan(id, hundredthsDb);
        s.pan = hundredthsDb;
    });
}

int Mixer::frequency(int id) {
    std::lock_guard lock(mutex_);
    return find(id).frequency;
}

void Mixer::setFrequency(int id, int hz) {
    {
        std::lock_guard lock(mutex_);
        Sound& s = find(id);
        checkFrequency(id, hz);
        int was = s.frequency;
        s.frequency = hz == originalFrequency ? s.fileRate : hz;
        if (!s.playing || s.frequency == was) return;
    }
    changed(0);
}

}  // namespace platform::real
