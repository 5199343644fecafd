// Birds about the course: a songbird, a cuckoo, crows, a wood pigeon, ducks.
#include <cmath>

#include "sounds.h"
#include "voice.h"

namespace wavegen {

namespace {

// A whistled note: a sine (with a touch of its octave) along a pitch curve.
Samples whistled(const Curve& hz, double len, int rate, double attack) {
    Samples s = glide(hz, len, rate);
    double phase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        s[i] += float(0.12 * std::sin(2 * phase));
        phase += 2 * pi * hz.at(double(i) / rate) / rate;
    }
    scaleBy(s, Curve{{0, 0}, {attack, 1}, {len * 0.6, 0.8}, {len, 0}}, rate);
    return s;
}

void inTheDistance(Samples& s, int rate, double cutoff, double wet) { distant(s, rate, cutoff, wet, 0.6); }

// A hooted note: soft, round, a small rise and fall.
Samples hoot(double hz, double len, int rate, double bend) {
    Samples s = whistled(Curve{{0, hz * 0.97}, {len * 0.3, hz * (1 + bend)}, {len, hz * 0.95}}, len, rate, len * 0.3);
    filter(s, Pass::low, hz * 2.5, 0.7, rate);
    return s;
}

// A harsh voiced call: crow or duck.
Samples harshCall(Rng& rng, int rate, double hz, double len, std::vector<Formant> fs, double open) {
    Glottis g{Curve{{0, hz}, {len * 0.3, hz * 1.05}, {len, hz * 0.8}}, len, 0.05, 0.15, open, 0.4};
    return voiced(rng, g, fs, rate, 0.015, len * 0.4);
}

}  // namespace

Samples songbird(Job& j) {
    Samples s = j.silence();
    double t = 0.15;
    for (int phrase = 0; phrase < 3; ++phrase) {
        int notes = 4 + j.rng.below(4);
        for (int n = 0; n < notes; ++n) {
            double len = j.rng.range(0.05, 0.14);
            double a = j.rng.range(2200, 4500), b = a * j.rng.range(0.7, 1.5);
            mixAt(s, whistled(Curve{{0, a}, {len, b}}, len, j.rate, 0.01), j.at(t), j.rng.range(0.5, 1.0));
            t += len + j.rng.range(0.02, 0.07);
        }
        // A trill to close the phrase.
        double hz = j.rng.range(4000, 5500);
        for (int n = 0; n < 8; ++n) {
            mixAt(s, whistled(Curve{{0, hz}, {0.025, hz * 0.8}}, 0.025, j.rate, 0.004), j.at(t), 0.6);
            t += 0.035;
        }
        t += j.rng.range(0.35, 0.6);
    }
    inTheDistance(s, j.rate, 8000, 0.25);
    return s;
}

Samples cuckoo(Job& j) {
    Samples s = j.silence();
    for (int call = 0; call < 3; ++call) {
        double t = 0.2 + call * 1.0;
        mixAt(s, hoot(700, 0.18, j.rate, 0.02), j.at(t));
        mixAt(s, hoot(575, 0.32, j.rate, 0.01), j.at(t + 0.26), 0.85);
    }
    inTheDistance(s, j.rate, 3000, 0.45);
    return s;
}

Samples crows(Job& j) {
    Samples s = j.silence();
    std::vector<Formant> throat = {{Curve{{0, 1100}}, 300, 1.0}, {Curve{{0, 1700}}, 350, 0.8},
                                   {Curve{{0, 2700}}, 500, 0.4}};
    for (int k = 0; k < 3; ++k)
        mixAt(s, harshCall(j.rng, j.rate, 520, 0.32, throat, 0.3), j.at(0.15 + 0.5 * k), 1.0);
    for (int k = 0; k < 2; ++k)
        mixAt(s, harshCall(j.rng, j.rate, 600, 0.28, throat, 0.3), j.at(2.0 + 0.45 * k), 0.6);
    inTheDistance(s, j.rate, 4000, 0.4);
    return s;
}

Samples woodPigeon(Job& j) {
    Samples s = j.silence();
    // "Coo-COO-coo, coo-coo", twice.
    static const double rhythm[][3] = {{0.0, 0.30, 0.8}, {0.45, 0.45, 1.0}, {1.0, 0.25, 0.8},
                                       {1.4, 0.22, 0.7}, {1.75, 0.25, 0.7}};
    for (double start : {0.15, 2.3}) {
        for (const auto& r : rhythm) {
            double hz = 330 * (r[2] > 0.9 ? 1.06 : 1.0);
            mixAt(s, hoot(hz, r[1], j.rate, 0.04), j.at(start + r[0]), r[2]);
        }
    }
    Samples breath = whiteNoise(j.rng, j.frames);
    filter(breath, Pass::low, 800, 0.7, j.rate);
    mixAt(s, breath, 0, 0.01);
    inTheDistance(s, j.rate, 2500, 0.35);
    return s;
}

Samples ducks(Job& j) {
    Samples s = j.silence();
    std::vector<Formant> bill = {{Curve{{0, 900}}, 200, 1.0}, {Curve{{0, 1600}}, 250, 0.7},
                                 {Curve{{0, 2600}}, 300, 0.4}};
    // A mallard's run, getting shorter and lower, then an answer.
    double t = 0.15, len = 0.2, hz = 330;
    for (int k = 0; k < 5; ++k) {
        mixAt(s, harshCall(j.rng, j.rate, hz, len, bill, 0.25), j.at(t), 1.0 - 0.1 * k);
        t += len + 0.08;
        len *= 0.85;
        hz *= 0.96;
    }
    for (int k = 0; k < 2; ++k) mixAt(s, harshCall(j.rng, j.rate, 360, 0.16, bill, 0.25), j.at(2.3 + 0.3 * k), 0.6);
    inTheDistance(s, j.rate, 4000, 0.35);
    return s;
}

}  // namespace wavegen
