// Runs scenarios: through the greenlark-sim binary, or in this process with
// the same runner and simulated platform around a routine of the game.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace simtest {

struct Result {
    int code = -1;
    std::vector<std::string> lines;   // transcript lines
    std::string err;                  // standard error (binary runs)
    // Index of the first line at or after from whose text after the time
    // contains what; -1 if none.
    int find(const std::string& what, int from = 0) const;
    bool has(const std::string& what) const { return find(what) >= 0; }
    int count(const std::string& what) const;
    std::string dump() const;
};

// greenlark-sim with the options given and the script text.
Result runBinary(const std::string& script, const std::vector<std::string>& options = {});

// The runner in this process around program, with default options but the
// docs folder given (empty: none).
Result runInProcess(const std::string& script, const std::function<void()>& program,
                    const std::string& docs = "", const std::string& game = GREENLARK_GAME_DIR);

// A new empty temporary folder.
std::string tempDir();

}  // namespace simtest
