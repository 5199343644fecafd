// The game's uniform random numbers, reseeded from the clock at the moments
// the game names. Our own generator, so that a seed gives the same sequence
// on every build.
#pragma once

#include <cstdint>

namespace platform {

void reseed(std::uint64_t seed);
// Uniform in [0,1).
double U();

}  // namespace platform
