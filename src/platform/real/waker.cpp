#include "platform/real/waker.h"

#include <algorithm>

#include "platform/real/mixer.h"

namespace platform::real {

namespace {

// With nothing pending the thread still looks round this often.
constexpr std::uint32_t kIdleMs = 200;

}  // namespace

Waker::Waker(Mixer& mixer, std::uint32_t eventType)
    : mixer_(mixer), eventType_(eventType), sem_(SDL_CreateSemaphore(0)), thread_([this] { run(); }) {}

Waker::~Waker() {
    quit_ = true;
    notify();
    thread_.join();
    SDL_DestroySemaphore(sem_);
}

// Sleeps until `when` or until the callback reports another end.
void Waker::waitUntil(std::int64_t when) {
    std::int64_t ms = (when - monotonicNs() + 999999) / 1000000;
    SDL_SemWaitTimeout(sem_, std::uint32_t(std::clamp<std::int64_t>(ms, 0, kIdleMs)));
}

void Waker::run() {
    std::int64_t fired = monotonicNs();
    while (!quit_) {
        auto due = mixer_.nextEndAfter(fired);
        std::int64_t now = monotonicNs();
        if (!due) {
            SDL_SemWaitTimeout(sem_, kIdleMs);
        } else if (*due > now) {
            waitUntil(*due);
        } else {
            SDL_Event e{};
            e.type = eventType_;
            SDL_PushEvent(&e);
            fired = now;
        }
    }
}

}  // namespace platform::real
