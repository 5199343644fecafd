// The play cursor on a live device: plays a half-second loop with a click at
// its start through the real platform and, for a while, notes the monotonic
// time and the reported play cursor at random moments. cursor_live.sh
// records what the device really played and compares.
//
// usage: bench_cursor_live FOLDER SECONDS
//   FOLDER/click.wav   the loop (written here)
//   FOLDER/cursor      lines "ns play_bytes"
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <thread>

#include "platform/real/device_clock.h"
#include "platform/real/sdl_platform.h"

namespace {

constexpr int kRate = 48000;
constexpr int kLoopFrames = kRate / 2;

void put(std::string& s, unsigned v, int bytes) {
    for (int i = 0; i < bytes; ++i) s += char((v >> (8 * i)) & 0xff);
}

// 16-bit mono: a one-millisecond click, then silence.
std::string clickLoop() {
    std::string f = "RIFF";
    put(f, 36 + kLoopFrames * 2, 4);
    f += "WAVEfmt ";
    put(f, 16, 4);
    put(f, 1, 2);
    put(f, 1, 2);
    put(f, kRate, 4);
    put(f, kRate * 2, 4);
    put(f, 2, 2);
    put(f, 16, 2);
    f += "data";
    put(f, kLoopFrames * 2, 4);
    for (int i = 0; i < kLoopFrames; ++i) put(f, i < kRate / 1000 ? unsigned(std::uint16_t(30000)) : 0u, 2);
    return f;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: bench_cursor_live FOLDER SECONDS\n");
        return 2;
    }
    std::string folder = argv[1];
    std::ofstream(folder + "/click.wav", std::ios::binary) << clickLoop();
    platform::real::SdlPlatform p;
    p.openSoundDevice();
    int id = p.createBuffer(folder + "/click.wav");
    p.play(id, 1);
    std::FILE* out = std::fopen((folder + "/cursor").c_str(), "w");
    std::mt19937 rng(5);
    std::uniform_int_distribution<int> pause(500, 7000);
    auto until = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(argv[2]));
    while (std::chrono::steady_clock::now() < until) {
        long bytes = p.getCurrentPosition(id).play;
        std::fprintf(out, "%lld %ld\n", static_cast<long long>(platform::real::monotonicNs()), bytes);
        std::this_thread::sleep_for(std::chrono::microseconds(pause(rng)));
    }
    std::fclose(out);
    p.shutdown();
    return 0;
}
