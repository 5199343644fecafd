#include "platform/rnd.h"

#include "platform/platform.h"

namespace platform {

Rnd rnd;

namespace {

std::uint64_t mix(std::uint64_t z) {
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

// splitmix64
double next(std::uint64_t& state) {
    return double(mix(state += 0x9E3779B97F4A7C15ull) >> 11) * (1.0 / 9007199254740992.0);
}

}  // namespace

// Seeds a millisecond apart start far apart in the sequence, not one draw
// after the other.
void reseed(std::uint64_t seed) {
    rnd.play = mix(seed ^ 0x632BE59BD9B4E019ull);
    rnd.ambient = mix(seed ^ 0x8CB92BA72F3D8DD7ull);
}

void reseedFromClock() { reseed(os().clockSeed()); }

double U() { return next(rnd.play); }

double ambientU() { return next(rnd.ambient); }

}  // namespace platform
