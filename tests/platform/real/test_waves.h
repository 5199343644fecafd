// Waves built in memory for the mixer tests, and the level of a tone.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/wav.h"

namespace realtest {

// `values` are frames' samples in -1..1, interleaved when stereo.
inline platform::Wave makeWave(int channels, int bits, int rate, const std::vector<double>& values) {
    platform::Wave w;
    w.channels = channels;
    w.bits = bits;
    w.rate = rate;
    w.blockAlign = channels * bits / 8;
    for (double v : values) {
        if (bits == 8) {
            w.data.push_back(std::uint8_t(128 + int(v * 128)));
        } else {
            auto s = std::uint16_t(std::int16_t(v * 32768));
            w.data.push_back(std::uint8_t(s & 0xff));
            w.data.push_back(std::uint8_t(s >> 8));
        }
    }
    return w;
}

// A mono 16-bit wave at `rate` whose frame i holds (i % 100) / 200.
inline platform::Wave rampWave(int frames, int rate = 48000) {
    std::vector<double> v;
    for (int i = 0; i < frames; ++i) v.push_back((i % 100) / 200.0);
    return makeWave(1, 16, rate, v);
}

inline double rampValue(long frame) { return double(frame % 100) / 200.0; }

// The level of frequency `hz` in samples at 48 kHz, in decibels against an
// amplitude of 0.5, by correlation.
inline double levelDb(const std::vector<float>& v, double hz) {
    double c = 0, s = 0;
    for (size_t i = 0; i < v.size(); ++i) {
        c += v[i] * std::cos(2 * M_PI * hz * double(i) / 48000);
        s += v[i] * std::sin(2 * M_PI * hz * double(i) / 48000);
    }
    return 20 * std::log10(2 * std::hypot(c, s) / double(v.size()) / 0.5);
}

}  // namespace realtest
