// Club strikes: the driver's crack, the sand shot, the misused club, the
// putter's tock, the whoosh of a top-power swing.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

// A short noise burst: attack, exponential decay, band-limited.
Samples burst(Rng& rng, int rate, double seconds, double decay, Pass mode, double hz, double q) {
    Samples s = whiteNoise(rng, framesOf(seconds, rate));
    filter(s, mode, hz, q, rate);
    shapeHit(s, rate, 0.0005, decay);
    return s;
}

// A low body blow: a sine dropping in pitch under a dull noise burst.
Samples thud(Rng& rng, int rate, double hz, double decay) {
    Samples s = glide(Curve{{0, hz * 1.6}, {0.05, hz}}, decay * 6, rate);
    shapeHit(s, rate, 0.002, decay);
    mixAt(s, burst(rng, rate, decay * 4, decay * 0.7, Pass::low, 350, 0.7), 0, 0.9);
    return s;
}

// Band-passed noise whose centre follows a curve, with a bell of level.
Samples swish(Rng& rng, int rate, double seconds, const Curve& hz, const Curve& level, double q) {
    Samples s = whiteNoise(rng, framesOf(seconds, rate));
    filter(s, Pass::band, hz, q, rate);
    scaleBy(s, level, rate);
    return s;
}

}  // namespace

Samples driverCrack(Job& j) {
    Samples s = j.silence();
    long at = j.at(0.003);
    mixAt(s, burst(j.rng, j.rate, 0.006, 0.0008, Pass::high, 1200, 0.7), at, 1.0);
    addMode(s, at, 2950, 0.030, 0.55, j.rate);
    addMode(s, at, 3720, 0.022, 0.35, j.rate);
    addMode(s, at, 5150, 0.012, 0.25, j.rate);
    addMode(s, at, 1480, 0.016, 0.25, j.rate);
    Samples tail = swish(j.rng, j.rate, 0.18, Curve{{0, 1800}, {0.18, 700}},
                         Curve{{0, 0}, {0.03, 0.10}, {0.18, 0}}, 1.5);
    mixAt(s, tail, j.at(0.012));
    return s;
}

Samples sandThump(Job& j) {
    Samples s = j.silence();
    mixAt(s, thud(j.rng, j.rate, 80, 0.07), j.at(0.005), 0.8);
    Samples hiss = swish(j.rng, j.rate, 0.7, Curve{{0, 3500}, {0.7, 2500}},
                         Curve{{0, 0}, {0.03, 0.18}, {0.25, 0.06}, {0.7, 0}}, 0.8);
    mixAt(s, hiss, j.at(0.01));
    // Grains of sand landing: sparse clicks, thick at first, thinning out.
    Samples grains = j.silence();
    for (int i = 0; i < 700; ++i) {
        double t = 0.02 + 0.65 * std::pow(j.rng.uni(), 2.0);
        long at = j.at(t);
        if (at < long(grains.size())) grains[size_t(at)] += float(j.rng.noise() * (1.0 - t));
    }
    filter(grains, Pass::high, 2500, 0.7, j.rate);
    filter(grains, Pass::band, 5000, 0.8, j.rate);
    mixAt(s, grains, 0, 0.9);
    return s;
}

Samples whiffAndThud(Job& j) {
    Samples s = j.silence();
    Samples air = swish(j.rng, j.rate, 0.4, Curve{{0, 500}, {0.25, 2600}, {0.4, 1000}},
                        Curve{{0, 0}, {0.22, 0.5}, {0.3, 0.2}, {0.4, 0}}, 2.5);
    mixAt(s, air, j.at(0.01));
    mixAt(s, thud(j.rng, j.rate, 62, 0.06), j.at(0.36), 1.0);
    // The club head digging in: a dull clunk.
    Samples clunk = j.silence();
    addMode(clunk, j.at(0.362), 420, 0.02, 0.25, j.rate);
    addMode(clunk, j.at(0.362), 690, 0.012, 0.15, j.rate);
    mixAt(s, clunk, 0);
    return s;
}

Samples putterTock(Job& j) {
    Samples s = j.silence();
    long at = j.at(0.003);
    mixAt(s, burst(j.rng, j.rate, 0.004, 0.0006, Pass::band, 2500, 1.0), at, 0.3);
    addMode(s, at, 1020, 0.009, 0.8, j.rate);
    addMode(s, at, 2380, 0.004, 0.25, j.rate);
    addMode(s, at, 610, 0.006, 0.2, j.rate);
    return s;
}

Samples bigWhoosh(Job& j) {
    Samples s = j.silence();
    Samples body = swish(j.rng, j.rate, 0.85, Curve{{0, 300}, {0.42, 2400}, {0.85, 500}},
                         Curve{{0, 0}, {0.38, 0.8}, {0.5, 0.45}, {0.85, 0}}, 1.6);
    Samples low = swish(j.rng, j.rate, 0.85, Curve{{0, 150}, {0.42, 500}, {0.85, 200}},
                        Curve{{0, 0}, {0.4, 0.7}, {0.55, 0.3}, {0.85, 0}}, 1.2);
    mixAt(s, body, j.at(0.01));
    mixAt(s, low, j.at(0.01));
    return s;
}

}  // namespace wavegen
