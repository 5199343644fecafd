// What a sound buffer takes, on either platform. A value outside these
// limits is refused with a Failure and changes nothing.
#pragma once

namespace platform {

// Hundredths of a decibel: 0 is the file's own level, -10000 silence.
constexpr int minVolume = -10000;
constexpr int maxVolume = 0;
// Hundredths of a decibel taken off the other side; negative is left.
constexpr int minPan = -10000;
constexpr int maxPan = 10000;
// Samples per second; 0 sets a buffer back to its file's own rate.
constexpr int minFrequency = 100;
constexpr int maxFrequency = 200000;
constexpr int originalFrequency = 0;

// Each throws Failure, naming the buffer and the value, when it is refused.
void checkVolume(int id, int hundredthsDb);
void checkPan(int id, int hundredthsDb);
void checkFrequency(int id, int hz);
// A new play position in bytes, rounded down to a whole frame; it must lie
// inside the sound data.
long checkedPosition(int id, long bytes, long dataBytes, int blockAlign);

}  // namespace platform
