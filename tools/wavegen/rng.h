// A small seeded random generator: the same seed gives the same sounds on
// every machine and every build.
#pragma once

#include <cstdint>

namespace wavegen {

struct Rng {
    std::uint64_t state;

    explicit Rng(std::uint64_t seed) : state(seed) {}

    std::uint64_t next() {
        // splitmix64
        std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    // Uniform in [0,1).
    double uni() { return double(next() >> 11) * (1.0 / 9007199254740992.0); }
    double range(double lo, double hi) { return lo + (hi - lo) * uni(); }
    // Uniform in [-1,1): white noise.
    double noise() { return 2.0 * uni() - 1.0; }
    int below(int n) { return int(uni() * n); }
    bool chance(double p) { return uni() < p; }
    // Roughly normal, unit deviation (sum of uniforms).
    double gauss() { return uni() + uni() + uni() + uni() - 2.0; }
};

// A seed that follows from a file name, so each file has its own stream.
inline std::uint64_t seedOf(const char* name) {
    std::uint64_t h = 1469598103934665603ull;
    for (const char* p = name; *p; ++p) h = (h ^ std::uint8_t(*p)) * 1099511628211ull;
    return h;
}

}  // namespace wavegen
