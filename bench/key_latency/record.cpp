// Records a PulseAudio source in small reads and notes, for every read, the
// monotonic time it returned and the frames received so far, so that each
// recorded sample can be placed in time.
//
// usage: bench_record SOURCE OUTPREFIX READ_FRAMES
//   OUTPREFIX.raw  s16le stereo at 48 kHz
//   OUTPREFIX.ts   lines "frames_so_far ns"
#include <pulse/error.h>
#include <pulse/simple.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace {

volatile std::sig_atomic_t stopping = 0;

void onSignal(int) { stopping = 1; }

std::int64_t nowNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec;
}

pa_simple* openSource(const char* source, int readFrames) {
    pa_sample_spec format{PA_SAMPLE_S16LE, 48000, 2};
    pa_buffer_attr attr{};
    attr.maxlength = attr.tlength = attr.prebuf = attr.minreq = std::uint32_t(-1);
    attr.fragsize = std::uint32_t(readFrames * 4);
    int err = 0;
    pa_simple* s = pa_simple_new(nullptr, "greenlark-bench", PA_STREAM_RECORD, source, "record", &format, nullptr,
                                 &attr, &err);
    if (!s) std::fprintf(stderr, "bench_record: %s\n", pa_strerror(err));
    return s;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: bench_record SOURCE OUTPREFIX READ_FRAMES\n");
        return 2;
    }
    int readFrames = std::atoi(argv[3]);
    pa_simple* s = openSource(argv[1], readFrames);
    if (!s) return 1;
    std::string prefix = argv[2];
    FILE* raw = std::fopen((prefix + ".raw").c_str(), "wb");
    FILE* ts = std::fopen((prefix + ".ts").c_str(), "w");
    if (!raw || !ts) return 1;
    std::signal(SIGINT, onSignal);
    std::signal(SIGTERM, onSignal);
    std::vector<std::int16_t> block(size_t(readFrames) * 2);
    long long total = 0;
    int err = 0;
    while (!stopping) {
        if (pa_simple_read(s, block.data(), block.size() * 2, &err) < 0) break;
        std::int64_t t = nowNs();
        total += readFrames;
        std::fwrite(block.data(), 4, size_t(readFrames), raw);
        std::fprintf(ts, "%lld %lld\n", total, static_cast<long long>(t));
    }
    std::fclose(raw);
    std::fclose(ts);
    pa_simple_free(s);
    return 0;
}
