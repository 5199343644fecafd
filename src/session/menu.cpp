// Stand-in for the main menu until it exists: one round on the first
// built-in course.
#include "session/menu.h"

#include "course/catalogue.h"
#include "course/course.h"
#include "course/locs.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/session.h"
#include "round/state.h"

namespace session {

void mainmenu() {
    if (course::cs.locs[1].empty()) course::fillLocs();
    play::rs.nocs = course::GetCors(play::kp());
    platform::reseedFromClock();
    play::rs.c = 1;
    play::playround();
}

}  // namespace session
