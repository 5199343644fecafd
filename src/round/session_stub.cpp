// Stand-in for the saved game, the course picker and the leaving until they
// exist: there is never a saved game, the course is the one already in c
// (built-in courses only), and leaving stops the sounds and ends the
// process.
#include "course/builtin.h"
#include "course/course.h"
#include "platform/platform.h"
#include "round/records.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"

namespace play {

void loadgame() { rs.resumed = 0; }

void clearsave() {}

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
