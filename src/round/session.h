// What a round needs from the session: the saved game, the course picker and
// loader, and the way out of the program.
#pragma once

namespace play {

// Reads the saved game: resumed, and when 1 the round's figures.
void loadgame();
// The saved game replaced by the mark of no saved game.
void clearsave();
// The player picks a course: c, the log's head, loadcourse.
void pickcourse();
// Fills the hole table of course c.
void loadcourse();
// Leaves the program; does not return.
void leavegame();

}  // namespace play
