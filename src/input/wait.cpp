// The waits every prompt is built from: clearing the key, waiting for one,
// and the pause in units of 1025 milliseconds.
#include <cmath>

#include "input/keys.h"
#include "platform/platform.h"

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
    double t = double(os.tick());
    double until = t + a * 1025.0;
    os.dueAt(std::uint32_t(std::floor(until)) + 1);
    do {
        os.yield();
    } while (!(double(os.tick()) > until));
}

}  // namespace input
