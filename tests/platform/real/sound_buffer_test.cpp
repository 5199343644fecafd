// The sound buffers behave the same on both platforms: every case here runs
// against the simulated device and against the real one (our mixer on SDL's
// disk audio driver). What the game may rely on, on either side:
//
// - a buffer is made from a PCM wave file, 8 or 16 bit, mono or stereo, at
//   100 to 200000 samples per second, with at least one frame of sound; it
//   starts stopped at position 0 with its file's rate. Anything else (a
//   missing file, no RIFF WAVE, float or 24-bit samples, no data chunk, an
//   empty one) is a Failure, and so is any buffer call while the sound device
//   is not open; closing the device releases every buffer.
// - volume -10000 (silence) to 0, pan -10000 to 10000, frequency 100 to
//   200000 or 0 for the file's own rate, position 0 up to the last byte of
//   the data, rounded down to a whole frame: a value outside is a Failure and
//   changes nothing.
// - status 1 exactly while a one-shot plays, 5 while looping, 0 stopped; a
//   one-shot that runs out stops with its play cursor back at 0; a loop runs
//   on, its cursor inside the data.
// - play on a playing buffer neither rewinds nor interrupts it; its loop
//   flag is the one last given. Stop keeps the position and is harmless on a
//   stopped buffer; restore changes nothing; a later play goes on from the
//   position.
// - release silences and ends a buffer; every call on an id that is not a
//   buffer, released or never made, is a Failure.
//
// What differs and is not compared: the write cursor (each device has its
// own); when exactly a sound is heard to end (the real device runs on the
// wall clock and its listener is a block behind, the simulated one on the
// virtual clock); a machine without a sound device, which only the real
// platform can meet.
#include <gtest/gtest.h>

#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "headless.h"
#include "platform/real/sdl_platform.h"
#include "platform/sim/runner.h"
#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"

namespace fs = std::filesystem;

namespace {

using platform::Failure;

// A RIFF WAVE file of `frames` frames of a quiet ramp.
struct WaveSpec {
    int tag = 1;   // 1 PCM, 3 float
    int channels = 1;
    int bits = 16;
    int rate = 11025;
    long frames = 1000;
    bool dataChunk = true;
};

void le(std::string& s, long v, int n) {
    for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xff);
}

std::string riff(const WaveSpec& w) {
    int align = w.channels * w.bits / 8;
    std::string f = "WAVEfmt ", data(size_t(w.frames * align), '\3');
    for (auto [v, n] : {std::pair<long, int>{16, 4}, {w.tag, 2}, {w.channels, 2}, {w.rate, 4}, {w.rate * align, 4},
                        {align, 2}, {w.bits, 2}})
        le(f, v, n);
    if (w.dataChunk) {
        f += "data";
        le(f, long(data.size()), 4);
        f += data;
    } else {
        f += std::string("LIST\4\0\0\0INFO", 12);
    }
    std::string head = "RIFF";
    le(head, long(f.size()), 4);
    return head + f;
}

// The simulated platform on a script that only waits, its transcript
// thrown away: each turn of the event loop is one virtual millisecond.
class SimSide {
public:
    explicit SimSide(const std::string& folder)
        : script_("wait 100000\n"), runner_(script_, false, 1e6), p_(options(folder), runner_) {
        std::string error;
        runner_.preload(error);
        sim::setSink(+[](const std::string&) {});
    }
    ~SimSide() { sim::setSink(nullptr); }
    platform::Platform& os() { return p_; }
    // Turns the event loop until done() or until `ms` of the platform's
    // time went by; done()'s last answer.
    template <class Done>
    bool within(int ms, Done done) {
        for (int i = 0; i < ms && !done(); ++i) p_.yield();
        return done();
    }

private:
    static sim::Options options(const std::string& folder) {
        sim::Options o;
        o.game = o.cwd = o.docs = folder;
        return o;
    }
    std::istringstream script_;
    sim::Runner runner_;
    sim::SimPlatform p_;
};

class RealSide {
public:
    explicit RealSide(const std::string& folder) : env_(folder + "/out.raw") {}
    platform::Platform& os() { return p_; }
    template <class Done>
    bool within(int ms, Done done) {
        auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
        while (!done() && std::chrono::steady_clock::now() < until) p_.yield();
        return done();
    }

private:
    realtest::Headless env_;
    platform::real::SdlPlatform p_;
};

// Each test in a folder of its own, gone when it ends.
template <class Side>
class SoundBuffers : public ::testing::Test {
protected:
    SoundBuffers() : side((fs::create_directories(dir), dir)) { os().openSoundDevice(); }
    ~SoundBuffers() override { fs::remove_all(dir); }

    platform::Platform& os() { return side.os(); }
    std::string file(const std::string& name, const std::string& bytes) {
        std::ofstream(dir + "/" + name, std::ios::binary) << bytes;
        return dir + "/" + name;
    }
    int buffer(const WaveSpec& w, const std::string& name = "sound.wav") {
        return os().createBuffer(file(name, riff(w)));
    }
    long cursor(int id) { return os().getCurrentPosition(id).play; }
    template <class Done>
    bool within(int ms, Done done) {
        return side.within(ms, done);
    }

    std::string dir = (fs::temp_directory_path() / ("greenlark-buffers-" + std::to_string(getpid()) + "-" +
                                                    ::testing::UnitTest::GetInstance()->current_test_info()->name()))
                          .string();
    Side side;
};

using Sides = ::testing::Types<SimSide, RealSide>;
class SideNames {
public:
    template <class T>
    static std::string GetName(int) {
        return std::is_same_v<T, SimSide> ? "Simulated" : "Real";
    }
};
TYPED_TEST_SUITE(SoundBuffers, Sides, SideNames);

// Every format a buffer takes makes one, stopped at 0 with its file's rate;
// every file it cannot play makes none.
TYPED_TEST(SoundBuffers, AFileMakesABufferOrAFailure) {
    auto& os = this->os();
    const WaveSpec formats[] = {
        {1, 1, 8, 11025}, {1, 1, 16, 22050}, {1, 2, 8, 100}, {1, 2, 16, 200000}, {1, 1, 16, 8000, 1}};
    std::vector<int> ids;
    for (const WaveSpec& w : formats) {
        int id = this->buffer(w);
        EXPECT_EQ(os.getStatus(id), 0);
        EXPECT_EQ(this->cursor(id), 0);
        EXPECT_EQ(os.getFrequency(id), w.rate);
        EXPECT_EQ(std::count(ids.begin(), ids.end(), id), 0) << "a new id for each, one file or not";
        ids.push_back(id);
    }
    std::string good = riff({}), notWave = good;
    notWave.replace(8, 4, "AVI ");
    for (const auto& [name, bytes] : std::vector<std::pair<std::string, std::string>>{
             {"empty.wav", ""}, {"text.wav", "Hello, this is no sound at all."}, {"cut.wav", good.substr(0, 30)},
             {"avi.wav", notWave}})
        EXPECT_THROW(os.createBuffer(this->file(name, bytes)), Failure) << name;
    EXPECT_THROW(os.createBuffer(this->dir + "/missing.wav"), Failure);
    WaveSpec noData, silent;
    noData.dataChunk = false;
    silent.frames = 0;
    for (const WaveSpec& w : {WaveSpec{3, 1, 32, 11025}, WaveSpec{1, 1, 24, 11025}, WaveSpec{1, 3, 16, 11025},
                              WaveSpec{1, 1, 16, 99}, WaveSpec{1, 1, 16, 200001}, noData, silent})
        EXPECT_THROW(this->buffer(w, "bad.wav"), Failure) << w.tag << " " << w.bits << " " << w.rate;
}

// Each setting takes its range and refuses what lies outside, changing
// nothing then; frequency 0 is the file's own, a position rounds down to a
// frame.
TYPED_TEST(SoundBuffers, SettingsWithinTheirRangesOnly) {
    auto& os = this->os();
    int id = this->buffer({1, 2, 16, 22050, 1000});   // 4000 bytes
    for (int v : {0, -1, -5200, -10000}) EXPECT_NO_THROW(os.setVolumeDb(id, v)) << v;
    for (int v : {1, 5200, -10001}) EXPECT_THROW(os.setVolumeDb(id, v), Failure) << v;
    for (int p : {0, -899, 899, -10000, 10000}) EXPECT_NO_THROW(os.setPan(id, p)) << p;
    for (int p : {-10001, 10001}) EXPECT_THROW(os.setPan(id, p), Failure) << p;
    for (int hz : {11025, 100, 200000}) {
        os.setFrequency(id, hz);
        EXPECT_EQ(os.getFrequency(id), hz);
    }
    for (int hz : {99, 1, -1, 200001}) EXPECT_THROW(os.setFrequency(id, hz), Failure) << hz;
    EXPECT_EQ(os.getFrequency(id), 200000) << "a refused value changes nothing";
    os.setFrequency(id, 0);
    EXPECT_EQ(os.getFrequency(id), 22050);
    os.setCurrentPosition(id, 3999);
    EXPECT_EQ(this->cursor(id), 3996);
    for (long bad : {4000L, -1L}) EXPECT_THROW(os.setCurrentPosition(id, bad), Failure) << bad;
    EXPECT_EQ(this->cursor(id), 3996) << "a refused value changes nothing";
}

// One buffer's life: a play that a second play neither rewinds nor stops,
// its loop flag the last given; stop keeping the place, which restore leaves
// and the next play goes on from; the end heard out, back at the start.
TYPED_TEST(SoundBuffers, ABuffersLife) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 16, 11025, 5512});   // half a second
    os.stop(id);
    EXPECT_EQ(os.getStatus(id), 0) << "stop is harmless on a stopped buffer";
    os.play(id, 0);
    EXPECT_EQ(os.getStatus(id), 1);
    ASSERT_TRUE(this->within(5000, [&] { return this->cursor(id) >= 2000; })) << "the cursor moves";
    long before = this->cursor(id);
    os.play(id, 1);
    EXPECT_EQ(os.getStatus(id), 5);
    EXPECT_GE(this->cursor(id), before) << "no rewind";
    os.play(id, 0);
    os.stop(id);
    long stopped = this->cursor(id);
    EXPECT_GE(stopped, before);
    this->within(50, [] { return false; });
    os.restore(id);
    EXPECT_EQ(this->cursor(id), stopped);
    EXPECT_EQ(os.getStatus(id), 0);
    os.play(id, 0);
    EXPECT_GE(this->cursor(id), stopped) << "it goes on from there";
    ASSERT_TRUE(this->within(5000, [&] { return os.getStatus(id) == 0; }));
    EXPECT_EQ(this->cursor(id), 0);
    os.play(id, 0);
    EXPECT_EQ(os.getStatus(id), 1) << "it plays again";
    int loop = this->buffer({1, 1, 8, 11025, 551});   // a twentieth of a second
    os.play(loop, 1);
    long furthest = 0;
    this->within(300, [&] {
        furthest = std::max(furthest, this->cursor(loop));
        return false;
    });
    EXPECT_EQ(os.getStatus(loop), 5);
    EXPECT_GT(furthest, 0);
    EXPECT_LT(furthest, 551) << "a loop's cursor stays inside its data";
}

// Closing the device releases every buffer; a released or unknown id is a
// Failure in every call, and the other buffers are untouched.
TYPED_TEST(SoundBuffers, ReleasedAndUnknownIdsFail) {
    auto& os = this->os();
    int closed = this->buffer({});
    os.play(closed, 1);
    os.closeSoundDevice();
    EXPECT_THROW(this->buffer({}), Failure) << "no buffer while the device is closed";
    os.openSoundDevice();
    int id = this->buffer({}), other = this->buffer({});
    os.releaseBuffer(id);
    for (int bad : {closed, id, 0, -1, 12345}) {
        EXPECT_THROW(os.releaseBuffer(bad), Failure) << bad;
        EXPECT_THROW(os.getFrequency(bad), Failure) << bad;
        EXPECT_THROW(os.setFrequency(bad, 11025), Failure) << bad;
        EXPECT_THROW(os.setCurrentPosition(bad, 0), Failure) << bad;
        EXPECT_THROW(os.getCurrentPosition(bad), Failure) << bad;
        EXPECT_THROW(os.setVolumeDb(bad, 0), Failure) << bad;
        EXPECT_THROW(os.setPan(bad, 0), Failure) << bad;
        EXPECT_THROW(os.play(bad, 0), Failure) << bad;
        EXPECT_THROW(os.getStatus(bad), Failure) << bad;
        EXPECT_THROW(os.stop(bad), Failure) << bad;
        EXPECT_THROW(os.restore(bad), Failure) << bad;
    }
    EXPECT_EQ(os.getStatus(other), 0);
}

}  // namespace
