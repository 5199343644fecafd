// The terminal the game was started from, when it plays there instead of in
// a window: its keys read in raw mode, nothing written to it but the caption
// once as its title (the terminal belongs to the player's screen reader), and
// the terminal put back as it was on every way out, a crash included.
#pragma once

#include <signal.h>
#include <termios.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "platform/real/terminal_keys.h"

namespace platform::real {

class Terminal {
public:
    // The terminal at `path` in raw mode; nullptr when it is not a terminal
    // or another Terminal holds one already. Unless `errors`, what the
    // libraries write to standard error is dropped while it plays, when
    // that is a terminal too.
    static std::unique_ptr<Terminal> open(bool errors, const std::string& path = "/dev/tty");
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    // The caption as the terminal's title, where the terminal has one.
    void title(const std::string& caption);
    // Sleeps up to `ms`, less when a byte comes from the terminal, wake()
    // is called or a key waits.
    void wait(int ms, std::uint32_t now);
    // Ends a wait; may be called from any thread.
    void wake();
    // A turn of the loop begins at tick `now`: what the terminal sent is read.
    void turn(std::uint32_t now);
    // The next key to give the game; 0 when none is due.
    int nextKey(std::uint32_t now) { return real::nextKey(queue_, now); }
    // True once, when the terminal has been closed.
    bool closedNow() {
        bool now = hungUp_ && !closedTold_;
        closedTold_ = closedTold_ || hungUp_;
        return now;
    }
    // Puts the terminal back as it was. Safe in a signal handler and safe
    // to call twice.
    static void restore();

private:
    Terminal() = default;
    void read(std::uint32_t now);
    static void crashed(int sig);
    static void catchCrashes();
    static void releaseCrashes();
    static void dropErrors();

    // The signals of a crash, after which the terminal is put back.
    static constexpr int kCrashSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGQUIT};

    // What a signal handler needs to put the terminal back: plain fields of
    // the one terminal in raw mode.
    struct Saved {
        int fd = -1;
        termios mode{};
        bool keypad = false;   // the pad was put in application mode
        bool titled = false;   // the title was pushed on the terminal's stack
        int errors = -1;       // standard error as it was, while it is dropped
        volatile sig_atomic_t raw = 0;
        // What the crash signals did before, to hand them on.
        struct sigaction before[std::size(kCrashSignals)];
    };
    static Saved saved_;

    int wakeRead_ = -1;
    int wakeWrite_ = -1;
    bool hungUp_ = false;
    bool closedTold_ = false;
    KeyDecoder decoder_;
    KeyQueue queue_;
};

}  // namespace platform::real
