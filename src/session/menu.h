// The main menu: where the player goes between rounds and practice.
#pragma once

namespace session {

// Runs the main menu until the player leaves the program.
void mainmenu();

}  // namespace session
