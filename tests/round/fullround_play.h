// A whole round played by the caddie: in this process, or through
// greenlark-sim reading its script from a pipe.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <istream>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "round/fullround_caddie.h"
#include "sim_harness.h"

namespace caddie {

// A script as the lines a caddie sends one at a time.
inline std::vector<std::string> scriptLines(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);)
        if (!l.empty()) out.push_back(l);
    return out;
}

using simtest::Feed;

// The live runner around program in this process; after each line the
// caddie gives, watch runs inside the program's wait.
inline simtest::Result playInProcess(Caddie& c, const std::function<void()>& program, const std::function<void()>& watch,
                                     const std::string& docs = simtest::tempDir()) {
    simtest::Result out;
    Feed feed([&]() -> std::optional<std::string> {
        auto line = c.next(out.lines);
        watch();
        return line;
    });
    std::istream in(&feed);
    simtest::runInProcessLive(in, program, out, docs);
    return out;
}

inline bool isDone(const std::string& line, int n) {
    std::string tail = " done " + std::to_string(n);
    return line.size() > tail.size() && line.ends_with(tail) && line.find('"') == std::string::npos;
}

// greenlark-sim reading its script from a pipe: each line is written once
// the one before it is done.
inline simtest::Result playThroughSim(Caddie& c, const std::vector<std::string>& options = {}) {
    simtest::Result out;
    int toSim[2], fromSim[2];
    if (pipe(toSim) != 0 || pipe(fromSim) != 0) return out;
    pid_t pid = fork();
    if (pid == 0) {
        dup2(toSim[0], 0);
        dup2(fromSim[1], 1);
        for (int fd : {toSim[0], toSim[1], fromSim[0], fromSim[1]}) close(fd);
        std::vector<char*> argv{const_cast<char*>(GREENLARK_SIM)};
        for (const auto& o : options) argv.push_back(const_cast<char*>(o.c_str()));
        argv.push_back(const_cast<char*>("-"));
        argv.push_back(nullptr);
        execv(GREENLARK_SIM, argv.data());
        _exit(127);
    }
    close(toSim[0]);
    close(fromSim[1]);
    auto oldPipe = signal(SIGPIPE, SIG_IGN);
    FILE* to = fdopen(toSim[1], "w");
    FILE* from = fdopen(fromSim[0], "r");
    char buf[8192];
    auto readLine = [&]() -> bool {
        if (!std::fgets(buf, sizeof buf, from)) return false;
        std::string l(buf);
        if (!l.empty() && l.back() == '\n') l.pop_back();
        out.lines.push_back(l);
        return true;
    };
    for (int sent = 1;; ++sent) {
        auto line = c.next(out.lines);
        if (!line) break;
        std::fprintf(to, "%s\n", line->c_str());
        std::fflush(to);
        bool done = false;
        while (!done && readLine()) done = isDone(out.lines.back(), sent);
        if (!done) break;   // the program has ended
    }
    std::fclose(to);
    while (readLine()) {
    }
    std::fclose(from);
    int status = 0;
    waitpid(pid, &status, 0);
    signal(SIGPIPE, oldPipe);
    out.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return out;
}

}  // namespace caddie
