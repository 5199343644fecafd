// The scenario runner's script lines and key names from any bytes.
#include "fuzz/memplatform.h"
#include "platform/sim/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    size_t at = 0;
    for (int line = 1; at <= text.size(); ++line) {
        size_t end = text.find('\n', at);
        if (end == std::string::npos) end = text.size();
        std::string raw = text.substr(at, end - at), error;
        auto c = sim::parseLine(raw, line, error);
        // A line is read as a command, as nothing, or as an error: never both.
        if (c) FUZZ_CHECK(error.empty() && c->line == line);
        sim::keyCode(raw);
        at = end + 1;
    }
    return 0;
}
