// Applause: many clappers, each clapping at their own steady pace with their
// own hand sound (a band-passed noise burst), joining quickly and dropping
// out slowly. The big one carries cheers and whistles.
#include <cmath>

#include "sounds.h"
#include "voice.h"

namespace wavegen {

namespace {

struct Ovation {
    int clappers;
    double joinWithin;   // seconds by which nearly all have joined
    double stopFrom;     // the first stop clapping here...
    double stopBy;       // ...the last here
};

Samples handSound(Rng& rng, int rate, double hz, double q) {
    Samples s = whiteNoise(rng, framesOf(0.02, rate));
    filter(s, Pass::band, hz * rng.range(0.9, 1.1), q, rate);
    filter(s, Pass::high, 400, 0.7, rate);
    shapeHit(s, rate, 0.0008, rng.range(0.004, 0.008));
    return s;
}

void clapper(Job& j, Samples& into, const Ovation& o) {
    double hz = j.rng.range(900, 2800);
    double q = j.rng.range(1.2, 3.0);
    Samples hands[3] = {handSound(j.rng, j.rate, hz, q), handSound(j.rng, j.rate, hz, q),
                        handSound(j.rng, j.rate, hz, q)};
    double pace = j.rng.range(3.5, 6.5);
    double loud = j.rng.range(0.3, 1.0);
    double t = 0.02 + o.joinWithin * std::pow(j.rng.uni(), 2.0);
    double stop = o.stopFrom + (o.stopBy - o.stopFrom) * std::sqrt(j.rng.uni());
    while (t < stop) {
        double fade = std::min(1.0, (stop - t) / 0.6);
        mixAt(into, hands[j.rng.below(3)], j.at(t), loud * fade * j.rng.range(0.7, 1.0));
        t += (1.0 / pace) * (1 + 0.08 * j.rng.gauss());
    }
}

Samples applause(Job& j, const Ovation& o) {
    Samples s = j.silence();
    for (int k = 0; k < o.clappers; ++k) clapper(j, s, o);
    Samples room = reverb(s, j.rate, 0.4, 0.6);
    mixAt(s, room, 0, 0.25);
    return s;
}

// A two-finger whistle: a bright tone sliding up, holding, sliding down.
Samples whistle(Rng& rng, int rate) {
    double hz = rng.range(2200, 3000);
    double len = rng.range(0.5, 0.9);
    Samples w = glide(Curve{{0, hz * 0.8}, {0.1, hz}, {len - 0.15, hz * 1.04}, {len, hz * 0.85}}, len, rate);
    scaleBy(w, Curve{{0, 0}, {0.05, 1}, {len - 0.1, 1}, {len, 0}}, rate);
    return w;
}

// A "whoo!": a voice on "oo" swooping up.
Samples whoo(Rng& rng, int rate) {
    double base = rng.chance(0.5) ? rng.range(180, 260) : rng.range(280, 380);
    double len = rng.range(0.5, 0.8);
    Glottis g{Curve{{0, base}, {len * 0.6, base * 1.6}, {len, base * 1.3}}, len, 0.02, 0.1, 0.5, 0.1};
    std::vector<Formant> fs = {{Curve{{0, 400}, {len, 330}}, 80, 1.0}, {Curve{{0, 900}, {len, 800}}, 100, 0.5},
                               {Curve{{0, 2600}}, 150, 0.2}};
    return voiced(rng, g, fs, rate, 0.05, len * 0.5);
}

}  // namespace

Samples applauseSmall(Job& j) { return applause(j, {14, 0.4, 1.0, j.seconds() - 0.1}); }

Samples applauseMedium(Job& j) { return applause(j, {45, 0.4, 2.0, j.seconds() - 0.1}); }

Samples applauseBig(Job& j) {
    Samples s = applause(j, {160, 0.5, 4.2, j.seconds() - 0.1});
    Samples cheers = j.silence();
    for (int k = 0; k < 5; ++k) mixAt(cheers, whistle(j.rng, j.rate), j.at(j.rng.range(0.3, 3.5)), 0.12);
    for (int k = 0; k < 7; ++k) mixAt(cheers, whoo(j.rng, j.rate), j.at(j.rng.range(0.2, 3.0)), 0.25);
    filter(cheers, Pass::low, 4000, 0.7, j.rate);
    Samples room = reverb(cheers, j.rate, 0.6, 0.5);
    mixAt(s, cheers, 0);
    mixAt(s, room, 0, 0.4);
    return s;
}

}  // namespace wavegen
