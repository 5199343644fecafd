#include "platform/sim/transcript.h"

#include <cstdio>

namespace sim {

namespace {
void (*currentSink)(const std::string&) = nullptr;
}

void setSink(void (*sink)(const std::string& line)) { currentSink = sink; }

void emit(std::uint64_t ms, const std::string& body) {
    std::string line = std::to_string(ms) + " " + body;
    if (currentSink) {
        currentSink(line);
        return;
    }
    std::fputs(line.c_str(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

}  // namespace sim
