// The one way out of the program, the close command of the window that does
// not leave the game, and the end the system asks for.
#pragma once

namespace session {

// The friendly leaving: the saved game settled, the closing sounds, thanks;
// then shutdown. Does not return.
void leavegame();
// golf.cfg written, the launcher looked for, everything released, the
// launcher started if it is there; the process ends.
void shutdown();
// shutdown without a word or a beep: the end after no voices were found.
void silentshutdown();
// The close command: never closes the game.
void Form_QueryUnload();
// golf15, held until it ends.
void egg2();
// The system asks the program to end (a signal): golf.cfg written, the
// objects released, the process ended, with nothing heard.
void endrequested();

inline constexpr char launcherName[] = "playdeck";

}  // namespace session
