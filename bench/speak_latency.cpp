// From asking for a ten-word sentence to its first synthesised sample: the
// speech thread wakes, espeak-ng starts the sentence, the lead-in silence is
// dropped, and the first audible samples reach the mixer's speech feed. The
// feed notes the moment they arrive, so a slow watcher does not count.
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include "bench_stats.h"
#include "platform/real/device_clock.h"
#include "platform/real/speech_engine.h"
#include "platform/real/speech_feed.h"

int main() {
    using namespace platform::real;
    SpeechFeed feed;
    SpeechEngine engine(feed, 48000);
    if (!engine.ready()) {
        std::printf("espeak-ng did not start\n");
        return 1;
    }
    const char* sentences[] = {
        "The ball lies in the rough, two hundred yards from the green.",
        "Please choose the club you would like to use for this shot.",
    };
    std::vector<double> firstSample;
    for (int i = 0; i < 200; ++i) {
        std::int64_t asked = monotonicNs();
        engine.say(sentences[i % 2]);
        while (engine.busy()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        firstSample.push_back(double(feed.readySince() - asked) / 1e6);
        feed.flush();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    std::printf("speak to first synthesised sample (target: under 5 ms)\n");
    bench::printFigures("ten-word sentence", firstSample);
    return 0;
}
