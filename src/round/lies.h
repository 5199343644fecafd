// What the lie does to a swing and what a shot costs: the shot dispatch, the
// greenside zone and the close of every shot that stays off the green.
#pragma once

namespace play {

// Sorts the finished swing (wrong club, sand shot, rough or trees, clean)
// and plays it out through the flight.
void shotdispatch();
// The landing zone 16 to 25 yards from the green: the trap or the pond.
void greenside();
// Counts the stroke, runs a penalty, reports the shot and queues the club
// prompt.
void aftershot();

// ---- the rolls, with the uniform draw u given
// A sand shot below 13 stays in the trap.
inline constexpr double escapeNeeded = 13;
double escaperoll(double u, int dirty, int hookset);
// The swing fraction left to a ball played out of the sand: cut to 30..49
// per cent, floored to hundredths, never below 0.02.
double sandpower(double pw, double u);
// A wood from the rough or the trees is clean from 18 on.
inline constexpr int roughNeeded = 18;
int roughroll(double u, int dirty);
// The greenside zone: 2 is the pond, anything else the trap.
int greensidepick(double u, int hf, int trapped);

}  // namespace play
