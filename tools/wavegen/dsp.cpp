#include "dsp.h"

#include <algorithm>
#include <cmath>

namespace wavegen {

double dbToGain(double db) { return std::pow(10.0, db / 20.0); }

void mixAt(Samples& dst, const Samples& src, long at, double gain) {
    long n = long(dst.size());
    for (long i = 0; i < long(src.size()); ++i) {
        long j = at + i;
        if (j >= 0 && j < n) dst[j] += float(src[i] * gain);
    }
}

void mixWrap(Samples& dst, const Samples& src, long at, double gain) {
    long n = long(dst.size());
    if (n == 0) return;
    for (long i = 0; i < long(src.size()); ++i) {
        long j = ((at + i) % n + n) % n;
        dst[j] += float(src[i] * gain);
    }
}

void scale(Samples& s, double gain) {
    for (float& v : s) v = float(v * gain);
}

void scaleBy(Samples& s, const Curve& gain, int rate) {
    for (size_t i = 0; i < s.size(); ++i) s[i] = float(s[i] * gain.at(double(i) / rate));
}

double peakOf(const Samples& s) {
    double p = 0;
    for (float v : s) p = std::max(p, double(std::fabs(v)));
    return p;
}

double Svf::run(double x, Pass mode, double freq, double q, int rate) {
    double f = std::clamp(freq, 10.0, 0.47 * rate);
    double g = std::tan(pi * f / rate);
    double k = 1.0 / q;
    double a1 = 1.0 / (1.0 + g * (g + k));
    double a2 = g * a1;
    double a3 = g * a2;
    double v3 = x - ic2;
    double v1 = a1 * ic1 + a2 * v3;
    double v2 = ic2 + a2 * ic1 + a3 * v3;
    ic1 = 2 * v1 - ic1;
    ic2 = 2 * v2 - ic2;
    if (mode == Pass::low) return v2;
    if (mode == Pass::band) return k * v1;   // unity gain at the centre
    return x - k * v1 - v2;
}

void filter(Samples& s, Pass mode, const Curve& freq, double q, int rate) {
    Svf f;
    for (size_t i = 0; i < s.size(); ++i) s[i] = float(f.run(s[i], mode, freq.at(double(i) / rate), q, rate));
}

void filter(Samples& s, Pass mode, double freq, double q, int rate) {
    Svf f;
    for (float& v : s) v = float(f.run(v, mode, freq, q, rate));
}

void filterLoop(Samples& s, Pass mode, double freq, double q, int rate) {
    Svf f;
    for (float v : s) f.run(v, mode, freq, q, rate);
    for (float& v : s) v = float(f.run(v, mode, freq, q, rate));
}

void smooth(Samples& s, double freq, int rate) {
    double a = 1.0 - std::exp(-2.0 * pi * freq / rate);
    double z = 0;
    for (float& v : s) {
        z += a * (v - z);
        v = float(z);
    }
}

Samples whiteNoise(Rng& rng, long n) {
    Samples s(size_t(std::max(0L, n)));
    for (float& v : s) v = float(rng.noise());
    return s;
}

Samples pinkNoise(Rng& rng, long n) {
    // Paul Kellet's economy filter over white noise.
    Samples s(size_t(std::max(0L, n)));
    double b0 = 0, b1 = 0, b2 = 0;
    for (float& v : s) {
        double w = rng.noise();
        b0 = 0.99765 * b0 + w * 0.0990460;
        b1 = 0.96300 * b1 + w * 0.2965164;
        b2 = 0.57000 * b2 + w * 1.0526913;
        v = float((b0 + b1 + b2 + w * 0.1848) * 0.25);
    }
    return s;
}

Samples brownNoise(Rng& rng, long n) {
    Samples s(size_t(std::max(0L, n)));
    double z = 0;
    for (float& v : s) {
        z = 0.995 * z + 0.06 * rng.noise();
        v = float(z);
    }
    return s;
}

void fadeEnds(Samples& s, long in, long out) {
    long n = long(s.size());
    in = std::min(in, n);
    out = std::min(out, n);
    for (long i = 0; i < in; ++i) s[i] = float(s[i] * 0.5 * (1 - std::cos(pi * i / in)));
    for (long i = 0; i < out; ++i) s[n - 1 - i] = float(s[n - 1 - i] * 0.5 * (1 - std::cos(pi * i / out)));
}

void shapeHit(Samples& s, int rate, double attack, double decay) {
    for (size_t i = 0; i < s.size(); ++i) {
        double t = double(i) / rate;
        double a = attack > 0 ? std::min(1.0, t / attack) : 1.0;
        s[i] = float(s[i] * a * std::exp(-std::max(0.0, t - attack) / decay));
    }
}

void addMode(Samples& dst, long at, double freq, double decay, double amp, int rate) {
    long len = long(decay * rate * 7);
    double w = 2 * pi * freq / rate;
    double k = std::exp(-1.0 / (decay * rate));
    double a = amp;
    for (long i = 0; i < len; ++i) {
        long j = at + i;
        if (j >= long(dst.size())) break;
        if (j >= 0) dst[j] += float(a * std::sin(w * i));
        a *= k;
    }
}

Samples glide(const Curve& freq, double seconds, int rate, double phase) {
    Samples s(size_t(framesOf(seconds, rate)));
    for (size_t i = 0; i < s.size(); ++i) {
        s[i] = float(std::sin(phase));
        phase += 2 * pi * freq.at(double(i) / rate) / rate;
    }
    return s;
}

Samples sawTone(const Curve& freq, double seconds, int rate, int harmonics) {
    Samples s(size_t(framesOf(seconds, rate)));
    double phase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        double f = freq.at(double(i) / rate);
        double v = 0;
        for (int k = 1; k <= harmonics && k * f < 0.45 * rate; ++k) v += std::sin(k * phase) / k;
        s[i] = float(v);
        phase = std::fmod(phase + 2 * pi * f / rate, 2 * pi);
    }
    return s;
}

namespace {

struct Comb {
    std::vector<float> buf;
    size_t at = 0;
    double store = 0;
    float run(float x, double feedback, double damp) {
        float out = buf[at];
        store = out * (1 - damp) + store * damp;
        buf[at] = float(x + store * feedback);
        if (++at == buf.size()) at = 0;
        return out;
    }
};

struct AllPass {
    std::vector<float> buf;
    size_t at = 0;
    float run(float x) {
        float held = buf[at];
        buf[at] = float(x + held * 0.5);
        if (++at == buf.size()) at = 0;
        return held - x;
    }
};

}  // namespace

Samples reverb(const Samples& x, int rate, double size, double damp) {
    static const int combTune[] = {1116, 1188, 1277, 1356, 1422, 1491, 1557, 1617};
    static const int passTune[] = {556, 441, 341, 225};
    double k = rate / 44100.0;
    std::vector<Comb> combs;
    for (int t : combTune) combs.push_back(Comb{std::vector<float>(size_t(t * k) + 1, 0.0f)});
    std::vector<AllPass> passes;
    for (int t : passTune) passes.push_back(AllPass{std::vector<float>(size_t(t * k) + 1, 0.0f)});
    double feedback = 0.7 + 0.28 * size;
    double d = 0.4 * damp;
    Samples out(x.size());
    for (size_t i = 0; i < x.size(); ++i) {
        float in = x[i] * 0.015f;
        float sum = 0;
        for (Comb& c : combs) sum += c.run(in, feedback, d);
        for (AllPass& p : passes) sum = p.run(sum);
        out[i] = sum * 3.0f;
    }
    return out;
}

void distant(Samples& s, int rate, double cutoff, double wet, double size) {
    filter(s, Pass::low, cutoff, 0.6, rate);
    Samples room = reverb(s, rate, size * 0.5, 0.6);   // outdoors: short, dull echoes
    for (size_t i = 0; i < s.size(); ++i) s[i] = float(s[i] * (1 - wet) + room[i] * wet * 1.6);
}

Samples loopJoin(const Samples& material, long frames, long cross) {
    Samples out(material.begin(), material.begin() + frames);
    for (long i = 0; i < cross; ++i) {
        double w = std::sin(0.5 * pi * (i + 0.5) / cross);   // equal power
        double tail = std::cos(0.5 * pi * (i + 0.5) / cross);
        out[i] = float(material[i] * w + material[frames + i] * tail);
    }
    return out;
}

Samples engine(Rng& rng, int rate, double seconds, const Curve& firingHz, const EngineTone& tone) {
    Samples s(size_t(framesOf(seconds, rate)), 0.0f);
    double phase = 1;
    float pulse = 1;
    for (size_t i = 0; i < s.size(); ++i) {
        phase += firingHz.at(double(i) / rate) / rate;
        if (phase >= 1) {
            phase -= 1;
            pulse = float(1 + tone.roughness * rng.gauss());
        }
        double shape = std::exp(-phase * tone.decay);
        s[i] = float(pulse * shape + tone.hiss * rng.noise());
    }
    filter(s, Pass::low, tone.cutoff, tone.q, rate);
    filter(s, Pass::high, 25, 0.7, rate);
    return s;
}

}  // namespace wavegen
