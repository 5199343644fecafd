// The scenario script of greenlark-sim: one command a line.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sim {

enum class Op { Key, Wait, Expect, ExpectSound, Quiet, At, Close, End };

struct Command {
    Op op = Op::End;
    int line = 0;
    std::vector<int> keys;   // Key (also type), and the one key of At
    double seconds = 0;      // Wait
    std::string text;        // Expect text, ExpectSound and At stem
    double percent = 0;      // At
};

// Parses one line. Returns nothing for a blank or comment line; sets error
// when the line cannot be read.
std::optional<Command> parseLine(const std::string& raw, int line, std::string& error);

// The key code of a key name such as Enter, F4, Num3, Comma or #190; -1 if
// it is no key name.
int keyCode(const std::string& name);

}  // namespace sim
