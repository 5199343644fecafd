// The round driver: a round of 18 holes, played in order, from the first
// tee to the last putt, and the start and end of each hole.
#pragma once

#include <string>

namespace play {

// Plays a round: a new one (or a resumed one, once saved games exist).
void playround();
// The new round's figures cleared, the course picked.
void newround();
// Hole after hole until all are done, then the end of the round.
void holeloop();
// One hole from its start to its end.
void playhole();
// The shots of a hole until the ball is in the hole.
void shotcycle();
// The green: settle, and while the ball stays out, the arrival report and
// the next putt. Entered from the landing of a shot.
void greenstep();

void starthole();
void describehole();
// The text describehole speaks, from the hole in play.
std::string holetext();
void endhole();
void endround();

}  // namespace play
