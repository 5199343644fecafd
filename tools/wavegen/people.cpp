// People near the course: golfers on the next fairway, a swimming pool, the
// shops' car park. Voices from espeak-ng, heard far off.
#include <cmath>

#include "speech.h"
#include "sounds.h"

namespace wavegen {

namespace {

// Words called out some way off: thinned to the middle of the band.
Samples calledOut(const Utterance& u, int rate) {
    Samples s = speak(u, rate);
    filter(s, Pass::high, 350, 0.7, rate);
    filter(s, Pass::low, 1800, 0.7, rate);
    return s;
}

Samples splash(Rng& rng, int rate, double size) {
    double len = 0.3 + 0.4 * size;
    Samples s = whiteNoise(rng, framesOf(len, rate));
    filter(s, Pass::low, Curve{{0, 6000}, {len * 0.3, 2000}, {len, 600}}, 0.8, rate);
    shapeHit(s, rate, 0.005, len * 0.25);
    return s;
}

}  // namespace

Samples nextFairway(Job& j) {
    Samples s = j.silence();
    // A strike across the trees: a click with a short ping.
    Samples click = whiteNoise(j.rng, j.at(0.01));
    filter(click, Pass::band, 2500, 0.8, j.rate);
    shapeHit(click, j.rate, 0.0005, 0.002);
    mixAt(s, click, j.at(0.2), 0.8);
    addMode(s, j.at(0.2), 2900, 0.008, 0.4, j.rate);
    addMode(s, j.at(0.2), 1500, 0.006, 0.2, j.rate);
    Samples fore = calledOut({"en+m3", "Fore!", 75, 90, 110}, j.rate);
    mixAt(s, fore, j.at(0.9), 1.6);
    Samples nice = calledOut({"en+m5", "nice shot", 45, 60, 150}, j.rate);
    mixAt(s, nice, j.at(2.4), 0.7);
    distant(s, j.rate, 2000, 0.55, 0.8);
    return s;
}

Samples swimmingPool(Job& j) {
    Samples s = j.silence();
    for (double t : {0.3, 1.4, 2.1, 3.6, 4.6}) mixAt(s, splash(j.rng, j.rate, j.rng.uni()), j.at(t), j.rng.range(0.4, 0.9));
    static const char* const calls[] = {"Marco!", "Polo!", "wheee!", "ha ha ha", "come on!", "my turn!"};
    static const char* const kids[] = {"en+f2", "en+f4", "en+m1", "en+f5"};
    double t = 0.6;
    for (int k = 0; k < 6; ++k) {
        Utterance u{kids[k % 4], calls[k], 85 + j.rng.below(14), 90, 170};
        Samples v = calledOut(u, j.rate);
        mixAt(s, v, j.at(t), j.rng.range(0.9, 1.3));
        t += j.rng.range(0.6, 0.9);
    }
    Samples water = pinkNoise(j.rng, j.frames);
    filter(water, Pass::band, 900, 0.6, j.rate);
    mixAt(s, water, 0, 0.03);
    // Hard tiles and water: a bright, long room.
    Samples room = reverb(s, j.rate, 0.85, 0.2);
    mixAt(s, room, 0, 0.9);
    distant(s, j.rate, 3500, 0.3, 0.6);
    fadeEnds(s, j.at(0.1), j.at(0.6));
    return s;
}

Samples shopsCarPark(Job& j) {
    Samples s = j.silence();
    // A trolley rattling over the tarmac: its wire cage and wheels.
    Samples cage = j.silence();
    for (double t = 0.2; t < 2.6; t += j.rng.range(0.01, 0.04)) {
        addMode(cage, j.at(t), j.rng.range(1800, 4200), 0.006, j.rng.range(0.1, 0.3), j.rate);
    }
    Samples wheels = brownNoise(j.rng, j.frames);
    filter(wheels, Pass::band, 250, 1.0, j.rate);
    scaleBy(wheels, Curve{{0, 0}, {0.2, 0}, {0.3, 1}, {2.5, 1}, {2.7, 0}}, j.rate);
    mixAt(s, cage, 0, 0.8);
    mixAt(s, wheels, 0, 0.6);
    // A lorry reversing at the loading bay.
    for (double t = 2.8; t < 4.6; t += 0.9) {
        Samples beep = glide(Curve{{0, 1050}}, 0.45, j.rate);
        scaleBy(beep, Curve{{0, 0}, {0.01, 1}, {0.44, 1}, {0.45, 0}}, j.rate);
        mixAt(s, beep, j.at(t), 0.1);
    }
    // People talking by the doors.
    static const char* const lines[] = {"have you got the bags", "over there by the car", "yes"};
    for (int k = 0; k < 3; ++k) {
        Utterance u{k % 2 ? "en+f3" : "en+m2", lines[k], 40 + 15 * k, 50, 160};
        mixAt(s, calledOut(u, j.rate), j.at(0.6 + 1.5 * k), 0.25);
    }
    distant(s, j.rate, 4000, 0.35, 0.6);
    return s;
}

}  // namespace wavegen
