// A source-filter voice: a glottal pulse train following a pitch curve,
// shaped by formant resonances. Animals and wordless crowd vowels use it.
#pragma once

#include <vector>

#include "dsp.h"

namespace wavegen {

struct Glottis {
    Curve pitch;                // Hz over seconds
    double seconds = 1.0;
    double jitter = 0.01;       // relative pitch wobble, period to period
    double shimmer = 0.05;      // relative level wobble, period to period
    double open = 0.6;          // open part of the period: smaller is buzzier
    double breath = 0.03;       // noise riding on the pulses
};

struct Formant {
    Curve freq;                 // Hz over seconds
    double width = 100;         // bandwidth in Hz
    double gain = 1.0;
};

// The flow derivative of a Rosenberg pulse train.
Samples glottal(Rng& rng, const Glottis& g, int rate);
// Parallel resonances over a source.
Samples formants(const Samples& src, const std::vector<Formant>& fs, int rate);
// Both at once, with an attack-release envelope in seconds.
Samples voiced(Rng& rng, const Glottis& g, const std::vector<Formant>& fs, int rate, double attack,
               double release);

}  // namespace wavegen
