// The listener's place from the device's requests (or the server's reports
// of how far it has read): punctual ones mark the clock, late ones do not
// move it, a stall is followed, a restart starts anew.
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "platform/real/device_clock.h"

namespace {

using platform::real::DeviceClock;

constexpr std::int64_t kStart = 7000000000;

std::int64_t at(double frame) { return kStart + std::int64_t(frame * 1e9 / 48000); }

TEST(DeviceClock, TheListenerFollowsTheEarliestRequests) {
    struct Case {
        const char* what;
        double lateBy;   // frames, for requests 60 to 67
        double heard;    // at the time of request 67 plus 10 frames
    };
    const Case cases[] = {
        {"punctual", 0, 67 * 256 + 10 - 256},
        {"a millisecond late is jitter", 48, 67 * 256 + 10 - 256 + 48},
        {"twenty milliseconds late is a stall, followed", 960, 67 * 256 + 10 - 256},
    };
    std::mt19937 rng(3);
    for (const Case& c : cases) {
        DeviceClock clock(48000, 256);
        EXPECT_EQ(clock.heardFrame(kStart), 0.0) << "nothing before the first request";
        std::uniform_real_distribution<> late(0, 200);
        for (int k = 0; k < 60; ++k) clock.handedOut(k * 256, 256, at(k * 256 + k % 2 * late(rng)));
        for (int k = 60; k < 68; ++k) clock.handedOut(k * 256, 256, at(k * 256 + c.lateBy));
        EXPECT_NEAR(clock.heardFrame(at(67 * 256 + c.lateBy + 10)), c.heard, 0.01) << c.what;
        EXPECT_EQ(clock.heardFrame(at(100000)), 68 * 256.0) << "never past what was handed out";
    }
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
