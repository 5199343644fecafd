#include "platform/real/tone.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace platform::real {

Wave toneWave(int hz, int ms, int rate) {
    Wave w;
    w.channels = 1;
    w.rate = rate;
    w.bits = 16;
    w.blockAlign = 2;
    int n = rate * ms / 1000;
    int fade = rate / 200;
    w.data.resize(size_t(n) * 2);
    for (int i = 0; i < n; ++i) {
        double edge = std::min({1.0, double(i) / fade, double(n - 1 - i) / fade});
        double v = 0.4 * edge * std::sin(2 * M_PI * hz * i / rate);
        auto s = std::uint16_t(std::int16_t(std::lround(v * 32767)));
        w.data[size_t(2 * i)] = std::uint8_t(s & 0xff);
        w.data[size_t(2 * i + 1)] = std::uint8_t(s >> 8);
    }
    return w;
}

}  // namespace platform::real
