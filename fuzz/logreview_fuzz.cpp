// The round log's lines paired into the entries F7 reads out, from any text.
#include "fuzz/memplatform.h"
#include "round/inplay.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> entries = play::logentries(text);
    // The review speaks entries[0] at once and counts on at most the listed entries.
    FUZZ_CHECK(!entries.empty() && int(entries.size()) <= play::maxLogEntries);
    size_t total = 0;
    for (const auto& e : entries) total += e.size();
    // A line stands in at most two entries, and a byte of the log's code
    // page is at most three bytes of text.
    FUZZ_CHECK(total <= 6 * size + entries.size());
    return 0;
}
