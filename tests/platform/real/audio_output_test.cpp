// The sound output: which one plays, the stream stopping while nothing
// sounds and starting again, and our own stream on a live PulseAudio null
// sink, whose play cursor must be the sound the sink's monitor records.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <thread>

#include "headless.h"
#include "platform/real/audio_output.h"
#include "test_waves.h"
#include "x_session.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using platform::real::AudioOutput;
using platform::real::monotonicNs;

// Waits up to twenty seconds for `done`; whether it came is the test's to check.
bool eventually(const std::function<bool()>& done) {
    for (int i = 0; i < 2000 && !done(); ++i) std::this_thread::sleep_for(10ms);
    return done();
}

fs::path scratch(const std::string& name) {
    return fs::temp_directory_path() / ("greenlark-output-" + std::to_string(getpid()) + "-" + name);
}

TEST(AudioOutput, PulseAudioFirstUnlessSdlIsChosen) {
    struct Case {
        const char *chosen, *driver;
        bool pulse;
    } cases[] = {{nullptr, nullptr, true},  {nullptr, "pulseaudio", true}, {nullptr, "disk", false},
                 {"sdl", nullptr, false},   {"pulse", "dummy", true},      {"sdl", "pulseaudio", false}};
    for (const Case& c : cases)
        EXPECT_EQ(platform::real::pulseFirst(c.chosen, c.driver), c.pulse)
            << (c.chosen ? c.chosen : "-") << " " << (c.driver ? c.driver : "-");
}

// No server answers: SDL's output plays, stops after its quiet stretch and
// starts again for a sound, and for speech.
TEST(AudioOutput, WithoutAServerSdlPlaysAndSleepsWhenQuiet) {
    realtest::Headless env(scratch("none.raw"));
    env.set("SDL_AUDIODRIVER", "dummy");
    env.set("GREENLARK_AUDIO", "pulse");
    env.set("PULSE_SERVER", "unix:" + scratch("no-server").string());
    AudioOutput out(SDL_USEREVENT, 100);
    ASSERT_EQ(out.kind(), "sdl");
    auto& mixer = out.mixer();
    ASSERT_TRUE(eventually([&] { return !out.streaming(); }));
    int id = mixer.add(realtest::rampWave(2400));
    mixer.play(id, false, monotonicNs());
    out.wake();
    EXPECT_TRUE(eventually([&] { return out.streaming(); }));
    EXPECT_TRUE(eventually([&] { return mixer.status(id, monotonicNs()) == 0; })) << "it was heard out";
    ASSERT_TRUE(eventually([&] { return !out.streaming(); }));
    std::vector<float> words(4800, 0.25f);
    out.wake();
    mixer.speech().push(mixer.speech().generation(), words.data(), words.size());
    EXPECT_TRUE(eventually([&] { return !mixer.speechAudible(monotonicNs()); })) << "speech was heard out";
}

// A private PulseAudio with a null sink "cap", and a recording of its monitor
// with the monotonic time each read came back at.
class LivePulse : public ::testing::Test {
protected:
    void SetUp() override {
        for (const char* tool : {"pulseaudio", "pactl", "parec"})
            if (!realtest::onPath(tool)) GTEST_SKIP() << "needs " << tool;
        for (const char* sub : {"home", "xdg/pulse"}) fs::create_directories(dir / sub);
        fs::permissions(dir / "xdg", fs::perms::owner_all);
        env.set("HOME", (dir / "home").string());
        env.set("XDG_RUNTIME_DIR", (dir / "xdg").string());
        env.set("PULSE_SERVER", "");
        env.set("SDL_AUDIODRIVER", "");
        ASSERT_TRUE(startServer());
        recorder = popen("exec parec -d cap.monitor --raw --format=s16le --rate=48000 --channels=2 --latency-msec=2",
                         "r");
        ASSERT_TRUE(recorder);
        reader = std::thread([this] {
            std::int16_t block[2 * 96];
            for (ssize_t got; (got = read(fileno(recorder), block, sizeof block)) > 0; recorded = long(left.size())) {
                for (ssize_t i = 0; i < got / 2; i += 2) left.push_back(block[i]);
                reads.push_back({long(left.size()), monotonicNs()});
            }
        });
    }
    void TearDown() override {
        stopRecording();
        stopServer();
        fs::remove_all(dir);
    }
    static int sh(const std::string& command) { return std::system(command.c_str()); }
    bool startServer() {
        sh("pulseaudio -D -n --exit-idle-time=-1 --disallow-exit --load=module-native-protocol-unix "
           "--load='module-null-sink sink_name=cap rate=48000 format=s16le channels=2' --log-target=file:" +
           (dir / "pulse.log").string());
        return eventually([] { return sh("pactl set-default-sink cap 2>/dev/null") == 0; });
    }
    void stopServer() {
        sh("kill $(cat " + (dir / "xdg/pulse/pid").string() + ") 2>/dev/null");
        eventually([&] { return !fs::exists(dir / "xdg/pulse/pid"); });
    }
    void stopRecording() {
        if (!recorder) return;
        sh("pkill -P " + std::to_string(getpid()) + " -x parec");
        reader.join();
        pclose(recorder);
        recorder = nullptr;
    }
    // When each click was heard: a frame cannot be heard later than the read
    // that brought it, and the earliest of those bounds places every frame.
    std::vector<double> clicks() const {
        double origin = 1e300;
        for (auto [frames, ns] : reads) origin = std::min(origin, double(ns) - frames * 1e9 / 48000);
        std::vector<double> at;
        for (size_t i = 0, quiet = 48000; i < left.size(); ++i, ++quiet) {
            if (std::abs(left[i]) < 16000) continue;
            if (quiet > 4800) at.push_back(origin + double(i) * 1e9 / 48000);
            quiet = 0;
        }
        return at;
    }

    fs::path dir = scratch("pulse");
    realtest::Headless env{scratch("unused.raw")};
    std::FILE* recorder = nullptr;
    std::thread reader;
    std::vector<std::int16_t> left;
    std::vector<std::pair<long, std::int64_t>> reads;
    std::atomic<long> recorded{0};
};

// A loop with a click every half second, its volume changed now and then
// (written over what is buffered), and its play cursor read at random
// moments: three readings in four at least are within a millisecond of the
// sound, on a loaded machine too (most are within a quarter of one).
TEST_F(LivePulse, OurStreamPlaysWhereItsCursorSaysAndSleepsWhenQuiet) {
    AudioOutput out(SDL_USEREVENT, 300);
    ASSERT_EQ(out.kind(), "pulse");
    ASSERT_EQ(out.rate(), 48000);
    ASSERT_TRUE(eventually([&] { return recorded > 48000; })) << "the recorder never settled";
    std::vector<double> loop(24000, 0.0);
    std::fill(loop.begin(), loop.begin() + 48, 0.9);
    auto& mixer = out.mixer();
    int id = mixer.add(realtest::makeWave(1, 16, 48000, loop));
    mixer.play(id, true, monotonicNs());
    out.wake();
    std::vector<std::pair<std::int64_t, long>> told;
    std::mt19937 rng(5);
    for (auto until = monotonicNs() + 6000000000; monotonicNs() < until;) {
        std::int64_t now = monotonicNs();
        told.push_back({now, mixer.position(id, now).play / 2});
        std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution<>(500, 7000)(rng)));
        if (told.size() % 200 == 0) mixer.setVolume(id, -int(told.size() % 400));
    }
    mixer.stop(id, monotonicNs());
    EXPECT_TRUE(eventually([&] { return !out.streaming(); })) << "the stream stops when quiet";
    mixer.play(id, false, monotonicNs());
    out.wake();
    EXPECT_TRUE(eventually([&] { return out.streaming(); })) << "and starts again for a sound";
    EXPECT_TRUE(out.rewrites()) << "the server took our writes over buffered sound";
    stopRecording();
    auto heard = clicks();
    ASSERT_GT(heard.size(), 8u);
    int near = 0, measured = 0;
    for (auto [ns, frame] : told) {
        auto k = size_t(std::upper_bound(heard.begin(), heard.end(), double(ns)) - heard.begin());
        if (k < 2 || k >= heard.size() || std::abs(heard[k] - heard[k - 1] - 5e8) > 1e6) continue;
        double error = std::fmod((double(frame) - (double(ns) - heard[k - 1]) * 48000 / 1e9) / 48 + 750, 500) - 250;
        ++measured;
        near += std::fabs(error) < 1.0;
    }
    ASSERT_GT(measured, 100);
    EXPECT_GE(near * 4, measured * 3) << near << " of " << measured << " cursors within 1 ms of the sound";
    // The server goes away: what was to be heard still ends, in silence.
    stopServer();
    std::vector<float> words(48000, 0.25f);
    mixer.speech().push(mixer.speech().generation(), words.data(), words.size());
    out.wake();
    EXPECT_TRUE(eventually([&] { return !mixer.speechAudible(monotonicNs()); })) << "speech never ended";
    ASSERT_TRUE(startServer());
    mixer.play(id, false, monotonicNs());
    out.wake();
    EXPECT_TRUE(eventually([&] { return out.streaming(); })) << "the server came back, and the stream with it";
}

}  // namespace
