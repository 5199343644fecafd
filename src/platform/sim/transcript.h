// The transcript of greenlark-sim: one event a line, virtual ms first.
#pragma once

#include <cstdint>
#include <string>

#include "platform/script_words.h"

namespace sim {

using platform::script::quote;
void emit(std::uint64_t ms, const std::string& body);
// Where transcript lines go: standard output, flushed line by line, unless
// a test takes them.
void setSink(void (*sink)(const std::string& line));

}  // namespace sim
