// The power indicators: a soft triangle tone whose pitch climbs steadily in
// log-frequency from 220 Hz to 1760 Hz at exactly half the data and comes
// back down, so the ear reads the power from the pitch. The beeping twins are
// the same tone with a short beep at every ten per cent and a brighter one at
// the peak; away from the beeps they are sample for sample the same.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

constexpr double lowHz = 220.0;
constexpr double octaves = 3.0;     // up to 1760 Hz
constexpr double level = 0.22;      // fixed, so the twins match
constexpr double markBeep = 0.025;  // seconds
constexpr double peakBeep = 0.030;

// The power the file stands for at frame i: 0 at the ends, 1 at frames / 2.
double powerAt(long i, long frames) {
    long half = frames / 2;
    return i <= half ? double(i) / half : double(frames - i) / half;
}

// Odd harmonics falling as 1/k^2, each faded out before it nears Nyquist.
double softTriangle(double phase, double hz, int rate) {
    double sum = 0;
    for (int k = 1; k <= 7; k += 2) {
        double room = (0.42 * rate - k * hz) / (0.08 * rate);
        double keep = room >= 1 ? 1 : room <= 0 ? 0 : room;
        double sign = (k / 2) % 2 ? -1.0 : 1.0;
        sum += sign * keep * std::sin(k * phase) / (k * k);
    }
    return sum;
}

Samples sweep(long frames, int rate) {
    Samples s(static_cast<size_t>(frames));
    double phase = 0;
    for (long i = 0; i < frames; ++i) {
        double hz = lowHz * std::pow(2.0, octaves * powerAt(i, frames));
        s[size_t(i)] = float(level * softTriangle(phase, hz, rate));
        phase = std::fmod(phase + 2 * pi * hz / rate, 2 * pi);
    }
    fadeEnds(s, rate / 100, rate / 100);
    return s;
}

// A beep centred on frame at: the sweep is ducked under it.
void beepAt(Samples& s, long at, double seconds, const double* hz, int tones, int rate) {
    long len = framesOf(seconds, rate);
    for (long i = 0; i < len; ++i) {
        long j = at - len / 2 + i;
        if (j < 0 || j >= long(s.size())) continue;
        double bell = std::sin(pi * (i + 0.5) / len);
        double tone = 0;
        for (int k = 0; k < tones; ++k) tone += std::sin(2 * pi * hz[k] * i / rate) / tones;
        s[size_t(j)] = float(s[size_t(j)] * (1 - 0.6 * bell) + level * bell * tone);
    }
}

Samples withBeeps(long frames, int rate) {
    Samples s = sweep(frames, rate);
    static const double mark[] = {2200.0};
    static const double peak[] = {3300.0, 4400.0};
    long half = frames / 2;
    for (int tenth = 1; tenth <= 9; ++tenth) {
        long rise = half * tenth / 10;
        beepAt(s, rise, markBeep, mark, 1, rate);
        beepAt(s, frames - rise, markBeep, mark, 1, rate);
    }
    beepAt(s, half, peakBeep, peak, 2, rate);
    return s;
}

}  // namespace

Samples hitIndicator(Job& j) { return sweep(j.frames, j.rate); }
Samples puttIndicator(Job& j) { return sweep(j.frames, j.rate); }
Samples hitIndicatorBeeps(Job& j) { return withBeeps(j.frames, j.rate); }
Samples puttIndicatorBeeps(Job& j) { return withBeeps(j.frames, j.rate); }
Samples indicatorSample(Job& j) { return sweep(j.frames - j.frames % 2, j.rate); }

}  // namespace wavegen
