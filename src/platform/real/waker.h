// Wakes the game thread's event wait when the end of a one-shot sound or of
// the speech is heard, so that its polls see the change at once. The audio
// callback only posts a semaphore; this thread works out when the ends will
// be heard and pushes an SDL user event at that moment.
#pragma once

#include <SDL2/SDL.h>

#include <atomic>
#include <cstdint>
#include <thread>

namespace platform::real {

class Mixer;

class Waker {
public:
    Waker(Mixer& mixer, std::uint32_t eventType);
    ~Waker();
    Waker(const Waker&) = delete;
    Waker& operator=(const Waker&) = delete;

    // Something ran out in the mixer; safe to call from the audio callback.
    void notify() { SDL_SemPost(sem_); }

private:
    void run();
    void waitUntil(std::int64_t when);

    Mixer& mixer_;
    std::uint32_t eventType_;
    SDL_sem* sem_;
    std::atomic<bool> quit_{false};
    std::thread thread_;
};

}  // namespace platform::real
