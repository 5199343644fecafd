// The green: the ball at rest in feet from the pin, the arrival report and
// the putt.
#pragma once

namespace play {

// The green step: counts the stroke and brings remain to whole feet;
// remain 0 is a holed ball.
void settle();
// The arrival report and the putt prompt.
void greenloop();
// The key, the countdown and the reading of a putt, and where it ends.
void putt();

}  // namespace play
