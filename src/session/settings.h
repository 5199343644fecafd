// The settings the player changes by ear from any wait: the name, the
// speech rate (F9), the volumes (F11) and the voice (F12, and at start-up).
#pragma once

namespace session {

// Asks the player's name; leaves it in the voice room's r.
void getplayername();
// F9: the speech rate.
void adjrate();
// F11: the voice, effects and indicator volumes.
void adjvol();
// a is 1 at start-up, 2 from F12.
void changevoice(int a);

}  // namespace session
