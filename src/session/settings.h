// The settings the player changes by ear from any wait: the name, the
// speech rate (F9), the volumes (F11) and the voice (F12, and at start-up).
// The three F-key routines run nested in whatever wait is active and leave
// g = F1 behind, so that the wait says its prompt again.
#pragma once

namespace session {

// Asks the player's name, offering the one golf.cfg holds; leaves it, with a
// blank at each end, in the voice room's r.
void getplayername();
// F9: the speech rate, by the arrow keys until Enter.
void adjrate();
// F11: the voice's volume, then the effects, then the ticks and power
// indicators, each stage ended by Enter.
void adjvol();
// Offers the voices one after another until the player keeps one; a is 1
// at start-up (the question comes with yes), 2 from F12 (with no).
void changevoice(int a);

// The highest voice index: one less than the number of voices.
int nov();
// A voice index outside the present list, as after a voice was removed,
// becomes voice 0.
void voiceinlist();
// Makes the voice object anew at the player's rate, voice and volume, the
// voice index first put in the list.
void makevoice();
// Sets the F9, F11 and F12 hooks of the key event to the routines above,
// where start-up has not set them.
void wiresettings();

}  // namespace session
