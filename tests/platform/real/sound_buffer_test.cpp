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

void le(std::string& s, std::uint32_t v, int n) {
    for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xff);
}

std::string riff(const WaveSpec& w) {
    int align = w.channels * w.bits / 8;
    std::string data;
    for (long i = 0; i < w.frames * align; ++i) data += char(i % 7);
    std::string f = "WAVEfmt ";
    le(f, 16, 4);
    le(f, std::uint32_t(w.tag), 2);
    le(f, std::uint32_t(w.channels), 2);
    le(f, std::uint32_t(w.rate), 4);
    le(f, std::uint32_t(w.rate * align), 4);
    le(f, std::uint32_t(align), 2);
    le(f, std::uint32_t(w.bits), 2);
    if (w.dataChunk) {
        f += "data";
        le(f, std::uint32_t(data.size()), 4);
        f += data;
    } else {
        f += "LIST";
        le(f, 4, 4);
        f += "INFO";
    }
    std::string head = "RIFF";
    le(head, std::uint32_t(f.size()), 4);
    return head + f;
}

// A folder of the test's own, gone when the test ends.
struct Folder {
    Folder() {
        static int made = 0;
        path = (fs::temp_directory_path() /
                ("greenlark-buffers-" + std::to_string(getpid()) + "-" + std::to_string(++made)))
                   .string();
        fs::create_directories(path);
    }
    ~Folder() { fs::remove_all(path); }
    std::string path;
};

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

template <class Side>
class SoundBuffers : public ::testing::Test {
protected:
    SoundBuffers() : side(folder.path) { os().openSoundDevice(); }

    platform::Platform& os() { return side.os(); }
    std::string file(const std::string& name, const std::string& bytes) {
        std::string path = folder.path + "/" + name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    int buffer(const WaveSpec& w, const std::string& name = "sound.wav") { return os().createBuffer(file(name, riff(w))); }
    long cursor(int id) { return os().getCurrentPosition(id).play; }
    // Lets `ms` of the platform's time go by.
    void pass(int ms) { side.within(ms, [] { return false; }); }
    template <class Done>
    bool within(int ms, Done done) {
        return side.within(ms, done);
    }

    Folder folder;
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

TYPED_TEST(SoundBuffers, AGoodFileMakesAStoppedBufferAtItsStartWithItsRate) {
    const WaveSpec formats[] = {{1, 1, 8, 11025}, {1, 1, 16, 22050}, {1, 2, 8, 100}, {1, 2, 16, 200000}};
    std::vector<int> ids;
    for (const WaveSpec& w : formats) {
        int id = this->buffer(w);
        EXPECT_GT(id, 0);
        EXPECT_EQ(this->os().getStatus(id), 0);
        EXPECT_EQ(this->cursor(id), 0);
        EXPECT_EQ(this->os().getFrequency(id), w.rate);
        for (int other : ids) EXPECT_NE(id, other);
        ids.push_back(id);
    }
    int one = this->buffer({}, "one.wav"), two = this->buffer({}, "one.wav");
    EXPECT_NE(one, two) << "two buffers of one file";
}

TYPED_TEST(SoundBuffers, AFileItCannotPlayMakesNoBuffer) {
    auto& os = this->os();
    std::string good = riff({});
    EXPECT_THROW(os.createBuffer(this->folder.path + "/missing.wav"), Failure);
    EXPECT_THROW(os.createBuffer(this->file("empty.wav", "")), Failure);
    EXPECT_THROW(os.createBuffer(this->file("text.wav", "Hello, this is no sound at all.")), Failure);
    EXPECT_THROW(os.createBuffer(this->file("cut.wav", good.substr(0, 30))), Failure);
    std::string notWave = good;
    notWave.replace(8, 4, "AVI ");
    EXPECT_THROW(os.createBuffer(this->file("avi.wav", notWave)), Failure);
    EXPECT_THROW(this->buffer({3, 1, 32, 11025}, "float.wav"), Failure);
    EXPECT_THROW(this->buffer({1, 1, 24, 11025}, "24bit.wav"), Failure);
    EXPECT_THROW(this->buffer({1, 3, 16, 11025}, "three.wav"), Failure);
    EXPECT_THROW(this->buffer({1, 1, 16, 99}, "slow.wav"), Failure);
    EXPECT_THROW(this->buffer({1, 1, 16, 200001}, "fast.wav"), Failure);
    WaveSpec noData;
    noData.dataChunk = false;
    EXPECT_THROW(this->buffer(noData, "nodata.wav"), Failure);
    WaveSpec silent;
    silent.frames = 0;
    EXPECT_THROW(this->buffer(silent, "silent.wav"), Failure);
    WaveSpec oneFrame;
    oneFrame.frames = 1;
    EXPECT_GT(this->buffer(oneFrame, "one.wav"), 0) << "one frame is enough";
}

TYPED_TEST(SoundBuffers, BuffersLiveWhileTheDeviceIsOpen) {
    auto& os = this->os();
    int id = this->buffer({});
    os.play(id, 1);
    os.closeSoundDevice();
    EXPECT_THROW(os.getStatus(id), Failure);
    EXPECT_THROW(this->buffer({}), Failure);
    os.closeSoundDevice();
    os.openSoundDevice();
    EXPECT_THROW(os.getStatus(id), Failure) << "closing released it";
    EXPECT_EQ(os.getStatus(this->buffer({})), 0);
}

TYPED_TEST(SoundBuffers, VolumeAndPanWithinTheirRangesOnly) {
    auto& os = this->os();
    int id = this->buffer({});
    for (int v : {0, -1, -5200, -10000}) EXPECT_NO_THROW(os.setVolumeDb(id, v)) << v;
    for (int v : {1, 5200, -10001, -20000}) EXPECT_THROW(os.setVolumeDb(id, v), Failure) << v;
    for (int p : {0, -899, 899, -10000, 10000}) EXPECT_NO_THROW(os.setPan(id, p)) << p;
    for (int p : {-10001, 10001, 20000}) EXPECT_THROW(os.setPan(id, p), Failure) << p;
}

TYPED_TEST(SoundBuffers, FrequencyWithinItsRangeAndZeroForTheFilesOwn) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 16, 22050});
    os.setFrequency(id, 11025);
    EXPECT_EQ(os.getFrequency(id), 11025);
    os.setFrequency(id, 100);
    EXPECT_EQ(os.getFrequency(id), 100);
    os.setFrequency(id, 200000);
    EXPECT_EQ(os.getFrequency(id), 200000);
    for (int hz : {99, 1, -1, -22050, 200001})
        EXPECT_THROW(os.setFrequency(id, hz), Failure) << hz;
    EXPECT_EQ(os.getFrequency(id), 200000) << "a refused value changes nothing";
    os.setFrequency(id, 0);
    EXPECT_EQ(os.getFrequency(id), 22050);
}

TYPED_TEST(SoundBuffers, PositionInsideTheDataRoundedDownToAFrame) {
    auto& os = this->os();
    int id = this->buffer({1, 2, 16, 11025, 1000});   // 4000 bytes
    os.setCurrentPosition(id, 4);
    EXPECT_EQ(this->cursor(id), 4);
    os.setCurrentPosition(id, 3999);
    EXPECT_EQ(this->cursor(id), 3996);
    for (long bad : {4000L, 4001L, -1L, -4000L}) EXPECT_THROW(os.setCurrentPosition(id, bad), Failure) << bad;
    EXPECT_EQ(this->cursor(id), 3996) << "a refused value changes nothing";
    os.setCurrentPosition(id, 0);
    EXPECT_EQ(this->cursor(id), 0);
}

TYPED_TEST(SoundBuffers, AOneShotPlaysToItsEndAndStopsBackAtTheStart) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 16, 11025, 1100});   // a tenth of a second
    os.play(id, 0);
    EXPECT_EQ(os.getStatus(id), 1);
    EXPECT_TRUE(this->within(5000, [&] { return this->cursor(id) > 0; })) << "the cursor moves";
    EXPECT_EQ(os.getStatus(id), 1);
    ASSERT_TRUE(this->within(5000, [&] { return os.getStatus(id) == 0; }));
    EXPECT_EQ(this->cursor(id), 0);
    this->pass(50);
    EXPECT_EQ(os.getStatus(id), 0);
    os.play(id, 0);
    EXPECT_EQ(os.getStatus(id), 1) << "it plays again";
}

TYPED_TEST(SoundBuffers, ALoopRunsOnWithItsCursorInsideTheData) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 8, 11025, 551});   // a twentieth of a second
    os.play(id, 1);
    EXPECT_EQ(os.getStatus(id), 5);
    long furthest = 0;
    this->within(300, [&] {
        furthest = std::max(furthest, this->cursor(id));
        return false;
    });
    EXPECT_EQ(os.getStatus(id), 5);
    EXPECT_GT(furthest, 0);
    EXPECT_LT(furthest, 551);
    os.stop(id);
    EXPECT_EQ(os.getStatus(id), 0);
}

TYPED_TEST(SoundBuffers, PlayOnAPlayingBufferKeepsItGoingWithTheLastLoopFlag) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 16, 11025, 22050});   // two seconds
    os.play(id, 0);
    ASSERT_TRUE(this->within(5000, [&] { return this->cursor(id) >= 2000; }));
    long before = this->cursor(id);
    os.play(id, 0);
    EXPECT_GE(this->cursor(id), before) << "no rewind";
    EXPECT_EQ(os.getStatus(id), 1);
    os.play(id, 1);
    EXPECT_EQ(os.getStatus(id), 5);
    EXPECT_GE(this->cursor(id), before);
    os.play(id, 0);
    EXPECT_EQ(os.getStatus(id), 1);
    os.stop(id);
}

TYPED_TEST(SoundBuffers, StopKeepsThePositionForTheNextPlay) {
    auto& os = this->os();
    int id = this->buffer({1, 1, 16, 11025, 22050});
    os.stop(id);
    EXPECT_EQ(os.getStatus(id), 0) << "harmless on a stopped buffer";
    os.play(id, 0);
    ASSERT_TRUE(this->within(5000, [&] { return this->cursor(id) >= 2000; }));
    os.stop(id);
    EXPECT_EQ(os.getStatus(id), 0);
    long stopped = this->cursor(id);
    EXPECT_GE(stopped, 2000);
    this->pass(50);
    os.restore(id);
    os.stop(id);
    EXPECT_EQ(this->cursor(id), stopped);
    EXPECT_EQ(os.getStatus(id), 0);
    os.play(id, 0);
    EXPECT_GE(this->cursor(id), stopped) << "it goes on from there";
    os.stop(id);
    os.setCurrentPosition(id, 0);
    EXPECT_EQ(this->cursor(id), 0);
}

TYPED_TEST(SoundBuffers, EveryCallOnAReleasedOrUnknownIdFails) {
    auto& os = this->os();
    int id = this->buffer({});
    int other = this->buffer({});
    os.play(id, 1);
    os.releaseBuffer(id);
    for (int bad : {id, 0, -1, 12345}) {
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
    EXPECT_EQ(os.getStatus(other), 0) << "the other buffer is untouched";
    os.releaseBuffer(other);
}

}  // namespace
