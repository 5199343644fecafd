// Farm animals in the fields by the course: cows, chickens, a cockerel, a
// turkey, a horse, a pig. Source-filter voices, heard some way off.
#include <cmath>

#include "sounds.h"
#include "voice.h"

namespace wavegen {

namespace {

void farOff(Samples& s, int rate) { distant(s, rate, 3500, 0.35, 0.6); }

Samples breath(Rng& rng, int rate, double len, double hz) {
    Samples b = whiteNoise(rng, framesOf(len, rate));
    filter(b, Pass::band, hz, 0.8, rate);
    scaleBy(b, Curve{{0, 0}, {len * 0.2, 1}, {len, 0}}, rate);
    return b;
}

// A moo: nasal "m" opening through "oo" to "aa" and closing again.
Samples moo(Rng& rng, int rate, double hz, double len) {
    Glottis g{Curve{{0, hz * 0.85}, {len * 0.35, hz * 1.15}, {len * 0.8, hz}, {len, hz * 0.8}}, len, 0.02, 0.08, 0.4,
              0.15};
    std::vector<Formant> fs = {
        {Curve{{0, 250}, {len * 0.25, 330}, {len * 0.6, 650}, {len, 400}}, 90, 1.0},
        {Curve{{0, 900}, {len * 0.25, 800}, {len * 0.6, 1100}, {len, 850}}, 120, 0.6},
        {Curve{{0, 2200}, {len * 0.6, 2500}, {len, 2300}}, 200, 0.2}};
    return voiced(rng, g, fs, rate, 0.15, len * 0.3);
}

// A cluck: a short pitched burst with hen-like formants.
Samples cluck(Rng& rng, int rate, double hz, double len) {
    Glottis g{Curve{{0, hz * 1.1}, {len, hz * 0.9}}, len, 0.03, 0.1, 0.35, 0.3};
    std::vector<Formant> fs = {{Curve{{0, 1000}}, 250, 1.0}, {Curve{{0, 2500}}, 400, 0.5}};
    return voiced(rng, g, fs, rate, 0.005, len * 0.5);
}

// A run of clucks ending in a long rising "bawk".
void henRun(Rng& rng, Samples& s, int rate, double t, double hz, double gain) {
    int n = 4 + rng.below(3);
    for (int k = 0; k < n; ++k) {
        mixAt(s, cluck(rng, rate, hz * rng.range(0.95, 1.05), rng.range(0.05, 0.08)), framesOf(t, rate), gain);
        t += rng.range(0.12, 0.2);
    }
    Glottis g{Curve{{0, hz * 0.9}, {0.25, hz * 1.5}, {0.4, hz * 1.3}}, 0.4, 0.03, 0.1, 0.35, 0.3};
    std::vector<Formant> fs = {{Curve{{0, 800}, {0.25, 1200}}, 250, 1.0}, {Curve{{0, 2400}}, 400, 0.5}};
    mixAt(s, voiced(rng, g, fs, rate, 0.02, 0.12), framesOf(t + 0.05, rate), gain);
}

// "Cock-a-doodle-doo": four notes, the last held and falling.
Samples cockerel(Rng& rng, int rate) {
    Curve pitch{{0, 520}, {0.12, 560}, {0.16, 480}, {0.3, 600}, {0.34, 520}, {0.5, 640}, {0.55, 700},
                {1.0, 690}, {1.35, 520}};
    Glottis g{pitch, 1.35, 0.02, 0.1, 0.35, 0.25};
    std::vector<Formant> fs = {{Curve{{0, 900}, {0.5, 1100}, {1.35, 800}}, 200, 1.0},
                               {Curve{{0, 2100}, {1.35, 1900}}, 300, 0.6},
                               {Curve{{0, 3200}}, 400, 0.3}};
    Samples s = voiced(rng, g, fs, rate, 0.02, 0.3);
    // Breaks between the syllables.
    scaleBy(s, Curve{{0, 1}, {0.13, 1}, {0.15, 0.2}, {0.17, 1}, {0.31, 1}, {0.33, 0.2}, {0.35, 1}}, rate);
    return s;
}

// A grunt: low, nasal, noisy.
Samples grunt(Rng& rng, int rate, double hz, double len) {
    Glottis g{Curve{{0, hz}, {len, hz * 0.85}}, len, 0.06, 0.25, 0.3, 0.6};
    std::vector<Formant> fs = {{Curve{{0, 300}}, 120, 1.0}, {Curve{{0, 1200}}, 300, 0.5}, {Curve{{0, 2500}}, 400, 0.2}};
    return voiced(rng, g, fs, rate, 0.02, len * 0.5);
}

}  // namespace

Samples cow(Job& j) {
    Samples s = j.silence();
    mixAt(s, moo(j.rng, j.rate, 130, 1.8), j.at(0.2));
    mixAt(s, breath(j.rng, j.rate, 0.5, 600), j.at(2.2), 0.08);
    farOff(s, j.rate);
    return s;
}

Samples lowCow(Job& j) {
    Samples s = j.silence();
    mixAt(s, moo(j.rng, j.rate, 92, 2.2), j.at(0.15));
    mixAt(s, moo(j.rng, j.rate, 88, 0.7), j.at(2.6), 0.5);
    farOff(s, j.rate);
    return s;
}

Samples chickens(Job& j) {
    Samples s = j.silence();
    henRun(j.rng, s, j.rate, 0.1, 520, 1.0);
    henRun(j.rng, s, j.rate, 1.8, 600, 0.7);
    farOff(s, j.rate);
    return s;
}

Samples roosterAndHens(Job& j) {
    Samples s = j.silence();
    mixAt(s, cockerel(j.rng, j.rate), j.at(0.15));
    for (int k = 0; k < 6; ++k)
        mixAt(s, cluck(j.rng, j.rate, j.rng.range(480, 620), 0.06), j.at(1.9 + k * j.rng.range(0.2, 0.3)), 0.45);
    farOff(s, j.rate);
    return s;
}

Samples turkey(Job& j) {
    Samples s = j.silence();
    double len = 1.1;
    Glottis g{Curve{{0, 480}, {len, 300}}, len, 0.03, 0.1, 0.4, 0.2};
    std::vector<Formant> fs = {{Curve{{0, 800}, {len, 650}}, 250, 1.0}, {Curve{{0, 1900}}, 350, 0.5}};
    Samples call = voiced(j.rng, g, fs, j.rate, 0.02, 0.2);
    // The gobble: the level beating fast.
    for (size_t i = 0; i < call.size(); ++i) {
        double t = double(i) / j.rate;
        call[i] = float(call[i] * (0.55 + 0.45 * std::sin(2 * pi * (17 - 2 * t) * t)));
    }
    mixAt(s, call, j.at(0.2));
    mixAt(s, call, j.at(1.5), 0.6);
    farOff(s, j.rate);
    return s;
}

Samples horse(Job& j) {
    Samples s = j.silence();
    double len = 1.4;
    // Up fast, then falling with a strong 9 Hz vibrato.
    Curve arch{{0, 700}, {0.2, 1000}, {0.6, 850}, {len, 500}};
    Curve pitch;
    for (double t = 0; t <= len; t += 0.005) pitch.add(t, arch.at(t) * (1 + 0.06 * std::sin(2 * pi * 9 * t)));
    Glottis g{pitch, len, 0.02, 0.1, 0.45, 0.2};
    Samples raw = glottal(j.rng, g, j.rate);
    // The whinny's strong fast vibrato, as a wobble of the filter and level.
    std::vector<Formant> fs = {{Curve{{0, 1200}, {len, 900}}, 300, 1.0}, {Curve{{0, 2600}}, 400, 0.5}};
    Samples whinny = formants(raw, fs, j.rate);
    for (size_t i = 0; i < whinny.size(); ++i) {
        double t = double(i) / j.rate;
        whinny[i] = float(whinny[i] * (0.6 + 0.4 * std::sin(2 * pi * 9 * t)));
    }
    scaleBy(whinny, Curve{{0, 0}, {0.08, 1}, {len * 0.6, 0.8}, {len, 0}}, j.rate);
    mixAt(s, whinny, j.at(0.15));
    // The snort: a noisy burst fluttering through the lips.
    Samples snort = whiteNoise(j.rng, j.at(0.45));
    filter(snort, Pass::low, 1500, 0.7, j.rate);
    for (size_t i = 0; i < snort.size(); ++i) snort[i] = float(snort[i] * (0.5 + 0.5 * std::sin(2 * pi * 32 * i / j.rate)));
    scaleBy(snort, Curve{{0, 0}, {0.03, 1}, {0.45, 0}}, j.rate);
    mixAt(s, snort, j.at(2.0), 0.7);
    farOff(s, j.rate);
    return s;
}

Samples pig(Job& j) {
    Samples s = j.silence();
    double t = 0.15;
    while (t < j.seconds() - 0.6) {
        int n = 2 + j.rng.below(3);
        for (int k = 0; k < n && t < j.seconds() - 0.3; ++k) {
            double len = j.rng.range(0.12, 0.2);
            mixAt(s, grunt(j.rng, j.rate, j.rng.range(85, 115), len), j.at(t), j.rng.range(0.7, 1.0));
            t += len + j.rng.range(0.04, 0.1);
        }
        t += j.rng.range(0.35, 0.6);
    }
    farOff(s, j.rate);
    return s;
}

}  // namespace wavegen
