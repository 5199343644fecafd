// Stand-in for the leaving until it exists: leaving stops the sounds, writes the
// mark of no saved game unless the player saved, and ends the process. The
// player's folder is taken from the documents folder until start-up keeps it.
#include "platform/platform.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

std::string kp() { return platform::os().documentsFolder() + "/brindlewick"; }

void leavegame() {
    sound::StopAllSounds();
    sound::stopWater();
    if (rs.savedexit != 1) platform::attempt(clearsave);
    platform::os().endProcess();
}

}  // namespace play
