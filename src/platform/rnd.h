// The game's uniform random numbers, reseeded from the clock at the moments
// the game names. Our own generator, so that a seed gives the same sequence
// on every build. The ambience draws from a stream of its own: how long a
// player idles at a prompt, and so how many ambient sounds come, leaves the
// draws of play alone.
#pragma once

#include <cstdint>

namespace platform {

struct Rnd {
    std::uint64_t play = 0x9E3779B97F4A7C15ull;      // the game's draws
    std::uint64_t ambient = 0xD1B54A32D192ED03ull;   // the ambient sounds' draws
};
extern Rnd rnd;

// Both streams anew from one seed.
void reseed(std::uint64_t seed);
// reseed with a seed from the platform's clock (Platform::clockSeed).
void reseedFromClock();
// Uniform in [0,1), for play.
double U();
// Uniform in [0,1), for the ambient sounds.
double ambientU();

}  // namespace platform
