// What a recipe is given: the file's rate, its exact length, its own seeded
// random stream.
#pragma once

#include "dsp.h"

namespace wavegen {

struct Job {
    int rate;
    long frames;
    Rng rng;

    double seconds() const { return double(frames) / rate; }
    long at(double t) const { return framesOf(t, rate); }
    Samples silence() const { return Samples(size_t(frames), 0.0f); }
    // Material for a seamless loop: the file's length plus the crossfade.
    long loopCross() const { return rate / 2; }
    Samples loopMaterial() const { return Samples(size_t(frames + loopCross()), 0.0f); }
};

}  // namespace wavegen
