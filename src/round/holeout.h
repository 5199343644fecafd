// The ball drops: the verdict against par, its counters, sounds and words,
// and the clapping that a good shot earns.
#pragma once

#include <string>

namespace play {

// The length of a ball holed from off the green, the sink sound, the class
// of the hole into sank, then scoreword.
void sinkball();
// The counter, the sounds and the words of the class in sank.
void scoreword();
// A short random clapping; returns at once. Silent while the crowd is off,
// after a penalty and after a misused club.
void applause();

// The class of stk strokes on a hole of par p:
//   1 double bogey, 2 bogey, 3 par, 4 worse than double bogey, 5 birdie,
//   6 hole in one, 7 eagle, 8 double eagle.
// A hole in one is 6 on any par. Three or more under par otherwise is 8:
// there is no better word, and every hole lands in one counter.
int classify(int stk, int p);
// The verdict's words for class sank, holed from off the green (greensaid 0)
// or on it (greensaid 1).
std::string verdicttext(int sank, int greensaid);

}  // namespace play
