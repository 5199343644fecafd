// golf.cfg: read at start-up from beside the program and then from the
// player's folder, written once when the program ends.
#include "session/config.h"

#include "course/exists.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/state.h"
#include "session/state.h"
#include "sound/bank.h"
#include "voice/state.h"

namespace session {

namespace {

int number(course::File& f) { return course::whole(course::readnumber(f)); }

// Field by field: a file that ends early leaves the rest as they were.
void readfrom(const std::string& path) {
    course::File f = course::openread(path);
    play::rs.pn = course::readfield(f);
    ss.nv = number(f);
    voice::vs.vr = number(f);
    ss.vv = number(f);
    sound::bk.wavol = number(f);
    sound::bk.wavol2 = number(f);
    sound::bk.cowtog = number(f);
    if (!course::atend(f)) sound::bk.powav = number(f);
    if (!course::atend(f)) voice::vs.keytog = number(f);
}

}  // namespace

std::string cfgpath(const std::string& folder) {
    return course::findfile(folder.empty() ? cfgName : folder + "/" + cfgName, course::NameRule::lowerCase);
}

void readconfig() {
    for (const std::string& folder : {std::string(), ss.kp}) {
        std::string path = cfgpath(folder);
        if (path.empty()) continue;
        platform::attempt([&] { readfrom(path); });
        input::clk();
    }
}

void writeconfig() {
    using course::printed;
    course::File f = course::openreplace(ss.kp + "/" + cfgName);
    course::printline(f, play::rs.pn);
    for (int n : {ss.nv, voice::vs.vr, ss.vv, sound::bk.wavol, sound::bk.wavol2, sound::bk.cowtog, sound::bk.powav,
                  voice::vs.keytog})
        course::printline(f, printed(n));
    course::printline(f);
    course::closefile(f);
}

}  // namespace session
