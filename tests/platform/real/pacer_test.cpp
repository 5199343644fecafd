#include <gtest/gtest.h>

#include "platform/real/pacer.h"

namespace {

using platform::real::Pacer;

TEST(Pacer, AfterActivityTheNextTurnsOnlyPollThenSleepsGrowToTheCap) {
    Pacer p;
    p.sleepFor(0);
    p.active();
    for (int i = 0; i < Pacer::kQuickTurns; ++i) EXPECT_EQ(p.sleepFor(100), 0) << i;
    int last = 0;
    for (int i = 0; i < 12; ++i) {
        int ms = p.sleepFor(100);
        EXPECT_GE(ms, last);
        EXPECT_GT(ms, 0);
        last = ms;
    }
    EXPECT_EQ(last, Pacer::kCapMs);
    p.active();
    EXPECT_EQ(p.sleepFor(100), 0);
}

TEST(Pacer, NeverSleepsPastTheDueTick) {
    Pacer p;
    for (int i = 0; i < 20; ++i) p.sleepFor(0);
    p.dueAt(1003);
    EXPECT_EQ(p.sleepFor(1000), 3);
    EXPECT_EQ(p.sleepFor(1002), 1);
    // Once the moment has passed the hint no longer limits anything.
    EXPECT_EQ(p.sleepFor(1003), Pacer::kCapMs);
}

TEST(Pacer, DueTickAcrossTheClockWrap) {
    Pacer p;
    for (int i = 0; i < 20; ++i) p.sleepFor(0);
    p.dueAt(2);
    EXPECT_EQ(p.sleepFor(0xFFFFFFFFu), 3);
}

}  // namespace
