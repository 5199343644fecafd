// Short signals: the countdown tick and the error buzz.
#include "instruments.h"
#include "sounds.h"

namespace wavegen {

Samples countdownTick(Job& j) {
    Samples s = j.silence();
    long at = j.at(0.002);
    addMode(s, at, 1900, 0.004, 0.8, j.rate);
    addMode(s, at, 3100, 0.0025, 0.4, j.rate);
    Samples click = whiteNoise(j.rng, j.at(0.002));
    shapeHit(click, j.rate, 0.0002, 0.0004);
    mixAt(s, click, at, 0.3);
    return s;
}

Samples errorBuzz(Job& j) {
    Samples s = j.silence();
    play(s, Voice::buzz, {{0.005, 45, 0.37, 1.0}}, j.rate, j.rng);
    return s;
}

}  // namespace wavegen
