#include "platform/sound_limits.h"

#include <string>

#include "platform/platform.h"

namespace platform {

namespace {

void refuse(int id, const std::string& what, long value, long low, long high) {
    throw Failure("sound buffer " + std::to_string(id) + ": " + what + " " + std::to_string(value) +
                  " is outside " + std::to_string(low) + " to " + std::to_string(high));
}

}  // namespace

void checkVolume(int id, int v) {
    if (v < minVolume || v > maxVolume) refuse(id, "volume", v, minVolume, maxVolume);
}

void checkPan(int id, int p) {
    if (p < minPan || p > maxPan) refuse(id, "pan", p, minPan, maxPan);
}

void checkFrequency(int id, int hz) {
    if (hz != originalFrequency && (hz < minFrequency || hz > maxFrequency))
        refuse(id, "frequency", hz, minFrequency, maxFrequency);
}

long checkedPosition(int id, long bytes, long dataBytes, int blockAlign) {
    if (bytes < 0 || bytes >= dataBytes) refuse(id, "position", bytes, 0, dataBytes - 1);
    return bytes - bytes % blockAlign;
}

}  // namespace platform
