// Stand-in for the course picker and the leaving until they exist: the
// course is the one already in c, and leaving stops the sounds, writes the
// mark of no saved game unless the player saved, and ends the process. The
// player's folder is taken from the documents folder until start-up keeps it.
#include "platform/platform.h"
#include "round/records.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

std::string kp() { return platform::os().documentsFolder() + "/brindlewick"; }

void pickcourse() {
    platform::attempt([] { startlog(rs.c); });
    loadcourse();
}

void leavegame() {
    sound::StopAllSounds();
    sound::stopWater();
    if (rs.savedexit != 1) platform::attempt(clearsave);
    platform::os().endProcess();
}

}  // namespace play
