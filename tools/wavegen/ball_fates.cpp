// Where the ball ends: rattling into the cup, into a pond, into the trees.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

// The ball striking the plastic cup: a hollow knock and a bright ring.
void rattle(Job& j, Samples& s, double t, double amp) {
    long at = j.at(t);
    addMode(s, at, j.rng.range(2100, 2500), j.rng.range(0.015, 0.025), amp * 0.5, j.rate);
    addMode(s, at, j.rng.range(2800, 3200), j.rng.range(0.010, 0.016), amp * 0.35, j.rate);
    addMode(s, at, j.rng.range(280, 340), 0.018, amp * 0.4, j.rate);
    Samples tick = whiteNoise(j.rng, j.at(0.003));
    shapeHit(tick, j.rate, 0.0002, 0.0006);
    mixAt(s, tick, at, amp * 0.4);
}

// A small bubble: a short sine chirp rising as it rises.
Samples bubble(Rng& rng, int rate) {
    double hz = rng.range(350, 900);
    double len = rng.range(0.03, 0.07);
    Samples b = glide(Curve{{0, hz}, {len, hz * rng.range(1.6, 2.4)}}, len, rate);
    shapeHit(b, rate, 0.003, len / 3);
    return b;
}

// Sparse clicks at random, denser where the curve is high.
Samples crackle(Rng& rng, long frames, int rate, const Curve& perSecond) {
    Samples s(size_t(frames), 0.0f);
    for (long i = 0; i < frames; ++i)
        if (rng.chance(perSecond.at(double(i) / rate) / rate)) s[size_t(i)] = float(rng.noise());
    return s;
}

// A woody knock: a couple of low, quickly damped modes.
void knock(Job& j, Samples& s, double t, double amp) {
    long at = j.at(t);
    double hz = j.rng.range(380, 650);
    addMode(s, at, hz, 0.03, amp, j.rate);
    addMode(s, at, hz * 2.3, 0.015, amp * 0.5, j.rate);
    addMode(s, at, hz * 3.9, 0.008, amp * 0.3, j.rate);
}

}  // namespace

Samples cupRattle(Job& j) {
    Samples s = j.silence();
    // The ball drops in, then bounces quicker and quieter until it settles.
    double t = 0.02, gap = 0.16, amp = 1.0;
    for (int i = 0; i < 7; ++i) {
        rattle(j, s, t, amp);
        t += gap;
        gap *= 0.62;
        amp *= 0.6;
    }
    return s;
}

Samples pondSplash(Job& j) {
    Samples s = j.silence();
    Samples body = whiteNoise(j.rng, j.at(0.8));
    filter(body, Pass::low, Curve{{0, 9000}, {0.12, 2500}, {0.5, 500}}, 0.8, j.rate);
    shapeHit(body, j.rate, 0.004, 0.18);
    mixAt(s, body, j.at(0.01));
    // The plunk of the ball and the water closing over it.
    Samples plunk = glide(Curve{{0, 220}, {0.08, 80}}, 0.25, j.rate);
    shapeHit(plunk, j.rate, 0.002, 0.06);
    mixAt(s, plunk, j.at(0.01), 0.7);
    // Water falling back.
    Samples back = whiteNoise(j.rng, j.at(0.6));
    filter(back, Pass::band, 1800, 0.7, j.rate);
    shapeHit(back, j.rate, 0.06, 0.15);
    mixAt(s, back, j.at(0.18), 0.25);
    for (int i = 0; i < 14; ++i) mixAt(s, bubble(j.rng, j.rate), j.at(j.rng.range(0.15, 1.2)), j.rng.range(0.05, 0.2));
    return s;
}

Samples treeCrash(Job& j) {
    Samples s = j.silence();
    Samples leaves = crackle(j.rng, j.frames, j.rate, Curve{{0, 0}, {0.05, 2500}, {0.5, 1200}, {1.3, 60}, {1.6, 0}});
    filter(leaves, Pass::high, 2000, 0.7, j.rate);
    filter(leaves, Pass::band, 4500, 0.6, j.rate);
    mixAt(s, leaves, 0, 0.8);
    Samples rustle = whiteNoise(j.rng, j.frames);
    filter(rustle, Pass::band, 3200, 0.9, j.rate);
    scaleBy(rustle, Curve{{0, 0}, {0.06, 0.25}, {0.5, 0.12}, {1.3, 0.02}, {1.6, 0}}, j.rate);
    mixAt(s, rustle, 0);
    knock(j, s, 0.12, 0.6);
    knock(j, s, 0.48, 0.45);
    knock(j, s, 0.93, 0.3);
    knock(j, s, 1.45, 0.15);
    return s;
}

}  // namespace wavegen
