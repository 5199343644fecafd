// Little instruments for the jingles, fanfares and musical signals.
#pragma once

#include <vector>

#include "dsp.h"

namespace wavegen {

enum class Voice { mallet, bell, brass, mutedBrass, pluck, buzz, pad };

struct Note {
    double start;    // seconds
    double midi;     // 60 is middle C
    double length;   // seconds held
    double amp = 1.0;
};

double hzOf(double midi);
// Struck voices (mallet, bell) ring out by themselves whatever the length.
Samples playNote(Voice v, double hz, double length, int rate, Rng& rng);
// The notes mixed into a buffer of the given length.
void play(Samples& into, Voice v, const std::vector<Note>& notes, int rate, Rng& rng, double gain = 1.0);
// Several notes at once starting together: a chord.
std::vector<Note> chord(double start, std::vector<double> midis, double length, double amp);

}  // namespace wavegen
