// What the lie does to a swing and what a shot costs: the shot dispatch, the
// greenside zone and the close of every shot that stays off the green.
#pragma once

namespace play {

// Sorts the finished swing and plays it out through the flight.
void shotdispatch();
// The landing zone 16 to 25 yards from the green: the trap or the pond.
void greenside();
// Counts the stroke, reports the shot and queues the club prompt.
void aftershot();

}  // namespace play
