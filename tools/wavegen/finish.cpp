#include "finish.h"

#include <algorithm>
#include <cmath>

namespace wavegen {

namespace {

double targetDb(Level l) {
    switch (l) {
        case Level::impact: return -13;
        case Level::music: return -15;
        case Level::signal: return -15;
        case Level::crowd: return -17;
        case Level::bed: return -23;
        case Level::ambience: return -21;
        case Level::indicator: return 0;
    }
    return -20;
}

// Impacts are mostly one sharp peak: round it off so the body of the sound
// can come up under the ceiling.
void softLimit(Samples& s) {
    double peak = peakOf(s);
    if (peak <= 0) return;
    const double drive = 1.5;
    for (float& v : s) v = float(std::tanh(drive * v / peak) / std::tanh(drive));
}

void put16(std::string& b, int v) {
    b.push_back(char(v & 0xff));
    b.push_back(char((v >> 8) & 0xff));
}

void put32(std::string& b, long v) {
    put16(b, int(v & 0xffff));
    put16(b, int((v >> 16) & 0xffff));
}

}  // namespace

double loudnessDb(const Samples& s, int rate) {
    // Mean power of the loudest quarter of 50 ms windows.
    size_t w = size_t(rate / 20);
    std::vector<double> powers;
    for (size_t a = 0; a + w <= s.size(); a += w) {
        double sum = 0;
        for (size_t i = a; i < a + w; ++i) sum += double(s[i]) * s[i];
        powers.push_back(sum / double(w));
    }
    if (powers.empty()) return -120;
    std::sort(powers.rbegin(), powers.rend());
    size_t n = std::max<size_t>(1, powers.size() / 4);
    double mean = 0;
    for (size_t i = 0; i < n; ++i) mean += powers[i];
    mean /= double(n);
    return mean > 0 ? 10 * std::log10(mean) : -120;
}

std::vector<std::int16_t> finish(Samples s, long frames, int rate, Finish how) {
    s.resize(size_t(frames), 0.0f);
    if (!how.loop) fadeEnds(s, rate / 500, rate / 40);
    if (how.level == Level::impact) softLimit(s);
    if (how.level != Level::indicator) {
        double gain = dbToGain(targetDb(how.level) - loudnessDb(s, rate));
        double peak = peakOf(s);
        if (peak * gain > peakCeiling) gain = peakCeiling / peak;
        scale(s, gain);
    }
    std::vector<std::int16_t> pcm(s.size());
    for (size_t i = 0; i < s.size(); ++i) {
        double v = std::clamp(double(s[i]), -peakCeiling, peakCeiling);
        pcm[i] = std::int16_t(std::lround(v * 32768.0));
    }
    return pcm;
}

std::string waveBytes(const std::vector<std::int16_t>& pcm, int rate) {
    std::string b = "RIFF";
    long data = long(pcm.size()) * 2;
    put32(b, 36 + data);
    b += "WAVEfmt ";
    put32(b, 16);
    put16(b, 1);          // PCM
    put16(b, 1);          // mono
    put32(b, rate);
    put32(b, rate * 2);   // bytes per second
    put16(b, 2);          // block align
    put16(b, 16);         // bits
    b += "data";
    put32(b, data);
    for (std::int16_t v : pcm) put16(b, v);
    return b;
}

}  // namespace wavegen
