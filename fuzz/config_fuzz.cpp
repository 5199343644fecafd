// golf.cfg of any bytes, beside the program, in the player's folder or in
// both, read as start-up reads it: every number is held within the reader's
// bound, the voice made from the settings is one of the list, and the ten
// lines the game writes at the end read back as the same settings.
#include <algorithm>
#include <array>

#include "course/stored.h"
#include "fuzz/memplatform.h"
#include "round/state.h"
#include "session/config.h"
#include "session/settings.h"
#include "session/state.h"
#include "sound/bank.h"
#include "voice/state.h"

namespace {

// Where the first byte of the input puts golf.cfg: the file beside the
// program takes the first piece, the one in the player's folder the rest.
constexpr int inKp = 1, besideProgram = 2;

// Three voices: the one the game asks for must be one of them.
struct Voices : fuzz::MemPlatform {
    static constexpr int count = 3;
    int voiceCount() override { return count; }
    void setVoice(int index) override { FUZZ_CHECK(index >= 0 && index < count); }
};

// The numbers golf.cfg holds, in the order of its lines.
std::array<int*, 8> numbers() {
    return {&session::ss.nv,     &voice::vs.vr,        &session::ss.vv,    &sound::bk.wavol,
            &sound::bk.wavol2,   &sound::bk.cowtog,    &sound::bk.powav,   &voice::vs.keytog};
}

std::array<int, 8> values() {
    std::array<int, 8> out{};
    for (size_t i = 0; i < out.size(); ++i) out[i] = *numbers()[i];
    return out;
}

// The settings as start-up has them before golf.cfg is read.
void defaults(const std::string& kp) {
    play::rs = play::RoundState{};
    session::ss = session::SessionState{};
    session::ss.kp = kp;
    voice::vs = voice::VoiceState{};
    sound::bk = sound::Bank{};
}

// A name as a field gives it back: without blanks at either end.
std::string trimmed(const std::string& s) {
    size_t from = s.find_first_not_of(" \t");
    if (from == std::string::npos) return "";
    return s.substr(from, s.find_last_not_of(" \t") - from + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    Voices& mem = fuzz::installed<Voices>();
    if (size == 0) return 0;
    const std::string kp = "/docs/brindlewick", mine = kp + "/" + session::cfgName;
    mem.files.clear();
    fuzz::Pieces in{data + 1, size - 1};
    if (data[0] & besideProgram) mem.files[session::cfgName] = in.take(true);
    if (data[0] & inKp) mem.files[mine] = std::string(reinterpret_cast<const char*>(in.data + in.at), in.size - in.at);

    defaults(kp);
    session::readconfig();
    for (int* n : numbers()) FUZZ_CHECK(*n >= -course::wholeBound && *n <= course::wholeBound);
    session::makevoice();
    FUZZ_CHECK(session::ss.nv >= 0 && session::ss.nv < Voices::count);

    // What the game writes at the end. A name that holds a comma or a line
    // break (only a quoted field gives one) is written as it is held and
    // comes back as more than one field.
    const std::string pn = play::rs.pn;
    const std::array<int, 8> read = values();
    session::writeconfig();
    if (pn.find_first_of(",\r\n") != std::string::npos) return 0;
    const std::string& written = mem.files[mine];
    FUZZ_CHECK(std::count(written.begin(), written.end(), '\n') == 10);
    FUZZ_CHECK(written.ends_with("\r\n\r\n"));

    // Read again over other values, from the player's folder alone.
    mem.files.erase(session::cfgName);
    defaults(kp);
    play::rs.pn = "\n";   // a name this file cannot give
    for (size_t i = 0; i < read.size(); ++i) *numbers()[i] = ~read[i];
    session::readconfig();
    FUZZ_CHECK(play::rs.pn == trimmed(pn));
    FUZZ_CHECK(values() == read);
    return 0;
}
