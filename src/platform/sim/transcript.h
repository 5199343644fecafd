// The transcript of greenlark-sim: one event a line, virtual ms first.
#pragma once

#include <cstdint>
#include <string>

namespace sim {

// A text in double quotes: \" \\ \r \n escaped, every other byte below 32
// as \xHH, all else as it is.
std::string quote(const std::string& text);
void emit(std::uint64_t ms, const std::string& body);
// Where transcript lines go: standard output, flushed line by line, unless
// a test takes them.
void setSink(void (*sink)(const std::string& line));

}  // namespace sim
