// The player's name: the one golf.cfg holds is offered first.
#include <string>

#include "course/exists.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/session.h"
#include "session/settings.h"
#include "voice/getter.h"
#include "voice/patterns.h"
#include "voice/state.h"

namespace session {

namespace {

using voice::vs;

// The first line of golf.cfg, from beside the program and then from the
// player's folder, the second overriding the first.
void storedname() {
    for (const std::string& path : {std::string("golf.cfg"), play::kp() + "/golf.cfg"}) {
        platform::attempt([&] {
            std::string found = course::findfile(path, course::NameRule::lowerCase);
            if (found.empty()) return;
            course::File f = course::openread(found);
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
