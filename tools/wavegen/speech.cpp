#include "speech.h"

#include <espeak-ng/speak_lib.h>

#include <cmath>
#include <cstdlib>
#include <vector>

namespace wavegen {

namespace {

int engineRate = 0;
std::vector<short> heard;

int collect(short* wav, int count, espeak_EVENT*) {
    if (wav) heard.insert(heard.end(), wav, wav + count);
    return 0;
}

Samples trimmed(const std::vector<short>& raw) {
    size_t a = 0, b = raw.size();
    while (a < b && std::abs(raw[a]) < 64) ++a;
    while (b > a && std::abs(raw[b - 1]) < 64) --b;
    Samples s;
    s.reserve(b - a);
    for (size_t i = a; i < b; ++i) s.push_back(float(raw[i] / 32768.0));
    return s;
}

Samples resampled(const Samples& s, double ratio) {
    if (s.empty() || ratio == 1.0) return s;
    Samples out(size_t(double(s.size()) / ratio));
    for (size_t i = 0; i < out.size(); ++i) {
        double x = double(i) * ratio;
        size_t j = size_t(x);
        double f = x - double(j);
        float b = j + 1 < s.size() ? s[j + 1] : 0.0f;
        out[i] = float(s[j] * (1 - f) + b * f);
    }
    return out;
}

}  // namespace

bool speechReady() {
    if (engineRate == 0) {
        engineRate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, 0);
        if (engineRate > 0) espeak_SetSynthCallback(collect);
    }
    return engineRate > 0;
}

Samples speak(const Utterance& u, int rate) {
    if (!speechReady()) return {};
    std::srand(1);   // the engine's breath noise draws on rand(): keep it repeatable
    espeak_SetVoiceByName(u.voice.c_str());
    espeak_SetParameter(espeakRATE, u.wordsPerMinute, 0);
    espeak_SetParameter(espeakPITCH, u.pitch, 0);
    espeak_SetParameter(espeakRANGE, u.range, 0);
    espeak_SetParameter(espeakVOLUME, 100, 0);
    heard.clear();
    espeak_Synth(u.text.c_str(), u.text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_AUTO, nullptr, nullptr);
    espeak_Synchronize();
    return resampled(trimmed(heard), double(engineRate) / rate);
}

Samples bend(const Samples& s, const Curve& semitones, int rate) {
    Samples out;
    double x = 0;
    for (long i = 0; x + 1 < double(s.size()); ++i) {
        size_t j = size_t(x);
        double f = x - double(j);
        out.push_back(float(s[j] * (1 - f) + s[j + 1] * f));
        x += std::pow(2.0, semitones.at(double(i) / rate) / 12.0);
    }
    return out;
}

}  // namespace wavegen
