#include "x_session.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

namespace realtest {

namespace {

bool exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

// -noreset: without it the server resets whenever its last client leaves,
// and a client that connects meanwhile loses its windows.
pid_t startXvfb(int n) {
    pid_t pid = fork();
    if (pid == 0) {
        std::string d = ":" + std::to_string(n);
        execlp("Xvfb", "Xvfb", d.c_str(), "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset",
               static_cast<char*>(nullptr));
        _exit(127);
    }
    return pid;
}

// Waits for the server's socket; false if it died first.
bool cameUp(pid_t pid, int n) {
    std::string socket = "/tmp/.X11-unix/X" + std::to_string(n);
    for (int i = 0; i < 250; ++i) {
        if (waitpid(pid, nullptr, WNOHANG) == pid) return false;
        if (exists(socket)) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

}  // namespace

bool onPath(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

XServer::XServer() {
    if (!onPath("Xvfb")) return;
    for (int n = 90 + getpid() % 50, tries = 0; tries < 20; ++n, ++tries) {
        if (exists("/tmp/.X11-unix/X" + std::to_string(n)) || exists("/tmp/.X" + std::to_string(n) + "-lock")) continue;
        pid_t pid = startXvfb(n);
        if (pid > 0 && cameUp(pid, n)) {
            pid_ = pid;
            display_ = ":" + std::to_string(n);
            return;
        }
        if (pid > 0) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
    }
}

XServer::~XServer() {
    if (pid_ <= 0) return;
    kill(pid_, SIGTERM);
    if (waitExit(pid_, std::chrono::seconds(3)) == -1) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
}

std::string XServer::run(const std::string& command) const {
    std::string out;
    FILE* p = popen(("DISPLAY=" + display_ + " " + command + " 2>/dev/null").c_str(), "r");
    if (!p) return out;
    char buf[256];
    while (std::fgets(buf, sizeof buf, p)) out += buf;
    pclose(p);
    return out;
}

pid_t XServer::start(const std::string& command) const {
    pid_t pid = fork();
    if (pid == 0) {
        setenv("DISPLAY", display_.c_str(), 1);
        execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    return pid;
}

std::vector<std::string> XServer::windows(const std::string& name, std::chrono::milliseconds wait) const {
    auto until = std::chrono::steady_clock::now() + wait;
    std::vector<std::string> ids;
    do {
        std::istringstream found(run("xdotool search --all --name '" + name + "'"));
        for (std::string id; found >> id;) ids.push_back(id);
        if (!ids.empty()) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    } while (std::chrono::steady_clock::now() < until);
    return ids;
}

std::string startForGame(std::unique_ptr<XServer>& x) {
    if (!onPath("xdotool")) return "needs xdotool";
    x = std::make_unique<XServer>();
    if (!x->running()) return "needs Xvfb";
    return "";
}

pid_t spawnIn(const std::string& folder, const std::string& program, const std::vector<std::string>& env,
              const std::vector<std::string>& args) {
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    pid_t pid = fork();
    if (pid == 0) {
        if (chdir(folder.c_str()) != 0) _exit(126);
        for (const auto& e : env) putenv(const_cast<char*>(e.c_str()));
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    return pid;
}

int waitExit(pid_t pid, std::chrono::milliseconds wait) {
    auto until = std::chrono::steady_clock::now() + wait;
    int status = 0;
    while (std::chrono::steady_clock::now() < until) {
        if (waitpid(pid, &status, WNOHANG) == pid) return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return -1;
}

// A thread kept from running shows as running and starts the count again.
bool awaitKeyWait(pid_t pid) {
    std::string stat = "/proc/" + std::to_string(pid) + "/task/" + std::to_string(pid) + "/stat";
    int asleep = 0;
    for (int i = 0; i < 3000 && asleep < 10; ++i) {
        std::ifstream in(stat);
        std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        size_t paren = text.rfind(')');
        asleep = paren != std::string::npos && text.compare(paren + 2, 1, "S") == 0 ? asleep + 1 : 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return asleep >= 10;
}

}  // namespace realtest
