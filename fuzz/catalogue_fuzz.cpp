// The catalogue built from a folder of course files with any names and any
// bytes: the custom entries come sorted, and each one listed loads.
#include "course/catalogue.h"
#include "course/course.h"
#include "fuzz/memplatform.h"
#include "platform/names.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    fuzz::MemPlatform* mem = &fuzz::installed();
    const std::string kp = "/docs/brindlewick";
    mem->files.clear();
    fuzz::Pieces in{data, size};
    while (in.more()) {
        std::string name = in.take(false);
        for (char& c : name)
            if (c == '/' || c == 0) c = '_';
        std::string bytes = in.take(true);
        if (!name.empty()) mem->files[kp + "/" + name] = bytes;
    }
    course::cs = course::Course{};
    int nocs = course::GetCors(kp);
    FUZZ_CHECK(nocs > course::builtins && nocs < course::catSlots);
    for (int c = course::builtins + 1; c < nocs; ++c) {
        if (c > course::builtins + 1)
            FUZZ_CHECK(platform::lower(course::cs.cfile[c - 1]) <= platform::lower(course::cs.cfile[c]));
        // A file the catalogue lists is one that reads as a whole course.
        FUZZ_CHECK(platform::attempt([&] { course::GetCusCors(kp, c); }));
    }
    return 0;
}
