// Tones at 22,050 Hz played out at 48 kHz: the level of the tone and the
// loudest thing beside it (an image of the tone, or the filter's noise),
// through linear interpolation (how the game resampled before), through a
// wave file resampled once at load, and through the speech stream's
// resampler in ten-millisecond blocks.
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#include "platform/real/resampler.h"

namespace {

using platform::real::Resampler;
using platform::real::resampleWhole;

constexpr int kFrom = 22050;
constexpr int kTo = 48000;
constexpr int kWindow = 8192;

std::vector<float> tone(double hz) {
    std::vector<float> v(kFrom * 2);
    for (size_t i = 0; i < v.size(); ++i) v[i] = float(0.5 * std::sin(2 * M_PI * hz * double(i) / kFrom));
    return v;
}

std::vector<float> linear(const std::vector<float>& in) {
    std::vector<float> out;
    double step = double(kFrom) / kTo;
    for (double pos = 0; pos + 1 < double(in.size()); pos += step) {
        auto i = size_t(pos);
        out.push_back(in[i] + (in[i + 1] - in[i]) * float(pos - double(i)));
    }
    return out;
}

std::vector<float> streamed(const std::vector<float>& in) {
    Resampler r(kFrom, kTo);
    std::vector<short> s;
    for (float x : in) s.push_back(short(std::lround(x * 32767)));
    std::vector<float> out;
    for (size_t at = 0; at < s.size(); at += 220) r.run(s.data() + at, int(std::min<size_t>(220, s.size() - at)), out);
    r.finish(out);
    return out;
}

// The tone's level in decibels against the 0.5 it was made at, by
// correlation, and the loudest windowed spectrum line more than 200 Hz away
// from it, in decibels against the tone.
void measure(const char* how, double hz, const std::vector<float>& out) {
    const float* x = out.data() + kTo / 2;
    double c = 0, s = 0;
    for (int i = 0; i < kWindow; ++i) {
        c += x[i] * std::cos(2 * M_PI * hz * i / kTo);
        s += x[i] * std::sin(2 * M_PI * hz * i / kTo);
    }
    double level = 20 * std::log10(2 * std::hypot(c, s) / kWindow / 0.5);
    std::vector<double> w(kWindow);
    double sum = 0;
    for (int i = 0; i < kWindow; ++i) {
        double p = 2 * M_PI * i / (kWindow - 1);
        w[size_t(i)] = 0.35875 - 0.48829 * std::cos(p) + 0.14128 * std::cos(2 * p) - 0.01168 * std::cos(3 * p);
        sum += w[size_t(i)];
    }
    double worst = -200, at = 0;
    for (int k = 1; k < kWindow / 2; ++k) {
        double f = double(k) * kTo / kWindow;
        if (std::fabs(f - hz) < 200) continue;
        double re = 0, im = 0;
        for (int i = 0; i < kWindow; ++i) {
            re += w[size_t(i)] * x[i] * std::cos(2 * M_PI * k * i / kWindow);
            im += w[size_t(i)] * x[i] * std::sin(2 * M_PI * k * i / kWindow);
        }
        double db = 20 * std::log10(2 * std::hypot(re, im) / sum / 0.5 + 1e-12);
        if (db > worst) worst = db, at = f;
    }
    std::printf("%-34s %5.0f Hz   level %+6.2f dB   loudest beside it %7.1f dB at %5.0f Hz\n", how, hz, level,
                worst - level, at);
}

}  // namespace

int main() {
    std::printf("tones at 22050 Hz played at 48000 Hz (target: level within 0.5 dB, all else 60 dB below the tone)\n");
    const std::pair<const char*, std::function<std::vector<float>(const std::vector<float>&)>> ways[] = {
        {"linear interpolation (before)", linear},
        {"wave file, resampled at load", [](const std::vector<float>& in) { return resampleWhole(in, 1, kFrom, kTo); }},
        {"speech, in 10 ms blocks", streamed},
    };
    for (const auto& [how, run] : ways)
        for (double hz : {1000.0, 5000.0, 8000.0}) measure(how, hz, run(tone(hz)));
    return 0;
}
