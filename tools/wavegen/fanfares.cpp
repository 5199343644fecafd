// Score fanfares that grow with the score (par, birdie, eagle, hole in one),
// and the penalty and the sad descent for a bad hole.
#include <algorithm>
#include <cmath>

#include "instruments.h"
#include "sounds.h"

namespace wavegen {

namespace {

void withRoom(Job& j, Samples& s, double amount) {
    Samples room = reverb(s, j.rate, 0.6, 0.4);
    mixAt(s, room, 0, amount);
}

// Quick repeated notes leading into a held one: "ta-ta-ta-taaa".
std::vector<Note> callTo(double start, std::vector<double> pickup, double held, double gap, double hold) {
    std::vector<Note> out;
    double t = start;
    for (double m : pickup) {
        out.push_back({t, m, gap * 0.8, 0.8});
        t += gap;
    }
    out.push_back({t, held, hold, 1.0});
    return out;
}

}  // namespace

Samples parFanfare(Job& j) {
    Samples s = j.silence();
    play(s, Voice::brass, callTo(0.01, {67}, 72, 0.16, 0.55), j.rate, j.rng, 0.6);
    withRoom(j, s, 0.3);
    return s;
}

Samples birdieFanfare(Job& j) {
    Samples s = j.silence();
    play(s, Voice::brass, callTo(0.01, {72, 76, 79}, 84, 0.12, 0.8), j.rate, j.rng, 0.6);
    play(s, Voice::brass, chord(0.37, {64, 67}, 0.8, 0.3), j.rate, j.rng);
    play(s, Voice::bell, {{0.37, 96, 0.2, 0.3}, {0.49, 100, 0.2, 0.25}, {0.61, 103, 0.2, 0.2}}, j.rate, j.rng);
    withRoom(j, s, 0.35);
    return s;
}

Samples eagleFanfare(Job& j) {
    Samples s = j.silence();
    play(s, Voice::brass, callTo(0.01, {67, 67, 67}, 72, 0.13, 0.45), j.rate, j.rng, 0.6);
    play(s, Voice::brass, callTo(0.9, {76, 79}, 84, 0.14, 1.0), j.rate, j.rng, 0.6);
    play(s, Voice::brass, chord(1.18, {60, 64, 67, 76}, 1.0, 0.25), j.rate, j.rng);
    play(s, Voice::pluck, {{0.4, 36, 0.4, 1}, {1.18, 36, 0.9, 1}}, j.rate, j.rng, 0.5);
    std::vector<Note> sparkle;
    for (int i = 0; i < 6; ++i) sparkle.push_back({1.18 + 0.08 * i, 84.0 + (i % 3) * 4 + 12 * (i / 3), 0.1, 0.22});
    play(s, Voice::bell, sparkle, j.rate, j.rng);
    withRoom(j, s, 0.4);
    return s;
}

Samples holeInOneFanfare(Job& j) {
    Samples s = j.silence();
    play(s, Voice::brass, callTo(0.01, {60, 60, 60}, 64, 0.11, 0.3), j.rate, j.rng, 0.55);
    play(s, Voice::brass, callTo(0.7, {64, 64, 64}, 67, 0.11, 0.3), j.rate, j.rng, 0.55);
    play(s, Voice::brass, callTo(1.4, {67, 71, 74}, 79, 0.11, 0.35), j.rate, j.rng, 0.55);
    play(s, Voice::brass, callTo(2.1, {79, 76}, 84, 0.14, 1.6), j.rate, j.rng, 0.6);
    play(s, Voice::brass, chord(2.38, {48, 55, 60, 64, 67, 72, 76}, 1.5, 0.2), j.rate, j.rng);
    play(s, Voice::pluck, {{0.34, 36, 0.3, 1}, {1.04, 40, 0.3, 1}, {1.78, 43, 0.3, 1}, {2.38, 36, 1.4, 1.2}},
         j.rate, j.rng, 0.5);
    std::vector<Note> run;
    for (int i = 0; i < 12; ++i) {
        static const double up[] = {72, 76, 79, 84};
        run.push_back({2.38 + 0.07 * i, up[i % 4] + 12 * (i / 4 % 2), 0.1, 0.2});
    }
    play(s, Voice::bell, run, j.rate, j.rng);
    // A cymbal-like shimmer under the final chord.
    Samples shimmer = whiteNoise(j.rng, j.at(2.0));
    filter(shimmer, Pass::high, 6000, 0.7, j.rate);
    shapeHit(shimmer, j.rate, 0.01, 0.6);
    mixAt(s, shimmer, j.at(2.38), 0.15);
    withRoom(j, s, 0.45);
    return s;
}

Samples penaltyTones(Job& j) {
    Samples s = j.silence();
    play(s, Voice::buzz, {{0.01, 51, 0.28, 1.0}, {0.36, 45, 0.5, 1.0}}, j.rate, j.rng, 0.5);
    return s;
}

Samples sadDescent(Job& j) {
    Samples s = j.silence();
    play(s, Voice::mutedBrass, {{0.01, 55, 0.4, 1}, {0.48, 54, 0.4, 1}, {0.95, 53, 0.4, 1}}, j.rate, j.rng, 0.6);
    // The last note held, wobbling as it dies.
    Samples last = playNote(Voice::mutedBrass, hzOf(52), 0.95, j.rate, j.rng);
    for (size_t i = 0; i < last.size(); ++i) {
        double t = double(i) / j.rate;
        last[i] = float(last[i] * (1 - 0.35 * std::min(1.0, t / 0.3) * (0.5 + 0.5 * std::sin(2 * pi * 6 * t))));
    }
    mixAt(s, last, j.at(1.42), 0.6);
    withRoom(j, s, 0.25);
    return s;
}

}  // namespace wavegen
