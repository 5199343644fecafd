// Presses keys in an X window through XTEST, printing the monotonic time
// just before each press.
//
// usage: bench_keys WINDOW_ID COUNT INTERVAL_MS KEY...
//   the keys are used in turn: "bench_keys 0x400001 20 400 a b c"
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

extern "C" {
#include <xdo.h>
}

namespace {

std::int64_t nowNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fprintf(stderr, "usage: bench_keys WINDOW_ID COUNT INTERVAL_MS KEY...\n");
        return 2;
    }
    xdo_t* x = xdo_new(nullptr);
    if (!x) return 1;
    Window w = std::strtoul(argv[1], nullptr, 0);
    int count = std::atoi(argv[2]);
    int interval = std::atoi(argv[3]);
    int keys = argc - 4;
    xdo_focus_window(x, w);
    usleep(200000);
    for (int i = 0; i < count; ++i) {
        const char* key = argv[4 + i % keys];
        std::int64_t t = nowNs();
        xdo_send_keysequence_window_down(x, CURRENTWINDOW, key, 0);
        std::printf("send %lld %s\n", static_cast<long long>(t), key);
        std::fflush(stdout);
        usleep(30000);
        xdo_send_keysequence_window_up(x, CURRENTWINDOW, key, 0);
        usleep(useconds_t(interval) * 1000);
    }
    xdo_free(x);
    return 0;
}
