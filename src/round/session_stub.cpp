// Stand-in for the saved game, the course picker and the leaving until they
// exist: there is never a saved game and saving writes nothing, the course
// is the one already in c (built-in courses only), and leaving stops the
// sounds and ends the process. The player's folder is taken from the
// documents folder until start-up keeps it.
#include "course/builtin.h"
#include "course/course.h"
#include "platform/platform.h"
#include "round/records.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

std::string kp() { return platform::os().documentsFolder() + "/brindlewick"; }

void loadgame() { rs.resumed = 0; }

void clearsave() {}

void savegame() { leavegame(); }

void pickcourse() {
    startlog(rs.c);
    loadcourse();
}

void loadcourse() {
    for (int h = 1; h <= 18; ++h) course::cs.HF[h] = 1;
    if (rs.c < 7) course::SetHolesData(rs.c);
}

void leavegame() {
    sound::StopAllSounds();
    sound::stopWater();
    platform::os().endProcess();
}

}  // namespace play
