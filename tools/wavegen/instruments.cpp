#include "instruments.h"

#include <algorithm>
#include <cmath>

namespace wavegen {

namespace {

// PolyBLEP correction for a band-limited sawtooth.
double blep(double t, double dt) {
    if (t < dt) {
        t /= dt;
        return t + t - t * t - 1.0;
    }
    if (t > 1.0 - dt) {
        t = (t - 1.0) / dt;
        return t * t + t + t + 1.0;
    }
    return 0.0;
}

Samples saw(double hz, double length, int rate, double vibratoDepth, Rng& rng) {
    Samples s(size_t(framesOf(length, rate)));
    double phase = rng.uni();
    double vibPhase = rng.uni() * 2 * pi;
    for (size_t i = 0; i < s.size(); ++i) {
        double t = double(i) / rate;
        double depth = vibratoDepth * std::min(1.0, std::max(0.0, (t - 0.15) / 0.2));
        double f = hz * (1 + depth * std::sin(vibPhase + 2 * pi * 5.2 * t));
        double dt = f / rate;
        s[i] = float(2 * phase - 1 - blep(phase, dt));
        phase += dt;
        if (phase >= 1) phase -= 1;
    }
    return s;
}

// Struck modes ring on whatever the written length: (ratio, decay, level).
Samples struck(double hz, int rate, const double (*modes)[3], int count) {
    double longest = 0;
    for (int k = 0; k < count; ++k) longest = std::max(longest, modes[k][1]);
    Samples s(size_t(framesOf(7 * longest, rate)), 0.0f);
    for (int k = 0; k < count; ++k) {
        double f = hz * modes[k][0];
        if (f < 0.45 * rate) addMode(s, 0, f, modes[k][1], modes[k][2], rate);
    }
    return s;
}

Samples mallet(double hz, int rate) {
    static const double modes[][3] = {{1.0, 0.35, 0.7}, {3.93, 0.08, 0.25}, {9.2, 0.025, 0.08}};
    return struck(hz, rate, modes, 3);
}

Samples bell(double hz, int rate) {
    static const double modes[][3] = {{1.0, 0.9, 0.5}, {2.76, 0.4, 0.3}, {5.4, 0.18, 0.18}, {8.93, 0.08, 0.1}};
    return struck(hz, rate, modes, 4);
}

Samples brass(double hz, double length, int rate, Rng& rng, bool muted) {
    double release = 0.12;
    Samples a = saw(hz, length + release, rate, 0.006, rng);
    Samples b = saw(hz * 1.004, length + release, rate, 0.006, rng);
    for (size_t i = 0; i < a.size(); ++i) a[i] = 0.5f * (a[i] + b[i]);
    double open = muted ? 3.0 : 6.0;
    Curve cutoff{{0, hz * 1.5}, {0.05, hz * open * 1.4}, {0.2, hz * open}, {length, hz * open * 0.8},
                 {length + release, hz}};
    if (muted) cutoff = Curve{{0, hz}, {length * 0.5, hz * open}, {length, hz * 1.2}, {length + release, hz}};
    filter(a, Pass::low, cutoff, 1.2, rate);
    scaleBy(a, Curve{{0, 0}, {0.02, 1}, {0.1, 0.8}, {length, 0.75}, {length + release, 0}}, rate);
    return a;
}

// Karplus-Strong string.
Samples pluck(double hz, double length, int rate, Rng& rng) {
    size_t period = size_t(std::max(2.0, rate / hz));
    // A soft pick: the noise that excites the string is smoothed first.
    Samples ring = whiteNoise(rng, long(period));
    smooth(ring, std::min(3000.0, hz * 6), rate);
    scale(ring, 3.0);
    Samples s(size_t(framesOf(length + 0.8, rate)));
    size_t at = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        size_t next = (at + 1) % period;
        float v = ring[at];
        ring[at] = 0.497f * (v + ring[next]);
        s[i] = v;
        at = next;
    }
    filter(s, Pass::low, std::min(4000.0, hz * 10), 0.7, rate);
    scaleBy(s, Curve{{0, 1}, {length, 1}, {length + 0.8, 0}}, rate);
    return s;
}

Samples buzz(double hz, double length, int rate, Rng& rng) {
    Samples a = saw(hz, length, rate, 0.0, rng);
    Samples b = saw(hz * 1.03, length, rate, 0.0, rng);
    for (size_t i = 0; i < a.size(); ++i) a[i] = 0.5f * (a[i] + b[i]);
    filter(a, Pass::low, 1400, 0.9, rate);
    scaleBy(a, Curve{{0, 0}, {0.01, 1}, {length - 0.02, 1}, {length, 0}}, rate);
    return a;
}

Samples pad(double hz, double length, int rate) {
    Samples s(size_t(framesOf(length, rate)));
    for (size_t i = 0; i < s.size(); ++i) {
        double t = double(i) / rate;
        s[i] = float(std::sin(2 * pi * hz * t) + 0.3 * std::sin(2 * pi * 2 * hz * t) +
                     0.1 * std::sin(2 * pi * 3 * hz * t));
    }
    double edge = std::min(0.3, length / 3);
    scaleBy(s, Curve{{0, 0}, {edge, 1}, {length - edge, 1}, {length, 0}}, rate);
    return s;
}

}  // namespace

double hzOf(double midi) { return 440.0 * std::pow(2.0, (midi - 69.0) / 12.0); }

Samples playNote(Voice v, double hz, double length, int rate, Rng& rng) {
    switch (v) {
        case Voice::mallet: return mallet(hz, rate);
        case Voice::bell: return bell(hz, rate);
        case Voice::brass: return brass(hz, length, rate, rng, false);
        case Voice::mutedBrass: return brass(hz, length, rate, rng, true);
        case Voice::pluck: return pluck(hz, length, rate, rng);
        case Voice::buzz: return buzz(hz, length, rate, rng);
        case Voice::pad: return pad(hz, length, rate);
    }
    return {};
}

void play(Samples& into, Voice v, const std::vector<Note>& notes, int rate, Rng& rng, double gain) {
    for (const Note& n : notes)
        mixAt(into, playNote(v, hzOf(n.midi), n.length, rate, rng), framesOf(n.start, rate), n.amp * gain);
}

std::vector<Note> chord(double start, std::vector<double> midis, double length, double amp) {
    std::vector<Note> out;
    for (double m : midis) out.push_back({start, m, length, amp});
    return out;
}

}  // namespace wavegen
