#include "platform/sim/sim_sound.h"

namespace sim {

namespace {
long framesSince(const SimBuffer& b, std::uint64_t now) {
    return long((now - b.startMs) * std::uint64_t(b.freq) / 1000);
}
}  // namespace

long SimDevice::cursor(const SimBuffer& b, std::uint64_t now) const {
    if (!b.playing) return b.pos;
    long at = b.startPos + framesSince(b, now) * b.blockAlign;
    if (b.looping && b.dataBytes > 0) return at % b.dataBytes;
    return at < b.dataBytes ? at : b.dataBytes;
}

void SimDevice::rebase(SimBuffer& b, std::uint64_t now) const {
    b.startPos = cursor(b, now);
    b.startMs = now;
}

void SimDevice::update(std::uint64_t now) {
    for (auto& [id, b] : buffers) {
        if (!b.playing || b.looping) continue;
        if (b.startPos + framesSince(b, now) * b.blockAlign >= b.dataBytes) {
            b.playing = false;
            b.pos = 0;
        }
    }
}

}  // namespace sim
