// The player's own voice through speech-dispatcher: the voices the game
// offers from it, the scales it maps to, and the game speaking through a
// real speech-dispatcher into a PulseAudio null sink of the test's own.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

#include "platform/real/dispatcher.h"
#include "platform/real/sdl_platform.h"
#include "platform/real/voices.h"
#include "x_session.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using platform::real::DispatcherVoice;
using platform::real::SdlPlatform;

namespace {

TEST(DispatcherVoices, AModuleOffersItsDefaultAndItsFirstEnglishVoice) {
    auto v = platform::real::offeredVoices("espeak-ng", {{"German", "de"}, {"English (America)", "en-US"},
                                                         {"English (Scotland)", "en-GB"}});
    ASSERT_EQ(v.size(), 2u);
    EXPECT_EQ(v[0].module, "espeak-ng");
    EXPECT_EQ(v[0].name, "") << "the module's own default comes first";
    EXPECT_EQ(v[1].name, "English (America)");
    EXPECT_TRUE(platform::real::offeredVoices("rhvoice", {{"Anna", "ru"}, {"Enno", "eo"}}).empty())
        << "no English, no voice: \"eo\" is not English";
    EXPECT_TRUE(platform::real::offeredVoices("dummy", {{"dummy", "en"}}).empty());
    EXPECT_EQ(platform::real::offeredVoices("piper", {{"lessac", "en"}}).size(), 2u);
}

TEST(DispatcherVoices, RateAndVolumeOnItsScales) {
    using platform::real::dispatcherRate;
    using platform::real::dispatcherVolume;
    EXPECT_EQ(dispatcherRate(0), 0);
    EXPECT_GT(dispatcherRate(5), dispatcherRate(0)) << "key names at the rate + 5 must sound faster";
    EXPECT_LT(dispatcherRate(-3), 0);
    EXPECT_EQ(dispatcherRate(40), 100);
    EXPECT_EQ(dispatcherRate(-40), -100);
    EXPECT_EQ(dispatcherVolume(100), 100);
    EXPECT_EQ(dispatcherVolume(95), 90);
    EXPECT_EQ(dispatcherVolume(0), -100);
    EXPECT_EQ(dispatcherVolume(250), 100);
}

// A private PulseAudio with a null sink "cap", a private speech-dispatcher
// speaking into it, and a recording of the sink.
class DispatcherLive : public ::testing::Test {
protected:
    void SetUp() override {
        for (const char* tool : {"speech-dispatcher", "pulseaudio", "pactl", "parec"})
            if (!realtest::onPath(tool)) GTEST_SKIP() << "needs " << tool;
        char pattern[] = "/tmp/greenlark-speechd-XXXXXX";
        dir = mkdtemp(pattern);
        fs::create_directories(dir / "home");
        fs::create_directories(dir / "xdg");
        fs::permissions(dir / "xdg", fs::perms::owner_all);
        setenv("HOME", (dir / "home").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", (dir / "xdg").c_str(), 1);
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        ASSERT_EQ(sh("pulseaudio -D -n --exit-idle-time=-1 --disallow-exit --load=module-native-protocol-unix "
                     "--load='module-null-sink sink_name=cap rate=48000 format=s16le channels=2' "
                     "--log-target=file:" + (dir / "pulse.log").string() + " 2>/dev/null"),
                  0);
        for (int i = 0; i < 50 && sh("pactl info >/dev/null 2>&1") != 0; ++i) std::this_thread::sleep_for(100ms);
        sh("pactl set-default-sink cap");
        recorder = startShell("exec parec -d cap.monitor --raw --format=s16le --rate=48000 --channels=2 > " +
                              (dir / "rec.raw").string());
        ASSERT_EQ(sh("speech-dispatcher -d -t 0 2>/dev/null"), 0);
        for (int i = 0; i < 50 && !platform::real::dispatcherReachable(); ++i) std::this_thread::sleep_for(100ms);
    }
    void TearDown() override {
        if (dir.empty()) return;
        if (recorder > 0) {
            kill(recorder, SIGKILL);
            waitpid(recorder, nullptr, 0);
        }
        killPidFile(dir / "xdg/speech-dispatcher/pid/speech-dispatcher.pid");
        killPidFile(dir / "xdg/pulse/pid");
        std::error_code ec;
        fs::remove_all(dir, ec);
    }

    static int sh(const std::string& command) { return std::system(command.c_str()); }
    static pid_t startShell(const std::string& command) {
        pid_t pid = fork();
        if (pid == 0) {
            execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
        return pid;
    }
    static void killPidFile(const fs::path& file) {
        std::ifstream in(file);
        pid_t pid = 0;
        if (!(in >> pid) || pid <= 0) return;
        kill(pid, SIGTERM);
        for (int i = 0; i < 30 && kill(pid, 0) == 0; ++i) std::this_thread::sleep_for(100ms);
        kill(pid, SIGKILL);
    }
    // The size of each sample of the recording from byte `from` on.
    std::vector<int> levelsFrom(std::uintmax_t from) const {
        std::ifstream in(dir / "rec.raw", std::ios::binary);
        in.seekg(std::streamoff(from));
        std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        std::vector<int> levels;
        for (size_t i = 0; i + 1 < bytes.size(); i += 2)
            levels.push_back(std::abs(int(std::int16_t(std::uint8_t(bytes[i]) | (std::uint8_t(bytes[i + 1]) << 8)))));
        return levels;
    }
    // The loudest sample of the recording from byte `from` on.
    int peakFrom(std::uintmax_t from) const {
        auto levels = levelsFrom(from);
        return levels.empty() ? 0 : *std::max_element(levels.begin(), levels.end());
    }
    // Seconds from the first to the last loud sample from byte `from` on.
    double heardFrom(std::uintmax_t from) const {
        auto levels = levelsFrom(from);
        auto loud = [](int level) { return level > 1000; };
        auto first = std::find_if(levels.begin(), levels.end(), loud);
        if (first == levels.end()) return 0;
        auto last = std::find_if(levels.rbegin(), levels.rend(), loud).base();
        return double(last - first) / (2 * 48000);   // two channels
    }
    std::uintmax_t recorded() const {
        std::error_code ec;
        auto n = fs::file_size(dir / "rec.raw", ec);
        return ec ? 0 : n;
    }
    // Waits up to `limit` for the platform to stop speaking.
    static bool endsSpeaking(SdlPlatform& p, std::chrono::milliseconds limit) {
        for (auto t = 0ms; t < limit; t += 10ms) {
            if (p.runningState() != 2) return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }

    fs::path dir;
    pid_t recorder = 0;
};

TEST_F(DispatcherLive, ItsVoicesFollowTheEmbeddedOnesAndSpeakIntoTheSink) {
    ASSERT_TRUE(platform::real::dispatcherReachable()) << "speech-dispatcher did not start";
    SdlPlatform p;
    int embedded = platform::real::voiceCount();
    ASSERT_GT(p.voiceCount(), embedded) << "no voice of speech-dispatcher listed";
    EXPECT_NE(p.voiceName(embedded).find("espeak-ng"), std::string::npos) << p.voiceName(embedded);
    p.createVoice();
    p.setVoice(embedded);

    auto before = recorded();
    p.speak("Greenlark speaks through speech dispatcher now.", 1);
    EXPECT_EQ(p.runningState(), 2) << "a queued text is speaking from the moment it is queued";
    ASSERT_TRUE(endsSpeaking(p, 20s)) << "the end of the text was never reported";
    std::this_thread::sleep_for(300ms);
    EXPECT_GT(peakFrom(before), 1000) << "nothing reached the sink";
    double once = heardFrom(before);

    // Texts queued together are all spoken, one after the other.
    before = recorded();
    for (int i = 0; i < 3; ++i) p.speak("Greenlark speaks through speech dispatcher now.", 1);
    ASSERT_TRUE(endsSpeaking(p, 30s));
    std::this_thread::sleep_for(300ms);
    EXPECT_GT(heardFrom(before), 2.5 * once) << "a queued text cut the one before it short";

    p.speak("Short.", 0);
    EXPECT_NE(p.runningState(), 2) << "a text said and waited for has been spoken";

    // A long text cut off: once it is heard, silence stops it at once.
    p.speak("This is a long text that goes on and on about the first hole, the wind, the trees and the "
            "pond beside the green, so that there is time to stop it.", 1);
    for (int i = 0; i < 200 && peakFrom(recorded() > 9600 ? recorded() - 9600 : 0) < 1000; ++i)
        std::this_thread::sleep_for(20ms);
    p.speak("", 2);
    EXPECT_NE(p.runningState(), 2);
    std::this_thread::sleep_for(600ms);
    auto quietFrom = recorded() > 19200 ? recorded() - 19200 : 0;   // the last 200 ms
    EXPECT_LT(peakFrom(quietFrom), 300) << "the voice went on after it was silenced";
    p.shutdown();
}

TEST(DispatcherAbsent, TheVoiceListIsTheEmbeddedOneAlone) {
    char pattern[] = "/tmp/greenlark-nospeechd-XXXXXX";
    fs::path dir = mkdtemp(pattern);
    setenv("XDG_RUNTIME_DIR", dir.c_str(), 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    EXPECT_FALSE(platform::real::dispatcherReachable());
    {
        SdlPlatform p;
        EXPECT_EQ(p.voiceCount(), platform::real::voiceCount());
        EXPECT_THROW(p.setVoice(p.voiceCount()), platform::Failure);
    }
    fs::remove_all(dir);
}

}  // namespace
