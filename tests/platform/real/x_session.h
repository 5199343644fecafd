// An X server of the test's own (Xvfb on a free display) and the programs
// the real-platform tests drive through it.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace realtest {

bool onPath(const std::string& program);

class XServer {
public:
    XServer();
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    bool running() const { return pid_ > 0; }
    const std::string& display() const { return display_; }
    // Runs a shell command with this display; returns what it printed.
    std::string run(const std::string& command) const;
    // Starts a shell command with this display and does not wait.
    pid_t start(const std::string& command) const;
    // The ids of the windows whose name matches, waiting up to `wait` for one.
    std::vector<std::string> windows(const std::string& name, std::chrono::milliseconds wait) const;

private:
    pid_t pid_ = 0;
    std::string display_;
};

// Starts the X server of a test of the game binary: what is missing for one
// ("needs xdotool", "needs Xvfb"), or nothing.
std::string startForGame(std::unique_ptr<XServer>& x);

// Starts a program in `folder` with extra environment settings and its
// arguments; returns its process id.
pid_t spawnIn(const std::string& folder, const std::string& program, const std::vector<std::string>& env,
              const std::vector<std::string>& args = {});
// Waits up to `wait` for a child to end; its exit status, or -1 if it did not.
int waitExit(pid_t pid, std::chrono::milliseconds wait);

// Waits until the main thread of `pid` has been asleep at every look for
// 200 ms: the game settled in a key wait, past the clearing of the key that
// begins each wait. False after a minute.
bool awaitKeyWait(pid_t pid);

}  // namespace realtest
