// How far the mixer's reported play cursor is from what the listener hears.
//
// A simulated device plays frames at exactly its rate and asks for each block
// when it needs it, plus a scheduling delay drawn at random (the audio
// thread is never early, often a little late, now and then very late). The
// harness calls the mixer's render() at those moments, asks for the play
// cursor of a looping sound at random moments in between, and compares it
// with the sound's frame that the device is playing at that moment.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

#include "bench_stats.h"
#include "platform/real/mixer.h"

namespace {

using platform::real::Mixer;

struct Scenario {
    const char* name;
    int rate;
    int period;
    double meanDelayMs;   // typical lateness of the audio thread
    double spikeChance;   // share of blocks that come very late
    double spikeMs;       // upper bound of such lateness
};

// Two seconds of 16-bit stereo noise at 44100 Hz.
platform::Wave soundToPlay() {
    platform::Wave w;
    w.channels = 2;
    w.rate = 44100;
    w.bits = 16;
    w.blockAlign = 4;
    w.data.resize(44100 * 2 * 4);
    std::mt19937 rng(7);
    for (auto& b : w.data) b = std::uint8_t(rng() >> 24);
    return w;
}

double delayMs(const Scenario& s, std::mt19937& rng) {
    std::exponential_distribution<double> usual(1.0 / s.meanDelayMs);
    std::uniform_real_distribution<double> unit(0, 1);
    double d = usual(rng);
    if (unit(rng) < s.spikeChance) d += unit(rng) * s.spikeMs;
    double limit = 0.9 * 1000.0 * s.period / s.rate;   // later than this the device would run dry
    return std::min(d, limit);
}

std::vector<double> measure(const Scenario& s) {
    Mixer mixer(s.rate, s.period);
    platform::Wave wave = soundToPlay();
    int id = mixer.add(wave);
    mixer.play(id, true, 0);
    const double nsPerFrame = 1e9 / s.rate, step = 44100.0 / s.rate;
    const std::int64_t start = 1000000000000;   // the device plays frame 0 here
    std::mt19937 rng(11);
    std::vector<float> block(size_t(s.period) * 2);
    std::vector<double> errors;
    auto callAt = [&](long k) {
        double due = double(start) + double(k * s.period - s.period) * nsPerFrame;
        return std::int64_t(due + delayMs(s, rng) * 1e6);
    };
    std::int64_t when = callAt(0);
    for (long k = 0; k < 20000; ++k) {
        mixer.render(block.data(), s.period, when);
        std::int64_t next = callAt(k + 1);
        for (int q = 0; q < 4 && k > 100; ++q) {
            std::int64_t t = when + std::int64_t(double(next - when) * std::uniform_real_distribution<>(0, 1)(rng));
            double truth = std::fmod(double(t - start) / nsPerFrame * step, double(wave.frames()));
            double told = double(mixer.position(id, t).play / wave.blockAlign);
            double diff = std::fabs(told - truth);
            diff = std::min(diff, double(wave.frames()) - diff);
            errors.push_back(diff / 44.1);
        }
        when = next;
    }
    return errors;
}

}  // namespace

int main() {
    const Scenario scenarios[] = {
        {"256 frames at 48000, light jitter", 48000, 256, 0.1, 0.01, 3.0},
        {"256 frames at 48000, heavy jitter", 48000, 256, 0.5, 0.05, 4.0},
        {"480 frames at 48000 (dummy/disk driver)", 48000, 480, 0.3, 0.02, 5.0},
        {"441 frames at 44100 (dummy/disk driver)", 44100, 441, 0.3, 0.02, 5.0},
    };
    std::printf("play cursor error against the heard position (target: p99 under 2 ms)\n");
    for (const auto& s : scenarios) bench::printFigures(s.name, measure(s));
    return 0;
}
