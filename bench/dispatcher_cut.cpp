// speech-dispatcher on its own, without the game: a bare client speaks texts
// of a few, ten and thirty-four words and cancels each while it is heard,
// printing "cut LABEL NS" (monotonic time just before the cancel) for
// dispatcher_cut.sh to find the last audible sample after it. The texts go
// at the game's priority and module, so the figures are the server's share
// of the game's silencing.
//
// usage: bench_dispatcher_cut [ROUNDS]
#include <libspeechd.h>
#include <time.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

long long monotonicNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1000000000LL + t.tv_nsec;
}

struct Case {
    const char* label;
    const char* text;
    int cutAfterMs;   // into the text, with a little spread added per round
};

}  // namespace

int main(int argc, char** argv) {
    int rounds = argc > 1 ? std::atoi(argv[1]) : 10;
    char* error = nullptr;
    SPDConnection* c = spd_open2("greenlark-bench", "speech", nullptr, SPD_MODE_THREADED, nullptr, 0, &error);
    std::free(error);
    if (!c) {
        std::fprintf(stderr, "speech-dispatcher is not running\n");
        return 1;
    }
    spd_set_output_module(c, "espeak-ng");
    spd_set_language(c, "en");
    const Case cases[] = {
        {"4-words", "Ball in the rough.", 400},
        {"10-words", "The ball rolls over the green past the flag and down.", 900},
        {"34-words",
         "The ball rolls over the green past the flag and down the slope into the long grass beside the pond "
         "where the ducks sit under the old oak tree by the gate.",
         900},
    };
    for (const Case& k : cases) {
        for (int i = 0; i < rounds; ++i) {
            spd_say(c, SPD_MESSAGE, k.text);
            std::this_thread::sleep_for(std::chrono::milliseconds(k.cutAfterMs + (i % 7) * 23));
            std::printf("cut %s %lld\n", k.label, monotonicNs());
            std::fflush(stdout);
            spd_cancel(c);
            std::this_thread::sleep_for(std::chrono::milliseconds(1200));
        }
    }
    spd_close(c);
    return 0;
}
