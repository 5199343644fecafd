#include "platform/sim/transcript.h"

#include <cstdio>

namespace sim {

std::string quote(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\r': out += "\\r"; break;
            case '\n': out += "\\n"; break;
            default: out += c;
        }
    }
    return out + "\"";
}

void emit(std::uint64_t ms, const std::string& body) {
    std::printf("%llu %s\n", static_cast<unsigned long long>(ms), body.c_str());
    std::fflush(stdout);
}

}  // namespace sim
