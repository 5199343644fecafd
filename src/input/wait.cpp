// The waits every prompt is built from: clearing the key, waiting for one,
// and the pause in units of 1025 milliseconds.
#include <algorithm>
#include <cmath>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/ticks.h"

namespace input {

void clk() {
    do {
        ks.g.clear();
        platform::os().yield();
        ks.g2.clear();
        platform::os().yield();
    } while (!ks.g.empty());
}

bool hushonly(const std::string& g) {
    return g == key::F8 || g == key::Ctrl || g == key::Alt || g == key::Pause || g == key::ScrollLock;
}

void getkey() {
    auto& os = platform::os();
    do {
        clk();
        while (ks.g.empty()) os.yield();
        os.speak("", platform::speakPurge);   // the voice stops at any key
    } while (hushonly(ks.g));
}

void dy(double a) {
    auto& os = platform::os();
    const double span = a * 1025.0;
    std::uint32_t last = os.tick();
    os.dueAt(last + std::uint32_t(span > 0 ? std::min(std::floor(span), 2147483647.0) : 0.0) + 1);
    // The time waited is summed from tick to tick, so the wrap of the tick
    // count cannot stop the wait or end it early.
    double waited = 0;
    do {
        os.yield();
        std::uint32_t now = os.tick();
        waited += platform::elapsed(last, now);
        last = now;
    } while (!(waited > span));
}

}  // namespace input
