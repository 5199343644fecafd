// Sirens on roads beyond the course: a fire engine's slow wail, an
// ambulance's two tones, a police car's yelp. Heard far off.
#include <cmath>

#include "sounds.h"

namespace wavegen {

namespace {

// A siren's horn: a bright, slightly square tone along a pitch curve.
Samples horn(const Curve& hz, double seconds, int rate) {
    Samples s(size_t(framesOf(seconds, rate)));
    double phase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        double f = hz.at(double(i) / rate);
        double v = 0;
        for (int k = 1; k <= 7; k += 2)
            if (k * f < 0.45 * rate) v += std::sin(k * phase) / k;
        s[i] = float(v + 0.2 * std::sin(2 * phase));
        phase = std::fmod(phase + 2 * pi * f / rate, 2 * pi);
    }
    filter(s, Pass::low, 3000, 0.7, rate);
    return s;
}

// Coming nearer then going away: the level swelling, the pitch a touch high
// while it comes and low while it goes.
void passBy(Samples& s, int rate, double seconds) {
    scaleBy(s, Curve{{0, 0}, {0.4, 0.4}, {seconds * 0.5, 1}, {seconds - 0.4, 0.35}, {seconds, 0}}, rate);
    distant(s, rate, 2500, 0.5, 0.8);
}

Curve doppler(const Curve& hz, double seconds) {
    Curve out;
    for (auto [t, f] : hz.points) out.add(t, f * (t < seconds * 0.5 ? 1.02 : 0.98));
    return out;
}

}  // namespace

Samples fireEngine(Job& j) {
    double len = j.seconds();
    Curve wail{{0, 600}, {1.6, 1400}, {2.9, 650}, {4.5, 1400}, {len, 700}};
    Samples s = horn(doppler(wail, len), len, j.rate);
    passBy(s, j.rate, len);
    return s;
}

Samples ambulance(Job& j) {
    double len = j.seconds();
    Curve hiLo;
    for (double t = 0; t < len; t += 0.55) {
        double f = int(std::round(t / 0.55)) % 2 ? 730.0 : 960.0;
        hiLo.add(t, f).add(t + 0.53, f);
    }
    Samples s = horn(doppler(hiLo, len), len, j.rate);
    passBy(s, j.rate, len);
    return s;
}

Samples policeYelp(Job& j) {
    double len = j.seconds();
    Curve yelp;
    for (double t = 0; t < len; t += 0.25) yelp.add(t, 700).add(t + 0.2, 1500).add(t + 0.249, 1400);
    Samples s = horn(doppler(yelp, len), len, j.rate);
    passBy(s, j.rate, len);
    return s;
}

}  // namespace wavegen
