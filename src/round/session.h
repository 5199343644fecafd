// What a round needs from the session: the player's folder, the saved game,
// the course picker and loader, and the way out of the program.
#pragma once

#include <string>

namespace play {

// The player's folder kp: the documents folder + "/brindlewick".
std::string kp();
// Reads the saved game: resumed, and when 1 the round's figures.
void loadgame();
// The saved game replaced by the mark of no saved game.
void clearsave();
// Writes the saved game, then leaves the program; does not return.
void savegame();
// The player picks a course: c, the log's head, loadcourse.
void pickcourse();
// Fills the hole table of course c.
void loadcourse();
// Leaves the program; does not return.
void leavegame();

}  // namespace play
