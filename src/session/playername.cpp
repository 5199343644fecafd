// The player's name: the one golf.cfg holds is offered first.
#include <string>

#include "course/stored.h"
#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "session/config.h"
#include "session/settings.h"
#include "session/state.h"
#include "voice/getter.h"
#include "voice/patterns.h"
#include "voice/state.h"

namespace session {

namespace {

using voice::vs;

// The first line of golf.cfg, from the same two places as the settings,
// the second overriding the first.
void storedname() {
    for (const std::string& folder : {std::string(), ss.kp}) {
        platform::attempt([&] {
            std::string path = cfgpath(folder);
            if (path.empty()) return;
            course::File f = course::openread(path);
            vs.r = course::readfield(f);
        });
    }
}

}  // namespace

void getplayername() {
    vs.r.clear();
    storedname();
    input::clk();
    bool ask = vs.r.empty();
    while (true) {
        if (ask) {
            input::clk();
            voice::getter(" Please enter your name. ");
        }
        ask = true;
        vs.r = " " + vs.r + " ";
        input::clk();
        voice::Question q;
        q.text = " Is " + vs.r + " correct for your name?";
        if (voice::yesno(q)) break;
        // Asked again, the line starts empty.
        vs.r.clear();
    }
    input::clk();
}

}  // namespace session
