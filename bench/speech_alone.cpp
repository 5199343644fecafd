// A recording of speech alone, as the null sink's monitor would record it:
// the embedded voice speaks the game's texts through the speech feed, and
// the samples are written as bench_record writes a recording (s16le stereo
// at 48 kHz, with a line "frames ns" for every block, at the pace of a
// device). dropouts.py must find no dropout in it: every silence in it is
// the voice's own.
//
// usage: bench_speech_alone OUTPREFIX [TEXT...]
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "platform/real/speech_engine.h"
#include "platform/real/speech_feed.h"

namespace {

const char* const kTexts[] = {
    " Please enter your name. ",
    " Is Bartholomew correct for your name? ",
    " Welcome to the first tee. Before each shot, the scene will be set for you.  Respond by choosing the right "
    "club from your bag and pressing a key to hit the ball when the sound indicator reaches the power level that "
    "you wish to hit the ball with. ",
    " Special key instructions. C. crowd and ambient sounds toggle. Escape key. save and or exit game. K. key "
    "speak toggle. F1. repeat current prompt. F2. repeat last shot. F3. say your bag of clubs. ",
    " You are at hole 3 of Par-3 lane. It is a par 4 of 412 yards. There is a chicken farm to your left and a "
    "pond to your right. ",
    " Choose a club. 1 wood. 3 wood. 5 wood. 3 iron. 5 iron. 7 iron. 9 iron. Pitching wedge. Sand wedge. ",
    " Nice shot! 243 yards. You are 169 yards from the pin. ",
};

}  // namespace

int main(int argc, char** argv) {
    using namespace platform::real;
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_speech_alone OUTPREFIX [TEXT...]\n");
        return 2;
    }
    std::vector<std::string> texts(kTexts, kTexts + std::size(kTexts));
    if (argc > 2) texts.assign(argv + 2, argv + argc);
    SpeechFeed feed;
    SpeechEngine engine(feed, 48000);
    if (!engine.ready()) return 1;
    std::string prefix = argv[1];
    std::FILE* raw = std::fopen((prefix + ".raw").c_str(), "wb");
    std::FILE* ts = std::fopen((prefix + ".ts").c_str(), "w");
    if (!raw || !ts) return 1;
    const int block = 96;
    long long total = 0;
    std::vector<float> mixed(2 * block);
    std::vector<std::int16_t> out(2 * block);
    for (const std::string& text : texts) {
        engine.say(text);
        while (engine.busy() || feed.hasSamples()) {
            std::fill(mixed.begin(), mixed.end(), 0.0f);
            int n = feed.mixInto(mixed.data(), block, total);
            if (n == 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                continue;
            }
            for (int i = 0; i < 2 * n; ++i) out[size_t(i)] = std::int16_t(std::lround(mixed[size_t(i)] * 32767.0f));
            std::fwrite(out.data(), 4, size_t(n), raw);
            total += n;
            std::fprintf(ts, "%lld %lld\n", total, static_cast<long long>(total * 1000000000 / 48000));
        }
    }
    std::fclose(raw);
    std::fclose(ts);
    std::printf("%lld frames of speech\n", total);
    return 0;
}
