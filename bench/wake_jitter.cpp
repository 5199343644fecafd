// How late this machine wakes a thread that sleeps for 1 ms, over ten
// seconds: an audio thread that sleeps between periods misses its turn by
// as much. With PulseAudio's 256-frame stream the sink's own 1.3 ms are all
// the slack there is, so a machine whose wake-ups are late by more than that
// drops out whatever the game does (dropouts.sh). Run it once as is and once
// under `chrt -f 50` to see what realtime priority would change.
// usage: bench_wake_jitter [SECONDS]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "bench_stats.h"

int main(int argc, char** argv) {
    using clock = std::chrono::steady_clock;
    const double seconds = argc > 1 ? std::atof(argv[1]) : 10.0;
    const auto nap = std::chrono::milliseconds(1);
    std::vector<double> late;
    const auto end = clock::now() + std::chrono::duration<double>(seconds);
    while (clock::now() < end) {
        auto t0 = clock::now();
        std::this_thread::sleep_for(nap);
        late.push_back(std::chrono::duration<double, std::milli>(clock::now() - t0 - nap).count());
    }
    int over1 = 0, over4 = 0;
    for (double d : late) {
        over1 += d > 1.33;
        over4 += d > 4.0;
    }
    bench::printFigures("wake-up after a 1 ms sleep, late by", late);
    std::printf("late past the sink's 1.3 ms: %d times, past 4 ms: %d times in %.0f s\n", over1, over4, seconds);
    return 0;
}
