// Buffers of float samples and the plain signal processing every sound uses:
// filters, noise, fades, mixing, reverb.
#pragma once

#include <vector>

#include "curve.h"
#include "rng.h"

namespace wavegen {

using Samples = std::vector<float>;

constexpr double pi = 3.14159265358979323846;

inline long framesOf(double seconds, int rate) { return long(seconds * rate + 0.5); }
double dbToGain(double db);

// Mixing. mixAt drops what falls outside dst; mixWrap folds it round, which
// keeps a loop seamless.
void mixAt(Samples& dst, const Samples& src, long at, double gain = 1.0);
void mixWrap(Samples& dst, const Samples& src, long at, double gain = 1.0);
void scale(Samples& s, double gain);
void scaleBy(Samples& s, const Curve& gainOverSeconds, int rate);
double peakOf(const Samples& s);

// A state-variable filter (topology preserving): cheap to sweep per sample.
enum class Pass { low, band, high };
struct Svf {
    double ic1 = 0, ic2 = 0;
    double run(double x, Pass mode, double freq, double q, int rate);
};
// Filters a whole buffer, the cut-off following a curve over seconds.
void filter(Samples& s, Pass mode, const Curve& freq, double q, int rate);
void filter(Samples& s, Pass mode, double freq, double q, int rate);
// Filters a loop as if it had been playing round and round already, so the
// filter holds no cold start at the joint.
void filterLoop(Samples& s, Pass mode, double freq, double q, int rate);
// One-pole low-pass smoothing, for gentle tilts.
void smooth(Samples& s, double freq, int rate);

Samples whiteNoise(Rng& rng, long n);
Samples pinkNoise(Rng& rng, long n);
Samples brownNoise(Rng& rng, long n);

// Raised-cosine fades at the ends.
void fadeEnds(Samples& s, long in, long out);
// A burst shaped by attack and exponential decay (seconds).
void shapeHit(Samples& s, int rate, double attack, double decay);

// A decaying sinusoid added at a frame: a struck mode.
void addMode(Samples& dst, long at, double freq, double decay, double amp, int rate);
// A sine whose frequency follows a curve (Hz over seconds from its start).
Samples glide(const Curve& freq, double seconds, int rate, double phase = 0.0);

// A band-limited sawtooth along a pitch curve, at most this many harmonics.
Samples sawTone(const Curve& freq, double seconds, int rate, int harmonics);

// Freeverb-style room: the wet signal only, as long as the input.
Samples reverb(const Samples& x, int rate, double size, double damp);
// Some way off: the top rolled away, the direct sound quieter, a room added.
void distant(Samples& s, int rate, double cutoff, double wet, double size = 0.7);

// The end of the material crossfaded into its start: the result has frames
// samples and its last sample runs straight into its first. The material
// must be at least frames + cross long.
Samples loopJoin(const Samples& material, long frames, long cross);

// An engine: a pulse per firing whose rate follows a curve, each firing a
// little different, with a hiss, through a low-pass.
struct EngineTone {
    double roughness, cutoff, q, decay, hiss;
};
Samples engine(Rng& rng, int rate, double seconds, const Curve& firingHz, const EngineTone& tone);

}  // namespace wavegen
