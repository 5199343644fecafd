// What a round needs from the session: the player's folder, the saved game,
// the course picker and loader, and the way out of the program.
#pragma once

#include <string>

#include "session/picker.h"
#include "session/savedgame.h"

namespace play {

// The player's folder kp: the documents folder + "/brindlewick".
std::string kp();
// The saved game and the course loader (session/savedgame.h).
using session::clearsave;
using session::deletesave;
using session::loadcourse;
using session::loadgame;
using session::savegame;
// The course picker (session/picker.h): c, the log's head, loadcourse.
using session::pickcourse;
// Leaves the program; does not return.
void leavegame();

}  // namespace play
