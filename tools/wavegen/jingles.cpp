// The opening and closing jingle, and its short ending.
#include "instruments.h"
#include "sounds.h"

namespace wavegen {

namespace {

constexpr double e = 0.19;   // an eighth note, seconds

void cheerfulRun(Job& j, Samples& s) {
    // G4 C5 E5 G5 C6, a skip back, then up to a held E6.
    std::vector<Note> tune = {{0 * e, 67, e, 0.8},  {1 * e, 72, e, 0.8},  {2 * e, 76, e, 0.9},
                              {3 * e, 79, e, 0.9},  {4 * e, 84, 2 * e, 1}, {6 * e, 81, e, 0.8},
                              {7 * e, 83, e, 0.8},  {8 * e, 84, e, 0.9},  {9 * e, 86, e, 0.9},
                              {10 * e, 88, 4 * e, 1}};
    play(s, Voice::mallet, tune, j.rate, j.rng, 0.8);
    play(s, Voice::bell, {{10 * e, 100, e, 0.25}, {10.5 * e, 96, e, 0.2}}, j.rate, j.rng);
    std::vector<Note> bass = {{0, 48, 1.5 * e, 1}, {2 * e, 43, 1.5 * e, 1}, {4 * e, 48, 1.5 * e, 1},
                              {6 * e, 41, 1.5 * e, 1}, {8 * e, 43, 1.5 * e, 1}, {10 * e, 36, 6 * e, 1}};
    play(s, Voice::pluck, bass, j.rate, j.rng, 0.5);
    play(s, Voice::brass, chord(10 * e, {60, 64, 67, 72}, 5 * e, 0.22), j.rate, j.rng);
}

}  // namespace

Samples openingJingle(Job& j) {
    Samples s = j.silence();
    cheerfulRun(j, s);
    Samples room = reverb(s, j.rate, 0.5, 0.5);
    mixAt(s, room, 0, 0.4);
    return s;
}

Samples jingleEnding(Job& j) {
    Samples s = j.silence();
    play(s, Voice::mallet, {{0.01, 79, 0.12, 0.8}, {0.16, 84, 0.6, 1.0}}, j.rate, j.rng, 0.8);
    play(s, Voice::pluck, {{0.16, 36, 0.5, 1}}, j.rate, j.rng, 0.5);
    play(s, Voice::brass, chord(0.16, {60, 64, 67, 72}, 0.55, 0.22), j.rate, j.rng);
    play(s, Voice::bell, {{0.16, 96, 0.3, 0.25}}, j.rate, j.rng);
    Samples room = reverb(s, j.rate, 0.5, 0.5);
    mixAt(s, room, 0, 0.4);
    return s;
}

}  // namespace wavegen
