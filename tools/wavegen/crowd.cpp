// The gallery: a murmur of many voices from espeak-ng, and the crowd's
// wordless "ooh" and "aww" from a formant model, many voices at once.
#include <cmath>
#include <string>

#include "speech.h"
#include "sounds.h"
#include "voice.h"

namespace wavegen {

namespace {

const char* const words[] = {
    "well",   "I",     "think", "that",  "was",   "really", "quite",  "good",  "you",   "know",  "the",
    "green",  "wind",  "he",    "she",   "said",  "lovely", "shot",   "over",  "there", "maybe", "next",
    "hole",   "look",  "at",    "it",    "where", "did",    "go",     "yes",   "no",    "right", "so",
    "anyway", "lunch", "after", "three", "four",  "par",    "putter", "line",  "grass", "fast",  "slow"};

std::string phrase(Rng& rng) {
    std::string p;
    int n = 3 + rng.below(6);
    for (int i = 0; i < n; ++i) {
        if (i) p += ' ';
        p += words[rng.below(int(sizeof words / sizeof *words))];
    }
    return p;
}

std::string variant(Rng& rng, bool female) {
    static const char* const men[] = {"en+m1", "en+m2", "en+m3", "en+m4", "en+m5", "en+m6", "en+m7"};
    static const char* const women[] = {"en+f1", "en+f2", "en+f3", "en+f4", "en+f5"};
    return female ? women[rng.below(5)] : men[rng.below(7)];
}

// One person chatting on and off through the whole buffer.
void chatter(Rng& rng, Samples& into, int rate) {
    bool female = rng.chance(0.45);
    Utterance u{variant(rng, female), "", rng.below(60) + 20, rng.below(40) + 30, 150 + rng.below(70)};
    double gain = rng.range(0.25, 1.0);
    long at = long(rng.range(-1.5, 1.0) * rate);
    while (at < long(into.size())) {
        u.text = phrase(rng);
        Samples said = speak(u, rate);
        mixAt(into, said, at, gain);
        at += long(said.size()) + long(rng.range(0.3, 1.8) * rate);
    }
}

// The crowd's vowel: each voice its own pitch, formants scaled for its size.
struct Vowel {
    Curve f1, f2, f3;
};

Samples crowdVowel(Job& j, const Vowel& v, double seconds, double semitonesMove, int voices) {
    Samples s = j.silence();
    for (int k = 0; k < voices; ++k) {
        bool female = j.rng.chance(0.45);
        double base = female ? j.rng.range(190, 270) : j.rng.range(95, 150);
        double size = female ? j.rng.range(1.1, 1.2) : j.rng.range(0.95, 1.05);
        double onset = j.rng.range(0.0, 0.3);
        double len = seconds - onset - j.rng.range(0.0, 0.25);
        double end = base * std::pow(2.0, (semitonesMove + j.rng.range(-1.5, 1.5)) / 12);
        Glottis g{Curve{{0, base}, {len, end}}, len, 0.015, 0.08, 0.55, 0.08};
        std::vector<Formant> fs;
        for (int f = 0; f < 3; ++f) {
            const Curve& src = f == 0 ? v.f1 : f == 1 ? v.f2 : v.f3;
            Curve scaled;
            for (auto [t, hz] : src.points) scaled.add(t * len, hz * size);
            fs.push_back({scaled, 60.0 + 40 * f, f == 0 ? 1.0 : f == 1 ? 0.6 : 0.25});
        }
        Samples one = voiced(j.rng, g, fs, j.rate, j.rng.range(0.08, 0.2), len * 0.4);
        mixAt(s, one, j.at(onset), j.rng.range(0.4, 1.0));
    }
    filter(s, Pass::low, 3500, 0.7, j.rate);
    Samples room = reverb(s, j.rate, 0.6, 0.5);
    mixAt(s, room, 0, 0.35);
    return s;
}

}  // namespace

Samples galleryMurmur(Job& j) {
    Samples material = j.loopMaterial();
    for (int k = 0; k < 26; ++k) chatter(j.rng, material, j.rate);
    filter(material, Pass::low, 2200, 0.7, j.rate);
    filter(material, Pass::high, 150, 0.7, j.rate);
    Samples room = reverb(material, j.rate, 0.7, 0.5);
    mixAt(material, room, 0, 0.6);
    return loopJoin(material, j.frames, j.loopCross());
}

Samples crowdOoh(Job& j) {
    // From a round "oh" closing to "oo", the pitch rising with the ball.
    Vowel oo{Curve{{0, 480}, {0.3, 340}, {1, 320}}, Curve{{0, 900}, {0.3, 800}, {1, 760}},
             Curve{{0, 2500}, {1, 2300}}};
    return crowdVowel(j, oo, j.seconds(), 6, 28);
}

Samples crowdAww(Job& j) {
    // An open "aa" sinking to "aw", the pitch falling.
    Vowel aw{Curve{{0, 750}, {0.4, 680}, {1, 560}}, Curve{{0, 1200}, {0.4, 1050}, {1, 850}},
             Curve{{0, 2500}, {1, 2400}}};
    return crowdVowel(j, aw, j.seconds(), -5, 28);
}

}  // namespace wavegen
