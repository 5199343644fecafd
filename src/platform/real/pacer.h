// How long each turn of the event loop may sleep. The game waits by calling
// yield() in tight loops and polling the clock, the speech and the sounds.
// Right after anything happens (an event, a command) the next turns only
// poll, so quick sequences run at once; after that the sleeps grow up to a
// cap, never past the moment the game said its wait ends.
#pragma once

#include <cstdint>
#include <optional>

namespace platform::real {

class Pacer {
public:
    static constexpr int kQuickTurns = 4;
    static constexpr int kCapMs = 16;

    // Something happened: the next turns poll without sleeping.
    void active();
    // Nothing is due before tick `ms`.
    void dueAt(std::uint32_t ms) { due_ = ms; }
    // Milliseconds the coming turn may sleep at tick `now` (0: just poll).
    int sleepFor(std::uint32_t now);

private:
    int quick_ = kQuickTurns;
    int backoff_ = 1;
    std::optional<std::uint32_t> due_;
};

}  // namespace platform::real
