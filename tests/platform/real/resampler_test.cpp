// The synthesiser's speech resampled as it comes, in blocks of ten
// milliseconds: at its level, without images, and holding nothing back
// that would delay its first sample.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/real/resampler.h"
#include "test_waves.h"

namespace {

TEST(Resampler, SpeechInBlocksKeepsItsLevelWithoutImagesOrDelay) {
    for (double hz : {1000.0, 5000.0, 8000.0}) {
        platform::real::Resampler r(22050, 48000);
        std::vector<short> in;
        for (int i = 0; i < 22000; ++i) in.push_back(short(16384 * std::sin(2 * M_PI * hz * i / 22050)));
        std::vector<float> out;
        r.run(in.data(), 220, out);
        EXPECT_GE(out.size(), 479u - 48u) << "more than a millisecond held back";
        for (size_t at = 220; at < in.size(); at += 220) r.run(in.data() + at, 220, out);
        r.finish(out);
        EXPECT_NEAR(double(out.size()), 22000 * 48000.0 / 22050, 2.0);
        std::vector<float> middle(out.begin() + 4800, out.begin() + 14400);
        EXPECT_NEAR(realtest::levelDb(middle, hz), 0.0, 0.5) << hz;
        EXPECT_LT(realtest::levelDb(middle, 22050 - hz), -60.0) << hz;
    }
}

}  // namespace
