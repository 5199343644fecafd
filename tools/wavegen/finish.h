// From float material to the 16-bit file: level, fades, and the bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dsp.h"

namespace wavegen {

// How loud a family sits. Loudness is the level of the loudest stretches;
// the peak is a ceiling that short impacts reach and beds never do.
enum class Level { impact, music, signal, crowd, bed, ambience, indicator };

struct Finish {
    Level level;
    bool loop;
};

// The ceiling every file stays under: -1 dBFS, with a little room.
constexpr double peakCeiling = 29000.0 / 32768.0;

// Fits the material to frames, fades one-shots, sets the level.
std::vector<std::int16_t> finish(Samples s, long frames, int rate, Finish how);
// The loudness measure used to balance the families, in dBFS.
double loudnessDb(const Samples& s, int rate);

std::string waveBytes(const std::vector<std::int16_t>& pcm, int rate);

}  // namespace wavegen
