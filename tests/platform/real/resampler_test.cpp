// The synthesiser's speech resampled as it comes, in blocks of ten
// milliseconds: at its level, without images, and holding nothing back
// that would delay its first sample.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/real/resampler.h"

namespace {

using platform::real::Resampler;

// The level in decibels of frequency `hz` in `v` at 48 kHz, against 0.5.
double level(const std::vector<float>& v, size_t from, size_t n, double hz) {
    double c = 0, s = 0;
    for (size_t i = 0; i < n; ++i) {
        c += v[from + i] * std::cos(2 * M_PI * hz * double(i) / 48000);
        s += v[from + i] * std::sin(2 * M_PI * hz * double(i) / 48000);
    }
    return 20 * std::log10(2 * std::hypot(c, s) / double(n) / 0.5);
}

TEST(Resampler, SpeechInBlocksKeepsItsLevelWithoutImagesOrDelay) {
    for (double hz : {1000.0, 5000.0, 8000.0}) {
        Resampler r(22050, 48000);
        std::vector<short> in;
        for (int i = 0; i < 22050; ++i) in.push_back(short(16384 * std::sin(2 * M_PI * hz * i / 22050)));
        std::vector<float> out;
        r.run(in.data(), 220, out);
        EXPECT_GE(out.size(), 479u - 48u) << "more than a millisecond held back";
        EXPECT_GT(std::fabs(out[1]), 0.0f) << "the first sample comes at once";
        for (size_t at = 220; at < in.size(); at += 220) r.run(in.data() + at, int(std::min<size_t>(220, in.size() - at)), out);
        r.finish(out);
        EXPECT_NEAR(double(out.size()), 48000.0, 2.0);
        EXPECT_NEAR(level(out, 4800, 9600, hz), 0.0, 0.5) << hz;
        EXPECT_LT(level(out, 4800, 9600, 22050 - hz), -60.0) << hz;
    }
}

}  // namespace
