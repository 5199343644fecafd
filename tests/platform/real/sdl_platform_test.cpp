// The real platform in this process: its window on an X server of the
// test's own, keys typed by xdotool, sound by SDL's dummy driver (paced as a
// real device).
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <vector>

#include "headless.h"
#include "platform/real/sdl_platform.h"
#include "x_session.h"

using namespace std::chrono_literals;

namespace {

using platform::real::SdlPlatform;

const char* kCaption = "Greenlark platform check";

// Turns the event loop until done or five seconds passed.
template <class Done>
bool yieldUntil(SdlPlatform& p, Done done) {
    auto until = std::chrono::steady_clock::now() + 5s;
    while (!done() && std::chrono::steady_clock::now() < until) p.yield();
    return done();
}

TEST(SdlPlatform, KeysCloseAndSpeechInTheWindow) {
    if (!realtest::onPath("xdotool")) GTEST_SKIP() << "needs xdotool";
    realtest::XServer x;
    if (!x.running()) GTEST_SKIP() << "needs Xvfb";
    setenv("DISPLAY", x.display().c_str(), 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    SdlPlatform p;
    p.showWindow(kCaption);
    auto found = x.windows(kCaption, 5s);
    ASSERT_FALSE(found.empty());
    // Keys in their order as virtual-key codes, also behind a handler that
    // turns the loop from inside, and a held key repeating.
    std::vector<int> keys;
    p.setKeyHandler([&](int k) {
        keys.push_back(k);
        if (k == 65) yieldUntil(p, [&] { return keys.size() >= 9; });
    });
    pid_t typist = x.start("xdotool key --window " + found[0] + " a KP_1 KP_End Return KP_Enter shift F5 semicolon"
                           " Left; xdotool keydown b; sleep 1.2; xdotool keyup b");
    yieldUntil(p, [&] { return keys.size() >= 13; });
    realtest::waitExit(typist, 5s);
    ASSERT_GE(keys.size(), 13u);
    EXPECT_EQ(std::vector<int>(keys.begin(), keys.begin() + 9),
              (std::vector<int>{65, 97, 97, 13, 13, 16, 116, 186, 37}));
    for (size_t i = 9; i < keys.size(); ++i) EXPECT_EQ(keys[i], 66);
    // The close command runs its handler inside a yield.
    int closes = 0;
    p.setCloseHandler([&] { ++closes; });
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
    EXPECT_EQ(closes, 0);
    EXPECT_TRUE(yieldUntil(p, [&] { return closes == 1; }));
    // The voice's state follows what is heard; keys pressed while a text is
    // said to its end wait for the next turn.
    keys.clear();
    p.createVoice();
    p.speak("Hello there.", 1);
    EXPECT_EQ(p.runningState(), 2);
    p.speak("", 2);
    EXPECT_TRUE(yieldUntil(p, [&] { return p.runningState() == 0; }));
    typist = x.start("xdotool key --window " + found[0] + " k");
    p.speak("This takes a moment to say.", 0);
    EXPECT_EQ(p.runningState(), 0);
    EXPECT_TRUE(keys.empty());
    EXPECT_TRUE(yieldUntil(p, [&] { return keys == std::vector<int>{75}; }));
    realtest::waitExit(typist, 5s);
}

TEST(SdlPlatform, WithoutASoundDeviceTheGameGoesOn) {
    realtest::Headless env("");
    env.set("SDL_AUDIODRIVER", "no-such-driver");
    SdlPlatform p;
    EXPECT_THROW(p.openSoundDevice(), platform::Failure);
    EXPECT_THROW(p.createBuffer("anything.wav"), platform::Failure);
    EXPECT_THROW(p.getStatus(1), platform::Failure);
    p.createVoice();
    p.speak("Nobody hears this.", 0);
    EXPECT_EQ(p.runningState(), 0);
    p.beep();
}

}  // namespace
