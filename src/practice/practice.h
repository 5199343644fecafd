// Practice beside a round: the driving range, the putting green and the ball
// washer. Each is entered from the main menu and comes back to it.
#pragma once

namespace practice {

// Shots one after another at the range; "e" or Escape leaves it.
void driving();
// Balls one after another on the practice green; "e" or Escape leaves it.
void puttting();
// The washer runs over a quiet crowd until a key comes. The menu then marks
// the ball as washed.
void ballwasher();

}  // namespace practice
