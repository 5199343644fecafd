// A course record file of any bytes: read as the end of a round reads it,
// said as the record text says it, and listed in golfrecords.txt. A record
// that cannot be read is refused whole; one that can is said and listed.
#include "course/builtin.h"
#include "course/course.h"
#include "fuzz/memplatform.h"
#include "records/coursefile.h"
#include "records/courserecord.h"
#include "records/state.h"
#include "round/state.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static fuzz::MemPlatform* mem = [] {
        auto* p = &fuzz::installed();
        course::cs = course::Course{};
        course::SetHolesData(1);
        course::fillBuiltinNames();
        return p;
    }();
    mem->files.clear();
    const std::string path = records::grfpath(1);
    mem->files[path] = std::string(reinterpret_cast<const char*>(data), size);
    records::Record rec;
    bool read = platform::attempt([&] { rec = records::recordof(1); });
    FUZZ_CHECK(mem->files[path].size() == size);   // a record file that is there is never replaced
    if (read) {
        std::string said = records::recordtext(1, records::recordstands(rec.strokes.v, 72), rec, 72);
        FUZZ_CHECK(said.find(" the record for the") == 0);
    }
    play::rs.nocs = 2;
    bool listed = platform::attempt(records::dorecs);
    FUZZ_CHECK(listed == read);
    return 0;
}
