// The pause of the game, dy, measured on the simulated clock: its length in
// units of 1025 milliseconds, also across the wrap of the 32-bit tick count.
#include <gtest/gtest.h>

#include <cstdint>

#include "input/keys.h"
#include "platform/platform.h"
#include "sim_harness.h"

namespace {

// Virtual milliseconds that dy(a) waits with the tick count starting at start.
std::uint32_t pause(std::uint32_t start, double a) {
    std::uint32_t waited = 0;
    auto r = simtest::runInProcessFromTick(start, "end\n", [&] {
        auto& os = platform::os();
        std::uint32_t from = os.tick();
        input::dy(a);
        waited = os.tick() - from;
    });
    EXPECT_EQ(r.code, 0) << r.dump();
    return waited;
}

TEST(Dy, WaitsStrictlyLongerThanItsUnitsOf1025Milliseconds) {
    EXPECT_EQ(pause(0, 1), 1026u);
    EXPECT_EQ(pause(0, 0.3), 308u);   // 307.5 ms, and the tick is whole
    EXPECT_EQ(pause(0, 0), 1u);       // still yields, until a tick has passed
}

TEST(Dy, EndsOnTimeAcrossTheWrapOfTheTickCount) {
    for (std::uint32_t start : {0xFFFFFFFFu, 0xFFFFFE00u, 0xFFFFFC00u, 0x7FFFFE00u}) {
        SCOPED_TRACE(start);
        EXPECT_EQ(pause(start, 1), 1026u);
        EXPECT_EQ(pause(start, 0.5), 513u);
    }
}

}  // namespace
