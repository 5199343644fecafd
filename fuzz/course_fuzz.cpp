// A course file of either format read from any bytes.
#include "course/customfile.h"
#include "course/stored.h"
#include "fuzz/memplatform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    if (size == 0) return 0;
    bool gcx = data[0] & 1;
    std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
    platform::attempt([&] {
        course::HoleData d = course::readcourse(bytes, gcx, gcx ? "golffuzz.gcx" : "golffuzz.gcf");
        for (int hole = 1; hole <= 18; ++hole) {
            FUZZ_CHECK(d.HS[hole][1].size() <= 4 * size_t(course::maxStringChars));
            FUZZ_CHECK(d.HS[hole][2].size() <= 4 * size_t(course::maxStringChars));
        }
    });
    return 0;
}
