// The wave file parser on any bytes: a wave it accepts holds whole frames
// of a format the mixer plays, and no more data than the file had.
#include "fuzz/memplatform.h"
#include "platform/wav.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    auto w = platform::parseWave(bytes);
    if (!w) return 0;
    FUZZ_CHECK(w->channels == 1 || w->channels == 2);
    FUZZ_CHECK(w->bits == 8 || w->bits == 16);
    FUZZ_CHECK(w->blockAlign > 0 && w->data.size() % size_t(w->blockAlign) == 0);
    FUZZ_CHECK(w->data.size() + 44 <= size);
    FUZZ_CHECK(w->frames() * w->blockAlign == long(w->data.size()));
    return 0;
}
