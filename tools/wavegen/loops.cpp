// Loops that play on while something goes on: the working sound while a
// voice is made, the ball washer, water lapping. Events are folded round the
// end of the buffer and beds are crossfaded into their start, so the last
// sample runs into the first.
#include <cmath>

#include "instruments.h"
#include "sounds.h"

namespace wavegen {

namespace {

// A bed of filtered noise that loops.
Samples noiseBed(Job& j, Pass mode, double hz, double q) {
    Samples m = pinkNoise(j.rng, long(j.frames + j.loopCross()));
    filter(m, mode, hz, q, j.rate);
    return loopJoin(m, j.frames, j.loopCross());
}

// A sine that fits a whole number of cycles into the loop.
Samples loopTone(const Job& j, double hz) {
    double cycles = std::round(hz * j.seconds());
    Samples s(size_t(j.frames));
    for (size_t i = 0; i < s.size(); ++i) s[i] = float(std::sin(2 * pi * cycles * double(i) / double(j.frames)));
    return s;
}

Samples bubble(Rng& rng, int rate) {
    double hz = rng.range(300, 800);
    double len = rng.range(0.02, 0.06);
    Samples b = glide(Curve{{0, hz}, {len, hz * 2}}, len, rate);
    shapeHit(b, rate, 0.003, len / 3);
    return b;
}

// One sweep of the brushes: gritty bristle noise swelling and fading.
Samples brushStroke(Rng& rng, int rate, double seconds, double hz) {
    Samples s = whiteNoise(rng, framesOf(seconds, rate));
    for (float& v : s)
        if (!rng.chance(0.35)) v *= 0.3f;   // bristles catching
    filter(s, Pass::band, Curve{{0, hz}, {seconds, hz * 1.3}}, 1.2, rate);
    scaleBy(s, Curve{{0, 0}, {seconds * 0.3, 1}, {seconds * 0.7, 0.8}, {seconds, 0}}, rate);
    return s;
}

// A wave reaching the edge: a low wash rising and falling, a slap at its top.
Samples lap(Rng& rng, int rate) {
    double len = rng.range(1.1, 1.6);
    Samples w = brownNoise(rng, framesOf(len, rate));
    filter(w, Pass::low, Curve{{0, 400}, {len * 0.35, 1300}, {len, 300}}, 0.8, rate);
    scaleBy(w, Curve{{0, 0}, {len * 0.35, 1}, {len, 0}}, rate);
    Samples slap = whiteNoise(rng, framesOf(0.15, rate));
    filter(slap, Pass::band, 1400, 1.2, rate);
    shapeHit(slap, rate, 0.01, 0.04);
    mixAt(w, slap, framesOf(len * 0.35, rate), 0.15);
    return w;
}

}  // namespace

Samples workingLoop(Job& j) {
    Samples s = j.silence();
    // Sixteen soft mallet notes over the loop: C, F, G and back to C.
    static const double pattern[] = {60, 64, 67, 64, 60, 65, 69, 65, 59, 62, 67, 62, 60, 64, 67, 72};
    double step = j.seconds() / 16;
    for (int i = 0; i < 16; ++i) {
        Samples n = playNote(Voice::mallet, hzOf(pattern[i]), step, j.rate, j.rng);
        mixWrap(s, n, j.at(i * step), i % 4 == 0 ? 0.5 : 0.35);
    }
    filterLoop(s, Pass::low, 2500, 0.7, j.rate);
    for (double m : {48.0, 55.0, 64.0}) {
        Samples t = loopTone(j, hzOf(m));
        mixAt(s, t, 0, 0.05);
    }
    return s;
}

Samples ballWasher(Job& j) {
    Samples s = noiseBed(j, Pass::low, 700, 0.7);
    scale(s, 0.25);
    // Four pumps of the handle: down through the brushes and back up.
    double pump = j.seconds() / 4;
    for (int i = 0; i < 4; ++i) {
        double t = i * pump + j.rng.range(0.0, 0.03);
        mixWrap(s, brushStroke(j.rng, j.rate, pump * 0.45, 3200), j.at(t), 0.6);
        mixWrap(s, brushStroke(j.rng, j.rate, pump * 0.45, 2600), j.at(t + pump * 0.5), 0.5);
        Samples slosh = brownNoise(j.rng, j.at(pump * 0.6));
        filter(slosh, Pass::band, 600, 1.0, j.rate);
        scaleBy(slosh, Curve{{0, 0}, {0.1, 1}, {pump * 0.6, 0}}, j.rate);
        mixWrap(s, slosh, j.at(t + pump * 0.4), 0.8);
        for (int b = 0; b < 4; ++b) mixWrap(s, bubble(j.rng, j.rate), j.at(t + j.rng.range(0, pump)), 0.08);
    }
    return s;
}

Samples lappingWater(Job& j) {
    Samples s = noiseBed(j, Pass::low, 500, 0.7);
    scale(s, 0.3);
    double t = 0;
    while (t < j.seconds() - 0.8) {
        mixWrap(s, lap(j.rng, j.rate), j.at(t), j.rng.range(0.6, 1.0));
        t += j.rng.range(1.2, 1.9);
    }
    for (int b = 0; b < 10; ++b) mixWrap(s, bubble(j.rng, j.rate), j.at(j.rng.range(0, j.seconds())), 0.04);
    return s;
}

}  // namespace wavegen
