// A saved game of any bytes, beside course files of any bytes: loading it
// either resumes a round on a hole of the course or restores nothing.
#include "course/catalogue.h"
#include "course/course.h"
#include "fuzz/memplatform.h"
#include "round/state.h"
#include "session/savedgame.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    fuzz::MemPlatform* mem = &fuzz::installed();
    const std::string kp = "/docs/brindlewick";
    mem->files.clear();
    fuzz::Pieces in{data, size};
    mem->files[kp + "/golfgame.sav"] = in.take(true);
    while (in.more()) {
        std::string name = "golf" + in.take(false) + ".gcx";
        for (char& c : name)
            if (c == '/' || c == 0) c = '_';
        mem->files[kp + "/" + name] = in.take(true);
    }
    course::cs = course::Course{};
    play::rs = play::RoundState{};
    play::rs.nocs = course::GetCors(kp);
    platform::attempt(session::loadgame);
    if (play::rs.resumed == 1) FUZZ_CHECK(play::rs.hole >= 1 && play::rs.hole <= 18);
    else FUZZ_CHECK(play::rs.hole == play::RoundState{}.hole && play::rs.c == play::RoundState{}.c);
    return 0;
}
