// How far the mixer's reported play cursor is from what the listener hears.
//
// SDL's output: a simulated device plays frames at exactly its rate and asks
// for each block when it needs it, plus a scheduling delay drawn at random
// (the audio thread is never early, often a little late, now and then very
// late). The harness calls the mixer's render() at those moments, asks for
// the play cursor of a looping sound at random moments in between, and
// compares it with the sound's frame that the device is playing then.
//
// Our PulseAudio output: a simulated server takes the stream for its sink in
// blocks, each at the moment the sink's clock reaches it, and answers the
// output's questions (every 20 ms, late at random) with how far it has read
// and its own time. The output keeps 60 ms rendered ahead and now and then
// writes over them for a change of volume. The heard frame is the one the
// sink takes, as the rig's recording of the sink's monitor hears it.
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

struct ServerScenario {
    const char* name;
    int block;            // frames the sink takes at once
    double meanDelayMs;   // how late our thread wakes
};

std::vector<double> measureServer(const ServerScenario& s) {
    const int rate = 48000;
    const double nsPerFrame = 1e9 / rate, step = 44100.0 / rate;
    const std::int64_t start = 1000000000000;   // the sink takes frame 0 here
    Mixer mixer(rate, 0);
    platform::Wave wave = soundToPlay();
    int id = mixer.add(wave);
    mixer.play(id, true, 0);
    std::mt19937 rng(13);
    std::exponential_distribution<double> late(1.0 / s.meanDelayMs);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<float> block;
    std::vector<double> errors;
    auto renderTo = [&](std::int64_t end) {
        std::int64_t from = mixer.rendered();
        if (end <= from) return;
        block.resize(size_t(2 * (end - from)));
        mixer.render(block.data(), int(end - from));
    };
    // Read by the sink at server time t: every block whose moment has come.
    auto readAt = [&](double t) { return (std::floor((t - double(start)) / nsPerFrame / s.block) + 1) * s.block; };
    double t = double(start);
    for (int tick = 0; tick < 3000; ++tick) {
        double wake = double(start) + tick * 20e6 + late(rng) * 1e6;
        double answered = wake - unit(rng) * 0.5e6;
        mixer.reached(std::int64_t(readAt(answered)), std::int64_t(answered));
        if (tick % 5 == 2) {
            mixer.setVolume(id, tick % 10 == 2 ? -600 : 0);
            mixer.takeChange();
            mixer.rewind(std::int64_t(mixer.heardFrame(std::int64_t(wake)) + 48));
        }
        renderTo(std::int64_t(mixer.heardFrame(std::int64_t(wake))) + 60 * rate / 1000);
        for (int q = 0; q < 8 && tick > 50; ++q) {
            t = wake + unit(rng) * 20e6;
            double truth = std::fmod((t - double(start)) / nsPerFrame + s.block, double(wave.frames()) / step) * step;
            double told = double(mixer.position(id, std::int64_t(t)).play / wave.blockAlign);
            double diff = std::fabs(told - truth);
            diff = std::min(diff, double(wave.frames()) - diff);
            errors.push_back(diff / 44.1);
        }
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
    const ServerScenario servers[] = {
        {"PulseAudio, 2 ms sink blocks, our thread late 0.3 ms", 96, 0.3},
        {"PulseAudio, 10 ms sink blocks, our thread late 2 ms", 480, 2.0},
    };
    std::printf("play cursor error against the heard position (target: p99 under 1 ms)\n");
    for (const auto& s : scenarios) bench::printFigures(s.name, measure(s));
    for (const auto& s : servers) bench::printFigures(s.name, measureServer(s));
    return 0;
}
