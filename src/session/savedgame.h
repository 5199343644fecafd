// The saved game: golfgame.sav in the player's folder holds a round left at
// the beginning of a hole, or the single value 0 when no game is saved. And
// loadcourse, which fills the hole table for the course in play.
#pragma once

#include <string>

namespace session {

// kp + "/golfgame.sav".
std::string savepath();
// Writes the round as the saved-game form, says " game saved " and leaves
// the program through leavegame, which finds savedexit at 1.
void savegame();
// The first step of every round: resumed is 1 when the file holds a saved
// game, whose figures are then restored and whose course is loaded. A file
// whose first value is not 1, that ends before its last value or that names
// a hole outside 1..18 holds none, and nothing of it is restored.
void loadgame();
// The mark of no saved game: the file holds the single value 0.
void clearsave();
// The saved game deleted.
void deletesave();
// Fills H, HF and fox for course c: the random course when c is nocs, a
// built-in below 7, else the custom file.
void loadcourse();

// The stored form of the round in play, as savegame writes it.
std::string savedform();

}  // namespace session
