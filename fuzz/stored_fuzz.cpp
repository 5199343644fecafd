// Stored values and strings read from any bytes: a value read is written
// back to the same bytes, and nothing reads past the end.
#include <cmath>

#include "course/stored.h"
#include "fuzz/memplatform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    course::File values;
    values.bytes = bytes;
    platform::attempt([&] {
        while (true) {
            size_t from = values.pos;
            course::Num n = course::readvalue(values);
            FUZZ_CHECK(values.pos <= bytes.size());
            // A value read is stored again byte for byte (a NaN may come back quieted).
            if (!std::isnan(n.v)) FUZZ_CHECK(course::encodevalue(n) == bytes.substr(from, values.pos - from));
        }
    });
    course::File strings;
    strings.bytes = bytes;
    platform::attempt([&] {
        while (true) {
            std::string text = course::readstring(strings);
            FUZZ_CHECK(strings.pos <= bytes.size());
            // What was read is written and read again as the same text.
            course::File again;
            course::writestring(again, text);
            FUZZ_CHECK(course::readstring(again) == text);
        }
    });
    return 0;
}
