#include "platform/rnd.h"

namespace platform {

namespace {
std::uint64_t state = 0x9E3779B97F4A7C15ull;
}

void reseed(std::uint64_t seed) { state = seed * 0x9E3779B97F4A7C15ull + 0x632BE59BD9B4E019ull; }

double U() {
    // splitmix64
    std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    z ^= z >> 31;
    return double(z >> 11) * (1.0 / 9007199254740992.0);
}

}  // namespace platform
