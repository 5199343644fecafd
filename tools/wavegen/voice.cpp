#include "voice.h"

#include <algorithm>
#include <cmath>

namespace wavegen {

namespace {

double rosenberg(double p, double open) {
    double rise = open * 0.6;
    if (p < rise) return 0.5 * (1 - std::cos(pi * p / rise));
    if (p < open) return std::cos(0.5 * pi * (p - rise) / (open - rise));
    return 0.0;
}

}  // namespace

Samples glottal(Rng& rng, const Glottis& g, int rate) {
    Samples s(size_t(framesOf(g.seconds, rate)));
    double phase = 0, prev = 0, wobble = 1, level = 1;
    for (size_t i = 0; i < s.size(); ++i) {
        double f = g.pitch.at(double(i) / rate) * wobble;
        phase += f / rate;
        if (phase >= 1) {
            phase -= 1;
            wobble = 1 + g.jitter * rng.gauss();
            level = 1 + g.shimmer * rng.gauss();
        }
        double flow = rosenberg(phase, g.open) * level;
        double d = (flow - prev) * rate / (f * 4 + 1);   // derivative, kept level across pitch
        prev = flow;
        s[i] = float(d + g.breath * rng.noise() * flow);
    }
    return s;
}

Samples formants(const Samples& src, const std::vector<Formant>& fs, int rate) {
    Samples out(src.size(), 0.0f);
    for (const Formant& f : fs) {
        Svf svf;
        for (size_t i = 0; i < src.size(); ++i) {
            double hz = f.freq.at(double(i) / rate);
            out[i] += float(f.gain * svf.run(src[i], Pass::band, hz, hz / f.width, rate));
        }
    }
    return out;
}

Samples voiced(Rng& rng, const Glottis& g, const std::vector<Formant>& fs, int rate, double attack,
               double release) {
    Samples s = formants(glottal(rng, g, rate), fs, rate);
    double end = g.seconds;
    scaleBy(s, Curve{{0, 0}, {attack, 1}, {std::max(attack, end - release), 1}, {end, 0}}, rate);
    return s;
}

}  // namespace wavegen
