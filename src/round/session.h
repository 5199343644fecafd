// What a round needs from the session: the player's folder, the saved game,
// the course picker and loader, and the way out of the program.
#pragma once

#include <string>

#include "session/leaving.h"
#include "session/picker.h"
#include "session/savedgame.h"

namespace play {

// The player's folder kp, as start-up found it.
std::string kp();
// The saved game and the course loader (session/savedgame.h).
using session::clearsave;
using session::deletesave;
using session::loadcourse;
using session::loadgame;
using session::savegame;
// The course picker (session/picker.h): c, the log's head, loadcourse.
using session::pickcourse;
// Leaves the program; does not return (session/leaving.h).
using session::leavegame;

}  // namespace play
