#include <gtest/gtest.h>

#include "platform/real/pacer.h"

namespace {

using platform::real::Pacer;

// After activity the next turns only poll, then the sleeps grow to the cap,
// never past a due tick (across the clock's wrap too).
TEST(Pacer, PollsAfterActivityThenSleepsLongerButNeverPastTheDueTick) {
    Pacer p;
    p.active();
    for (int i = 0; i < Pacer::kQuickTurns; ++i) EXPECT_EQ(p.sleepFor(100), 0) << i;
    int last = 0;
    for (int i = 0; i < 12; ++i) {
        int ms = p.sleepFor(100);
        EXPECT_GE(ms, std::max(last, 1));
        last = ms;
    }
    EXPECT_EQ(last, Pacer::kCapMs);
    p.dueAt(1003);
    EXPECT_EQ(p.sleepFor(1000), 3);
    EXPECT_EQ(p.sleepFor(1003), Pacer::kCapMs) << "a passed due tick limits nothing";
    p.dueAt(2);
    EXPECT_EQ(p.sleepFor(0xFFFFFFFFu), 3);
}

}  // namespace
