// Cars beside the course: the car park (door, key fob, an engine starting),
// the highway, cars passing on a road.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

// A car going by: engine and tyres, level swelling then falling away, the
// pitch falling as it passes.
Samples carPass(Rng& rng, int rate, double seconds, double firing, double peakAt) {
    Curve hz{{0, firing * 1.04}, {peakAt - 0.3, firing * 1.03}, {peakAt + 0.3, firing * 0.96}, {seconds, firing * 0.95}};
    Samples s = engine(rng, rate, seconds, hz, {0.15, 700, 0.8, 5, 0.1});
    Samples tyres = pinkNoise(rng, framesOf(seconds, rate));
    filter(tyres, Pass::band, Curve{{0, 700}, {peakAt, 1100}, {seconds, 600}}, 0.7, rate);
    mixAt(s, tyres, 0, 1.2);
    Curve level;
    for (double t = 0; t <= seconds; t += 0.05) {
        double d = (t - peakAt) * 12.0;   // metres from the nearest point, 12 m/s
        level.add(t, 1.0 / (1.0 + d * d / 36.0));
    }
    scaleBy(s, level, rate);
    return s;
}

void slam(Job& j, Samples& s, double t, double amp) {
    Samples thump = glide(Curve{{0, 90}, {0.05, 60}}, 0.3, j.rate);
    shapeHit(thump, j.rate, 0.002, 0.05);
    mixAt(s, thump, j.at(t), amp);
    Samples body = whiteNoise(j.rng, j.at(0.2));
    filter(body, Pass::low, 600, 0.7, j.rate);
    shapeHit(body, j.rate, 0.001, 0.03);
    mixAt(s, body, j.at(t), amp * 0.6);
    addMode(s, j.at(t + 0.002), 2300, 0.01, amp * 0.2, j.rate);   // the latch
    addMode(s, j.at(t + 0.002), 3700, 0.006, amp * 0.12, j.rate);
}

void chirp(Job& j, Samples& s, double t, double amp) {
    Samples c = glide(Curve{{0, 2600}, {0.09, 3100}}, 0.09, j.rate);
    scaleBy(c, Curve{{0, 0}, {0.005, 1}, {0.08, 1}, {0.09, 0}}, j.rate);
    mixAt(s, c, j.at(t), amp);
}

}  // namespace

Samples carDoorAndFob(Job& j) {
    Samples s = j.silence();
    chirp(j, s, 0.2, 0.3);
    chirp(j, s, 0.4, 0.3);
    addMode(s, j.at(0.45), 180, 0.02, 0.3, j.rate);   // the locks dropping
    slam(j, s, 1.6, 1.0);
    slam(j, s, 2.5, 0.7);
    distant(s, j.rate, 5000, 0.3, 0.6);
    return s;
}

Samples engineStartIdle(Job& j) {
    double len = j.seconds();
    Samples s = j.silence();
    // The starter motor cranking: a geared whine, chugging with each compression.
    Samples starter = sawTone(Curve{{0, 140}, {0.9, 170}}, 0.9, j.rate, 20);
    filter(starter, Pass::low, 1500, 0.8, j.rate);
    Samples chug = engine(j.rng, j.rate, 0.9, Curve{{0, 8}, {0.9, 10}}, {0.1, 700, 0.8, 5, 0.1});
    for (size_t i = 0; i < starter.size(); ++i) starter[i] = float(starter[i] * (0.3 + 0.5 * std::fabs(chug[i])));
    mixAt(starter, chug, 0, 0.5);
    scaleBy(starter, Curve{{0, 0}, {0.05, 1}, {0.85, 1}, {0.9, 0}}, j.rate);
    mixAt(s, starter, j.at(0.2), 0.6);
    // It catches, revs, and settles to idle.
    Curve firing{{0, 20}, {0.25, 55}, {0.7, 45}, {1.3, 28}, {len, 27}};
    Samples run = engine(j.rng, j.rate, len - 1.05, firing, {0.1, 700, 0.8, 5, 0.1});
    scaleBy(run, Curve{{0, 0}, {0.05, 1}, {0.6, 1}, {1.3, 0.6}}, j.rate);
    mixAt(s, run, j.at(1.05), 1.0);
    distant(s, j.rate, 3000, 0.3, 0.6);
    return s;
}

Samples highway(Job& j) {
    double len = j.seconds();
    Samples s = pinkNoise(j.rng, j.frames);
    filter(s, Pass::band, 700, 0.5, j.rate);
    scale(s, 0.5);
    for (int k = 0; k < 9; ++k) {
        double peak = j.rng.range(0.3, len - 0.3);
        mixAt(s, carPass(j.rng, j.rate, len, j.rng.range(35, 60), peak), 0, j.rng.range(0.3, 0.7));
    }
    scaleBy(s, Curve{{0, 0}, {0.8, 1}, {len - 0.8, 1}, {len, 0}}, j.rate);
    distant(s, j.rate, 1800, 0.3, 0.6);
    return s;
}

Samples passingCars(Job& j) {
    double len = j.seconds();
    Samples s = j.silence();
    mixAt(s, carPass(j.rng, j.rate, len, 42, 1.6), 0, 1.0);
    mixAt(s, carPass(j.rng, j.rate, len, 55, 4.3), 0, 0.8);
    scaleBy(s, Curve{{0, 0}, {0.3, 1}, {len - 0.3, 1}, {len, 0}}, j.rate);
    distant(s, j.rate, 3000, 0.25, 0.5);
    return s;
}

}  // namespace wavegen
