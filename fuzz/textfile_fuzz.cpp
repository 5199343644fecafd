// Text files read by field, by number and by line from any bytes.
#include "course/textfile.h"
#include "fuzz/memplatform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    if (size == 0) return 0;
    int how = data[0];
    course::File f;
    f.bytes.assign(reinterpret_cast<const char*>(data + 1), size - 1);
    platform::attempt([&] {
        // Each read moves on or throws: the loop ends within the file's bytes.
        for (size_t reads = 0; !course::atend(f); ++reads) {
            size_t before = f.pos;
            switch ((how >> (2 * (reads % 4))) & 3) {
                case 0: course::readfield(f); break;
                case 1: course::readnumber(f); break;
                default: course::readline(f); break;
            }
            FUZZ_CHECK(f.pos > before && f.pos <= f.bytes.size());
        }
    });
    return 0;
}
