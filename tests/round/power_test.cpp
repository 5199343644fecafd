// The power reading: where in the indicator the key came down.
#include <gtest/gtest.h>

#include "round/power.h"
#include "sound/wave_table.h"

using play::hitpowFrom;

namespace {

void checkTable(long length) {
    // Per cent of the length, in hundredths, from and below, and the reading.
    const long rows[][3] = {{1, 100, 1},      {100, 200, 1},    {200, 300, 2},
                            {2500, 2600, 25}, {4900, 5000, 49}, {5000, 5100, 50},
                            {5100, 5200, 49}, {7500, 7600, 25}, {9900, 10000, 1}};
    for (const auto& r : rows) {
        SCOPED_TRACE(r[0]);
        EXPECT_EQ(hitpowFrom(length * r[0] / 10000 + 1, length), r[2]);
        EXPECT_EQ(hitpowFrom(length * r[1] / 10000 - 1, length), r[2]);
    }
    EXPECT_EQ(hitpowFrom(0, length), 1);   // a position of 0 counts as 1
    // The cursor counts sound data only: its last byte reads 99 per cent.
    EXPECT_EQ(hitpowFrom(sound::dataFrames(length) * 2, length), 1);
}

TEST(SwingReading, PowerTableOfTheHitIndicator) { checkTable(sound::hitIndicatorBytes); }

TEST(SwingReading, PowerTableOfThePuttIndicator) { checkTable(sound::puttIndicatorBytes); }

}  // namespace
