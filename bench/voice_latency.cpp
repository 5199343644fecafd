// Speech through both kinds of voice, as a key press makes it: the voice is
// silenced and the key's letter queued (what the game's saykey does). Each
// "press" is noted with its monotonic time, in bench_keys' format, so that
// key_latency/analyze.py can place it against bench_record's recording; and
// a long text is cut off now and then, noted as "cut NS".
//
// usage: bench_voices PRESSES INTERVAL_MS EMBEDDED_KEYS DISPATCHER_KEYS
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <thread>

#include "platform/real/sdl_platform.h"
#include "platform/real/voices.h"

namespace {

std::int64_t nowNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec;
}

void presses(platform::real::SdlPlatform& p, int n, int intervalMs, const char* file) {
    FILE* out = std::fopen(file, "w");
    if (!out) return;
    const char* letters = "abcdefghijklmnopqrstuvwxyz";
    for (int i = 0; i < n; ++i) {
        std::string letter(1, letters[i % 26]);
        std::int64_t t = nowNs();
        p.speak("", 2);
        p.speak(letter, 1);
        std::fprintf(out, "send %lld %s\n", static_cast<long long>(t), letter.c_str());
        std::this_thread::sleep_for(std::chrono::milliseconds(intervalMs));
    }
    // Long texts, cut off once they are heard.
    for (int i = 0; i < 5; ++i) {
        p.speak("You are at hole number three. distance four hundred yards. on your left is a river.", 1);
        std::this_thread::sleep_for(std::chrono::milliseconds(900));
        std::fprintf(out, "cut %lld\n", static_cast<long long>(nowNs()));
        p.speak("", 2);
        std::this_thread::sleep_for(std::chrono::milliseconds(intervalMs + 600));
    }
    std::fclose(out);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: bench_voices PRESSES INTERVAL_MS EMBEDDED_KEYS DISPATCHER_KEYS\n");
        return 2;
    }
    int n = std::atoi(argv[1]), interval = std::atoi(argv[2]);
    platform::real::SdlPlatform p;
    p.createVoice();
    p.setVoice(0);
    presses(p, n, interval, argv[3]);
    int embedded = platform::real::voiceCount();
    if (p.voiceCount() <= embedded) {
        std::fprintf(stderr, "speech-dispatcher offers no voice\n");
        return 1;
    }
    p.setVoice(embedded);
    std::fprintf(stderr, "speech-dispatcher voice: %s\n", p.voiceName(embedded).c_str());
    p.speak("Ready.", 0);
    presses(p, n, interval, argv[4]);
    p.shutdown();
    return 0;
}
