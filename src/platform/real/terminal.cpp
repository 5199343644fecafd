#include "platform/real/terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "platform/ticks.h"

namespace platform::real {

Terminal::Saved Terminal::saved_;

namespace {

// More keys than a player can press ahead; a flood past it is dropped.
constexpr size_t kMostWaiting = 256;

void writeAll(int fd, const char* text, size_t n) {
    while (n > 0) {
        ssize_t put = ::write(fd, text, n);
        if (put <= 0) return;
        text += put;
        n -= size_t(put);
    }
}

void writeAll(int fd, const char* text) { writeAll(fd, text, std::strlen(text)); }

// The Linux console has no title and reads the pad's application keys as
// function keys; a dumb terminal knows no sequences at all.
bool sequencesFor(const char* term) {
    return term && *term && std::strcmp(term, "dumb") != 0 && std::strncmp(term, "linux", 5) != 0;
}

// No line editing and no echo; Enter comes as a carriage return. Ctrl+C
// still interrupts, which ends the game with its settings written; Ctrl+Z
// and Ctrl+\ come as keys.
termios rawMode(termios t) {
    t.c_lflag &= ~tcflag_t(ICANON | ECHO | ECHONL | IEXTEN);
    t.c_iflag &= ~tcflag_t(IXON | ICRNL | INLCR | IGNCR | ISTRIP);
    t.c_cc[VMIN] = 1;
    t.c_cc[VTIME] = 0;
    t.c_cc[VQUIT] = _POSIX_VDISABLE;
    t.c_cc[VSUSP] = _POSIX_VDISABLE;
    return t;
}

}  // namespace

// A crash puts the terminal back, then the signal goes on to what it did
// before: a core dump, or a sanitizer's report.
void Terminal::crashed(int sig) {
    restore();
    for (size_t i = 0; i < std::size(kCrashSignals); ++i)
        if (kCrashSignals[i] == sig) sigaction(sig, &saved_.before[i], nullptr);
    raise(sig);
}

void Terminal::catchCrashes() {
    struct sigaction sa {};
    sa.sa_handler = crashed;
    sigemptyset(&sa.sa_mask);
    for (size_t i = 0; i < std::size(kCrashSignals); ++i) sigaction(kCrashSignals[i], &sa, &saved_.before[i]);
}

void Terminal::releaseCrashes() {
    for (size_t i = 0; i < std::size(kCrashSignals); ++i) sigaction(kCrashSignals[i], &saved_.before[i], nullptr);
}

std::unique_ptr<Terminal> Terminal::open(bool errors, const std::string& path) {
    if (saved_.fd >= 0) return nullptr;
    int fd = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return nullptr;
    std::unique_ptr<Terminal> t(new Terminal);
    int wake[2];
    termios mode{};
    if (!isatty(fd) || tcgetattr(fd, &mode) != 0 || pipe2(wake, O_NONBLOCK | O_CLOEXEC) != 0) {
        close(fd);
        return nullptr;
    }
    t->wakeRead_ = wake[0];
    t->wakeWrite_ = wake[1];
    saved_.fd = fd;
    saved_.mode = mode;
    saved_.keypad = sequencesFor(std::getenv("TERM"));
    saved_.titled = false;
    catchCrashes();
    termios raw = rawMode(mode);
    if (tcsetattr(fd, TCSANOW, &raw) != 0) return nullptr;
    saved_.raw = 1;
    if (saved_.keypad) writeAll(fd, "\x1b=");
    if (!errors) dropErrors();
    return t;
}

Terminal::~Terminal() {
    restore();
    if (saved_.fd >= 0) {
        releaseCrashes();
        close(saved_.fd);
    }
    saved_.fd = -1;
    if (saved_.errors >= 0) close(saved_.errors);
    saved_.errors = -1;
    if (wakeRead_ >= 0) close(wakeRead_);
    if (wakeWrite_ >= 0) close(wakeWrite_);
}

void Terminal::restore() {
    if (!saved_.raw) return;
    saved_.raw = 0;
    if (saved_.errors >= 0) dup2(saved_.errors, STDERR_FILENO);
    if (saved_.keypad) writeAll(saved_.fd, "\x1b>");
    if (saved_.titled) writeAll(saved_.fd, "\x1b[23;0t");
    tcsetattr(saved_.fd, TCSANOW, &saved_.mode);
}

// SDL, the sound server's library and the synthesiser may write notes to
// standard error, which the screen reader would read over the game's voice.
void Terminal::dropErrors() {
    if (!isatty(STDERR_FILENO)) return;
    int null = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    saved_.errors = null < 0 ? -1 : fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
    if (saved_.errors >= 0) dup2(null, STDERR_FILENO);
    if (null >= 0) close(null);
}

// The title before is pushed on the terminal's stack of titles, where it
// keeps one, and comes back when the game ends.
void Terminal::title(const std::string& caption) {
    if (!saved_.raw || !sequencesFor(std::getenv("TERM"))) return;
    std::string out = saved_.titled ? "" : "\x1b[22;0t";
    out += "\x1b]0;";
    for (char c : caption)
        if (c >= ' ' && c < 0x7f) out += c;
    out += '\a';
    saved_.titled = true;
    writeAll(saved_.fd, out.data(), out.size());
}

namespace {

// Milliseconds from tick `now` until `span` has passed since tick `from`.
int remaining(std::uint32_t span, std::uint32_t from, std::uint32_t now) {
    return int(span - std::min(span, elapsed(from, now)));
}

}  // namespace

void Terminal::wait(int ms, std::uint32_t now) {
    if (queue_.holding && !queue_.waiting.empty()) ms = std::min(ms, remaining(kHoldMs, queue_.heldAt, now));
    if (!decoder_.pending.empty()) ms = std::min(ms, remaining(kEscapeWaitMs, decoder_.since, now));
    pollfd fds[2] = {{wakeRead_, POLLIN, 0}, {saved_.fd, POLLIN, 0}};
    if (poll(fds, hungUp_ ? 1 : 2, std::max(ms, 0)) <= 0) return;
    char drain[64];
    if (fds[0].revents & POLLIN)
        while (::read(wakeRead_, drain, sizeof drain) > 0) {
        }
}

void Terminal::wake() {
    char one = 1;
    [[maybe_unused]] ssize_t put = ::write(wakeWrite_, &one, 1);
}

void Terminal::read(std::uint32_t now) {
    char buf[256];
    for (int reads = 0; reads < 16 && !hungUp_; ++reads) {
        ssize_t n = ::read(saved_.fd, buf, sizeof buf);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0 && errno == EAGAIN) return;
        if (n <= 0) {
            hungUp_ = true;
            return;
        }
        std::vector<int> fresh;
        decodeKeys(decoder_, std::string_view(buf, size_t(n)), now, fresh);
        for (int k : fresh)
            if (queue_.waiting.size() < kMostWaiting) queue_.waiting.push_back(k);
    }
}

void Terminal::turn(std::uint32_t now) {
    read(now);
    std::vector<int> late;
    expireKeys(decoder_, now, late);
    queue_.waiting.insert(queue_.waiting.end(), late.begin(), late.end());
    newTurn(queue_);
}

}  // namespace platform::real
