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
            default:
                if (static_cast<unsigned char>(c) < 32) {
                    char hex[5];
                    std::snprintf(hex, sizeof hex, "\\x%02X", unsigned(static_cast<unsigned char>(c)));
                    out += hex;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

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
