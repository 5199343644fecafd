// golflog.txt or golfrecords.txt of any bytes, read aloud from the main menu
// field by field: the reading comes to its end and says one text.
#include <algorithm>

#include "fuzz/memplatform.h"
#include "records/reading.h"
#include "records/state.h"

namespace {

// Counts the texts given to the voice and keeps the length of the longest.
struct Listener : fuzz::MemPlatform {
    int spoken = 0;
    size_t longest = 0;
    void speak(const std::string& text, int) override {
        if (text.empty()) return;
        ++spoken;
        longest = std::max(longest, text.size());
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    Listener* mem = &fuzz::installed<Listener>();
    if (size == 0) return 0;
    bool log = data[0] & 1;
    mem->files.clear();
    mem->spoken = 0;
    mem->longest = 0;
    mem->files[log ? records::golog() : records::recordsfile()] =
        std::string(reinterpret_cast<const char*>(data + 1), size - 1);
    platform::attempt(log ? records::ReadLog : records::ReadRecords);
    // One text or none, when a field could not be read: a blank, then each
    // field (a byte is at most three bytes of text) and ". ", and every field
    // but the last takes its delimiter.
    size_t n = size - 1;
    FUZZ_CHECK(mem->spoken <= 1);
    FUZZ_CHECK(mem->longest <= 1 + 3 * n + 2 * (n + 1));
    return 0;
}
