// Trains on the line and aircraft overhead, passing some way off.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

// A level that swells to a peak and dies away: something passing.
Curve swell(double seconds, double peakAt, double floor) {
    return Curve{{0, 0}, {0.5, floor}, {peakAt, 1}, {seconds - 0.5, floor}, {seconds, 0}};
}

// A wheel crossing a rail joint: a dull metallic knock.
void clack(Job& j, Samples& s, double t, double amp) {
    long at = j.at(t);
    addMode(s, at, 160, 0.03, amp, j.rate);
    addMode(s, at, 430, 0.02, amp * 0.6, j.rate);
    addMode(s, at, 1150, 0.01, amp * 0.3, j.rate);
}

Samples rumble(Rng& rng, long frames, int rate, double hz) {
    Samples r = brownNoise(rng, frames);
    filter(r, Pass::low, hz, 0.7, rate);
    return r;
}

}  // namespace

Samples trainClatter(Job& j) {
    double len = j.seconds();
    Samples s = rumble(j.rng, j.frames, j.rate, 250);
    scale(s, 0.6);
    Samples clacks = j.silence();
    // Bogies cross each joint as a pair, "da-dum", at a steady beat.
    for (double t = 0.1; t < len - 0.2; t += 0.62) {
        clack(j, clacks, t, 1.0);
        clack(j, clacks, t + 0.13, 0.9);
    }
    mixAt(s, clacks, 0, 0.8);
    Samples squeal = whiteNoise(j.rng, j.frames);
    filter(squeal, Pass::band, 3200, 6, j.rate);
    mixAt(s, squeal, 0, 0.03);
    scaleBy(s, swell(len, len * 0.5, 0.3), j.rate);
    distant(s, j.rate, 2500, 0.35, 0.7);
    return s;
}

Samples trainHorn(Job& j) {
    double len = j.seconds();
    Samples s = rumble(j.rng, j.frames, j.rate, 200);
    scale(s, 0.3);
    // A diesel horn: three detuned reeds, a long blast then a short one.
    for (auto [start, hold] : {std::pair{0.3, 1.5}, std::pair{2.2, 0.7}}) {
        for (double hz : {311.0, 370.0, 440.0}) {
            Samples reed = sawTone(Curve{{0, hz * 0.97}, {0.08, hz}, {hold, hz * 0.995}}, hold, j.rate, 12);
            scaleBy(reed, Curve{{0, 0}, {0.06, 1}, {hold - 0.1, 1}, {hold, 0}}, j.rate);
            mixAt(s, reed, j.at(start), 0.25);
        }
    }
    scaleBy(s, Curve{{0, 1}, {len - 1.0, 1}, {len, 0}}, j.rate);
    distant(s, j.rate, 2200, 0.5, 0.85);
    return s;
}

Samples jetPass(Job& j) {
    double len = j.seconds();
    Samples s = pinkNoise(j.rng, j.frames);
    Samples low = rumble(j.rng, j.frames, j.rate, 150);
    mixAt(s, low, 0, 1.5);
    filter(s, Pass::low, Curve{{0, 600}, {len * 0.45, 3500}, {len * 0.6, 1500}, {len, 400}}, 0.8, j.rate);
    Samples whine = glide(Curve{{0, 3600}, {len * 0.4, 3450}, {len * 0.6, 3000}, {len, 2900}}, len, j.rate);
    scaleBy(whine, Curve{{0, 0}, {len * 0.45, 0.04}, {len * 0.6, 0.01}, {len, 0}}, j.rate);
    mixAt(s, whine, 0);
    scaleBy(s, swell(len, len * 0.5, 0.2), j.rate);
    distant(s, j.rate, 6000, 0.2, 0.8);
    return s;
}

Samples propellerPlane(Job& j) {
    double len = j.seconds();
    // Two engines a little apart in speed beat against each other.
    Curve a{{0, 92}, {len * 0.4, 91}, {len * 0.6, 85}, {len, 84}};
    Curve b{{0, 93.3}, {len * 0.4, 92.3}, {len * 0.6, 86.2}, {len, 85.2}};
    Samples s = sawTone(a, len, j.rate, 30);
    Samples other = sawTone(b, len, j.rate, 30);
    mixAt(s, other, 0);
    filter(s, Pass::low, 1800, 0.8, j.rate);
    Samples air = pinkNoise(j.rng, j.frames);
    filter(air, Pass::band, 900, 0.6, j.rate);
    mixAt(s, air, 0, 0.3);
    scaleBy(s, swell(len, len * 0.5, 0.2), j.rate);
    distant(s, j.rate, 2500, 0.35, 0.8);
    return s;
}

Samples helicopter(Job& j) {
    double len = j.seconds();
    Samples s = j.silence();
    // The main rotor's blade slap, about 17 a second.
    for (double t = 0.05; t < len; t += 1.0 / 17.0) {
        Samples slap = whiteNoise(j.rng, j.at(0.03));
        filter(slap, Pass::low, 500, 0.9, j.rate);
        shapeHit(slap, j.rate, 0.002, 0.008);
        mixAt(s, slap, j.at(t), 1.0);
        addMode(s, j.at(t), 75, 0.012, 0.4, j.rate);
    }
    Samples tail = sawTone(Curve{{0, 104}, {len * 0.6, 100}, {len, 98}}, len, j.rate, 20);
    filter(tail, Pass::low, 1200, 0.7, j.rate);
    mixAt(s, tail, 0, 0.06);
    Samples turbine = glide(Curve{{0, 2500}, {len, 2420}}, len, j.rate);
    mixAt(s, turbine, 0, 0.01);
    scaleBy(s, swell(len, len * 0.55, 0.25), j.rate);
    distant(s, j.rate, 3000, 0.35, 0.8);
    return s;
}

}  // namespace wavegen
