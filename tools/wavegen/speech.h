// Words and syllables rendered by espeak-ng at build time. Single-threaded:
// the engine keeps global state.
#pragma once

#include <string>

#include "dsp.h"

namespace wavegen {

struct Utterance {
    std::string voice = "en";   // espeak-ng voice, with a "+variant" if wanted
    std::string text;
    int pitch = 50;             // 0..99
    int range = 50;             // 0..99, how far the pitch moves
    int wordsPerMinute = 170;
};

// Starts the engine once; false if it cannot be had.
bool speechReady();
// The utterance at the given rate (the engine's own output resampled if it
// differs), trimmed of leading and trailing silence.
Samples speak(const Utterance& u, int rate);

// Plays a sound through with its pitch moved by a curve of semitones over
// output seconds (the length changes with it).
Samples bend(const Samples& s, const Curve& semitones, int rate);

}  // namespace wavegen
