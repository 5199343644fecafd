// The course around the player: wind, a breeze in the trees, crickets, a bee,
// a woodpecker, a mower far off, a dog, church bells.
#include <cmath>

#include "sounds.h"
#include "voice.h"

namespace wavegen {

namespace {

// Noise that flutters: level jumping at random a given number of times a second.
void flutter(Rng& rng, Samples& s, int rate, double perSecond, double depth) {
    double target = 1, level = 1;
    double a = 1.0 - std::exp(-2 * pi * perSecond / rate);
    for (float& v : s) {
        if (rng.chance(perSecond / rate)) target = 1 - depth * rng.uni();
        level += a * (target - level);
        v = float(v * level);
    }
}

// A wooden knock: short bright modes.
void knock(Job& j, Samples& s, double t, double amp) {
    long at = j.at(t);
    double hz = j.rng.range(950, 1150);
    addMode(s, at, hz, 0.012, amp, j.rate);
    addMode(s, at, hz * 1.9, 0.006, amp * 0.5, j.rate);
    addMode(s, at, hz * 0.45, 0.015, amp * 0.4, j.rate);
}

// A bell: hum, prime, minor third, fifth, nominal and above, long decays.
void toll(Samples& s, long at, double hz, double amp, int rate) {
    static const double partials[][3] = {{0.5, 2.5, 0.5}, {1.0, 1.6, 0.7}, {1.19, 1.2, 0.45}, {1.5, 0.9, 0.3},
                                         {2.0, 0.8, 0.4}, {2.5, 0.5, 0.2}, {3.0, 0.35, 0.15}, {4.2, 0.2, 0.08}};
    for (const auto& p : partials) addMode(s, at, hz * p[0], p[1], amp * p[2], rate);
}

// A bark: a short voiced burst, falling, with a rough edge.
Samples bark(Rng& rng, int rate, double hz) {
    double len = rng.range(0.14, 0.2);
    Glottis g{Curve{{0, hz}, {len * 0.3, hz * 1.1}, {len, hz * 0.7}}, len, 0.04, 0.2, 0.35, 0.5};
    std::vector<Formant> fs = {{Curve{{0, 600}, {len, 500}}, 200, 1.0},
                               {Curve{{0, 1300}, {len, 1100}}, 250, 0.6},
                               {Curve{{0, 2500}}, 400, 0.3}};
    return voiced(rng, g, fs, rate, 0.01, len * 0.6);
}

}  // namespace

Samples windGusts(Job& j) {
    Samples s = brownNoise(j.rng, j.frames);
    Samples airy = pinkNoise(j.rng, j.frames);
    mixAt(s, airy, 0, 0.5);
    filter(s, Pass::band, Curve{{0, 250}, {1.5, 600}, {2.5, 350}, {4.0, 800}, {6, 300}}, 1.5, j.rate);
    scaleBy(s, Curve{{0, 0}, {1.5, 1}, {2.5, 0.5}, {4.0, 1.1}, {6, 0}}, j.rate);
    // A faint howl riding on the strongest gusts.
    Samples howl = pinkNoise(j.rng, j.frames);
    filter(howl, Pass::band, Curve{{0, 500}, {1.5, 700}, {2.5, 550}, {4.0, 820}, {6, 500}}, 12, j.rate);
    scaleBy(howl, Curve{{0, 0}, {1.5, 1}, {2.5, 0.3}, {4.0, 1}, {6, 0}}, j.rate);
    mixAt(s, howl, 0, 0.8);
    return s;
}

Samples breezeInTrees(Job& j) {
    // Leaves: many small rustles high up, swelling with the breeze.
    Samples leaves = whiteNoise(j.rng, j.frames);
    filter(leaves, Pass::band, 3500, 0.7, j.rate);
    flutter(j.rng, leaves, j.rate, 40, 0.9);
    Samples body = pinkNoise(j.rng, j.frames);
    filter(body, Pass::band, 700, 0.8, j.rate);
    Samples s = leaves;
    mixAt(s, body, 0, 0.6);
    scaleBy(s, Curve{{0, 0}, {1.2, 0.6}, {2.5, 1}, {3.5, 0.7}, {4.6, 0.9}, {6, 0}}, j.rate);
    return s;
}

Samples crickets(Job& j) {
    Samples s = j.silence();
    for (double hz : {4400.0, 4850.0}) {
        double t = j.rng.range(0.05, 0.3), gap = j.rng.range(0.38, 0.48);
        while (t < j.seconds() - 0.2) {
            for (int p = 0; p < 3; ++p) {
                Samples pulse = glide(Curve{{0, hz}}, 0.016, j.rate, j.rng.uni() * 2 * pi);
                scaleBy(pulse, Curve{{0, 0}, {0.004, 1}, {0.012, 1}, {0.016, 0}}, j.rate);
                mixAt(s, pulse, j.at(t + p * 0.027), hz < 4500 ? 1.0 : 0.6);
            }
            t += gap * (1 + 0.04 * j.rng.gauss());
        }
    }
    distant(s, j.rate, 7000, 0.3, 0.5);
    return s;
}

Samples passingBee(Job& j) {
    // Wing beats near 220 Hz, coming close and going away, pitch bent by it.
    double len = j.seconds();
    Curve wing{{0, 232}, {len * 0.45, 226}, {len * 0.55, 212}, {len, 206}};
    Glottis g{wing, len, 0.01, 0.05, 0.4, 0.2};
    std::vector<Formant> fs = {{Curve{{0, 450}}, 300, 1.0}, {Curve{{0, 1200}}, 600, 0.7}, {Curve{{0, 2600}}, 900, 0.3}};
    Samples s = formants(glottal(j.rng, g, j.rate), fs, j.rate);
    scaleBy(s, Curve{{0, 0}, {len * 0.3, 0.25}, {len * 0.5, 1}, {len * 0.7, 0.25}, {len, 0}}, j.rate);
    return s;
}

Samples woodpecker(Job& j) {
    Samples s = j.silence();
    for (double start : {0.2, 1.9}) {
        double t = start, gap = 0.055;
        for (int k = 0; k < 18; ++k) {
            knock(j, s, t, 1.0 - 0.035 * k);
            t += gap;
            gap *= 0.985;
        }
    }
    distant(s, j.rate, 5000, 0.45, 0.75);
    return s;
}

Samples distantMower(Job& j) {
    double len = j.seconds();
    Curve firing{{0, 46}, {1.5, 48}, {2.2, 42}, {3.5, 47}, {len, 45}};
    Samples s = engine(j.rng, j.rate, len, firing, {0.3, 900, 0.9, 6, 0.15});
    Samples whine = glide(Curve{{0, 184}, {2.2, 170}, {len, 180}}, len, j.rate);
    mixAt(s, whine, 0, 0.15);
    scaleBy(s, Curve{{0, 0}, {1.0, 0.6}, {3.0, 1}, {5.0, 0.5}, {len, 0}}, j.rate);
    distant(s, j.rate, 1500, 0.4, 0.6);
    return s;
}

Samples farDog(Job& j) {
    Samples s = j.silence();
    for (double t : {0.2, 0.55, 1.6, 1.9, 2.25}) mixAt(s, bark(j.rng, j.rate, 420), j.at(t), j.rng.range(0.7, 1.0));
    distant(s, j.rate, 2500, 0.5, 0.75);
    return s;
}

Samples churchBells(Job& j) {
    Samples s = j.silence();
    // Two bells, a "ding" and a "dong", rung in turn.
    for (int k = 0; k < 4; ++k) toll(s, j.at(0.1 + 1.2 * k), k % 2 ? 392.0 : 494.0, 1.0, j.rate);
    distant(s, j.rate, 3000, 0.45, 0.8);
    fadeEnds(s, 0, j.at(0.8));
    return s;
}

}  // namespace wavegen
