// The scenario script of greenlark-sim: one command a line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/script_words.h"

namespace sim {

enum class Op { Key, Wait, Expect, ExpectSound, Quiet, At, Close, End, Seed };

struct Command {
    Op op = Op::End;
    int line = 0;
    std::vector<int> keys;   // Key (also type), and the one key of At
    double seconds = 0;      // Wait
    std::string text;        // Expect text, ExpectSound and At stem
    double percent = 0;      // At
    std::uint64_t seed = 0;  // Seed
    bool taken = false;      // Seed: a draw of the program has used it already
};

// Parses one line. Returns nothing for a blank or comment line; sets error
// when the line cannot be read.
std::optional<Command> parseLine(const std::string& raw, int line, std::string& error);

using platform::script::keyCode;

}  // namespace sim
