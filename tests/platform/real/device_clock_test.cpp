#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "platform/real/device_clock.h"

namespace {

using platform::real::DeviceClock;

constexpr std::int64_t kStart = 7000000000;
constexpr double kNsPerFrame = 1e9 / 48000;

std::int64_t at(double frame) { return kStart + std::int64_t(frame * kNsPerFrame); }

TEST(DeviceClock, NothingIsHeardBeforeTheFirstRequest) {
    DeviceClock clock(48000, 256);
    EXPECT_EQ(clock.heardFrame(kStart), 0.0);
}

TEST(DeviceClock, TheListenerIsTheLatencyBehindThePunctualRequests) {
    DeviceClock clock(48000, 256);
    for (int k = 0; k < 10; ++k) clock.handedOut(k * 256, 256, at(k * 256));
    EXPECT_NEAR(clock.heardFrame(at(9 * 256 + 100)), 9 * 256 + 100 - 256, 0.01);
    EXPECT_NEAR(double(clock.timeOfFrame(1000)), double(at(1256)), 1.0);
}

TEST(DeviceClock, LateRequestsDoNotMoveTheEstimate) {
    DeviceClock clock(48000, 256);
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> late(0, 200);
    clock.handedOut(0, 256, at(0));
    for (int k = 1; k < 40; ++k) clock.handedOut(k * 256, 256, at(k * 256 + late(rng)));
    EXPECT_NEAR(clock.heardFrame(at(39 * 256 + 10)), 39 * 256 + 10 - 256, 0.01);
}

TEST(DeviceClock, NeverPastWhatWasHandedOut) {
    DeviceClock clock(48000, 256);
    clock.handedOut(0, 256, at(0));
    EXPECT_EQ(clock.heardFrame(at(100000)), 256.0);
}

TEST(DeviceClock, AfterAStallTheDeviceIsFollowedWithinAFewRequests) {
    DeviceClock clock(48000, 256);
    for (int k = 0; k < 60; ++k) clock.handedOut(k * 256, 256, at(k * 256));
    // The device stopped for twenty milliseconds and goes on from where it was.
    const double gap = 960;
    for (int k = 60; k < 60 + DeviceClock::kRecent; ++k) clock.handedOut(k * 256, 256, at(k * 256 + gap));
    const int last = 60 + DeviceClock::kRecent - 1;
    EXPECT_NEAR(clock.heardFrame(at(last * 256 + gap + 10)), last * 256 + 10 - 256, 0.01);
}

TEST(DeviceClock, SmallLatenessIsJitterNotAStall) {
    DeviceClock clock(48000, 256);
    for (int k = 0; k < 60; ++k) clock.handedOut(k * 256, 256, at(k * 256));
    const double late = 48;   // one millisecond
    for (int k = 60; k < 70; ++k) clock.handedOut(k * 256, 256, at(k * 256 + late));
    EXPECT_NEAR(clock.heardFrame(at(69 * 256 + late)), 69 * 256 + late - 256, 0.01);
}

// The stream stopped after a quiet stretch and starts again much later: what
// was handed out before counts as heard, and the new requests alone place
// the listener.
TEST(DeviceClock, ARestartedStreamIsPlacedByItsNewRequestsAlone) {
    DeviceClock clock(48000, 256);
    for (int k = 0; k < 60; ++k) clock.handedOut(k * 256, 256, at(k * 256));
    clock.restart();
    const double later = 5 * 48000;
    EXPECT_EQ(clock.heardFrame(at(later)), 60 * 256);
    EXPECT_EQ(clock.timeOfFrame(60 * 256 + 10), std::numeric_limits<std::int64_t>::max());
    clock.handedOut(60 * 256, 256, at(later));
    EXPECT_EQ(clock.heardFrame(at(later + 100)), 60 * 256);
    EXPECT_NEAR(clock.heardFrame(at(later + 300)), 60 * 256 + 300 - 256, 0.01);
    EXPECT_NEAR(double(clock.timeOfFrame(60 * 256 + 100)), double(at(later + 356)), 1.0);
}

}  // namespace
