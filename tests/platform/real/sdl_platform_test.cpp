// The real platform in this process, on an X server of the test's own and
// SDL's disk audio driver (the sound goes to a file, at the pace of a real
// device).
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

#include "platform/real/sdl_platform.h"
#include "test_waves.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

using platform::real::SdlPlatform;

const char* kCaption = "Greenlark platform check";

std::string waveFile(const platform::Wave& w) {
    auto le = [](std::string& s, std::uint32_t v, int n) {
        for (int i = 0; i < n; ++i) s += char((v >> (8 * i)) & 0xff);
    };
    std::string f = "RIFF";
    le(f, std::uint32_t(36 + w.data.size()), 4);
    f += "WAVEfmt ";
    le(f, 16, 4);
    le(f, 1, 2);
    le(f, std::uint32_t(w.channels), 2);
    le(f, std::uint32_t(w.rate), 4);
    le(f, std::uint32_t(w.rate * w.blockAlign), 4);
    le(f, std::uint32_t(w.blockAlign), 2);
    le(f, std::uint32_t(w.bits), 2);
    f += "data";
    le(f, std::uint32_t(w.data.size()), 4);
    f.append(w.data.begin(), w.data.end());
    return f;
}

class SdlPlatformTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        if (!realtest::onPath("xdotool")) return;
        x = new realtest::XServer();
        if (!x->running()) return;
        folder = fs::temp_directory_path() / ("greenlark-platform-" + std::to_string(getpid()));
        fs::create_directories(folder);
        setenv("DISPLAY", x->display().c_str(), 1);
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", (folder / "out.raw").c_str(), 1);
    }
    static void TearDownTestSuite() {
        delete x;
        x = nullptr;
        if (!folder.empty()) fs::remove_all(folder);
    }
    void SetUp() override {
        if (!x || !x->running()) GTEST_SKIP() << "needs Xvfb and xdotool";
        p = std::make_unique<SdlPlatform>();
        p->showWindow(kCaption);
        p->setKeyHandler([this](int k) { keys.push_back(k); });
        auto found = x->windows(kCaption, 5s);
        ASSERT_FALSE(found.empty());
        window = found.front();
    }
    // A test's key presses all end within the test: a key still held when
    // the next window opens would repeat into it.
    void TearDown() override {
        for (pid_t pid : typists)
            if (realtest::waitExit(pid, 5s) == -1) kill(pid, SIGKILL), waitpid(pid, nullptr, 0);
        if (x && x->running()) x->run("xdotool keyup b");
        p.reset();
    }
    void type(const std::string& command) { typists.push_back(x->start(command)); }

    // Turns the event loop until `n` keys came or five seconds passed.
    void yieldForKeys(size_t n) {
        auto until = std::chrono::steady_clock::now() + 5s;
        while (keys.size() < n && std::chrono::steady_clock::now() < until) p->yield();
    }
    template <class Done>
    bool yieldUntil(Done done, std::chrono::milliseconds wait = 5000ms) {
        auto until = std::chrono::steady_clock::now() + wait;
        while (!done()) {
            if (std::chrono::steady_clock::now() > until) return false;
            p->yield();
        }
        return true;
    }

    static realtest::XServer* x;
    static fs::path folder;
    std::unique_ptr<SdlPlatform> p;
    std::vector<int> keys;
    std::string window;
    std::vector<pid_t> typists;
};

realtest::XServer* SdlPlatformTest::x = nullptr;
fs::path SdlPlatformTest::folder;

TEST_F(SdlPlatformTest, KeysArriveAsVirtualKeyCodes) {
    type("xdotool key --window " + window + " a KP_1 KP_End Return KP_Enter shift F5 semicolon Left");
    yieldForKeys(9);
    EXPECT_EQ(keys, (std::vector<int>{65, 97, 97, 13, 13, 16, 116, 186, 37}));
}

TEST_F(SdlPlatformTest, HeldKeysRepeat) {
    type("xdotool keydown b; sleep 1.2; xdotool keyup b");
    yieldForKeys(4);
    ASSERT_GE(keys.size(), 4u);
    for (int k : keys) EXPECT_EQ(k, 66);
}

TEST_F(SdlPlatformTest, HandlersMayTurnTheLoopAgain) {
    std::vector<int> order;
    p->setKeyHandler([&](int k) {
        order.push_back(k);
        if (k == 65) yieldUntil([&] { return order.size() >= 3; });
    });
    type("xdotool key --window " + window + " a b c");
    yieldUntil([&] { return order.size() >= 3; });
    EXPECT_EQ(order, (std::vector<int>{65, 66, 67}));
}

TEST_F(SdlPlatformTest, CloseCommandRunsTheCloseHandlerInAYield) {
    int closes = 0;
    p->setCloseHandler([&] { ++closes; });
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
    EXPECT_EQ(closes, 0);
    EXPECT_TRUE(yieldUntil([&] { return closes == 1; }));
}

// The box does not take the focus under Xvfb: its button is pressed by
// sending Return to the box's own window.
TEST_F(SdlPlatformTest, MessageBoxWaitsForItsButton) {
    if (!realtest::onPath("xwininfo")) GTEST_SKIP() << "needs xwininfo";
    std::string box;
    std::atomic<bool> returned{false};
    // On a busy machine the box can take a while to come up: look for it,
    // and press its button, until the call has returned.
    std::thread closer([&] {
        for (int i = 0; i < 3000 && !returned; ++i) {
            if (box.empty())
                for (const auto& id : x->allNamed(kCaption))
                    if (std::stoul(id, nullptr, 16) != std::stoul(window)) box = id;
            if (!box.empty() && i % 25 == 0) x->run("xdotool key --window " + box + " Return");
            std::this_thread::sleep_for(20ms);
        }
    });
    p->messageBox("Hello from the check.");
    returned = true;
    closer.join();
    EXPECT_FALSE(box.empty());
    EXPECT_TRUE(x->allNamed(kCaption).size() == 1) << "the box is gone";
}

TEST_F(SdlPlatformTest, SpeechStatesFollowWhatIsHeard) {
    p->createVoice();
    p->speak("Hello there.", 1);
    EXPECT_EQ(p->runningState(), 2);
    p->speak("", 2);
    EXPECT_TRUE(yieldUntil([&] { return p->runningState() == 0; }));
    p->speak("Hi.", 0);
    EXPECT_EQ(p->runningState(), 0);
}

TEST_F(SdlPlatformTest, KeysPressedDuringBlockingSpeechWaitForTheNextTurn) {
    p->createVoice();
    type("xdotool key --window " + window + " k");
    p->speak("This takes a moment to say.", 0);
    EXPECT_TRUE(keys.empty());
    yieldForKeys(1);
    EXPECT_EQ(keys, std::vector<int>{75});
}

TEST_F(SdlPlatformTest, BuffersPlayAndReportTheirState) {
    p->openSoundDevice();
    fs::path file = folder / "tone.wav";
    std::ofstream(file, std::ios::binary) << waveFile(realtest::rampWave(2400, 24000));
    int id = p->createBuffer(file.string());
    EXPECT_EQ(p->getFrequency(id), 24000);
    p->play(id, 0);
    EXPECT_EQ(p->getStatus(id), 1);
    EXPECT_TRUE(yieldUntil([&] { return p->getStatus(id) == 0; }));
    EXPECT_EQ(p->getCurrentPosition(id).play, 0);
    p->play(id, 1);
    EXPECT_EQ(p->getStatus(id), 5);
    p->stop(id);
    EXPECT_EQ(p->getStatus(id), 0);
    p->releaseBuffer(id);
    EXPECT_THROW(p->getStatus(id), platform::Failure);
    EXPECT_THROW(p->createBuffer((folder / "missing.wav").string()), platform::Failure);
    p->closeSoundDevice();
    EXPECT_THROW(p->createBuffer(file.string()), platform::Failure);
}

TEST_F(SdlPlatformTest, WithoutASoundDeviceTheGameGoesOn) {
    p.reset();
    setenv("SDL_AUDIODRIVER", "no-such-driver", 1);
    p = std::make_unique<SdlPlatform>();
    setenv("SDL_AUDIODRIVER", "disk", 1);
    EXPECT_THROW(p->openSoundDevice(), platform::Failure);
    EXPECT_THROW(p->createBuffer("anything.wav"), platform::Failure);
    EXPECT_THROW(p->getStatus(1), platform::Failure);
    p->createVoice();
    p->speak("Nobody hears this.", 0);
    EXPECT_EQ(p->runningState(), 0);
    p->beep();
}

}  // namespace
