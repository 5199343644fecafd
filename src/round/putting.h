// The green: the ball at rest in whole feet from the pin, the arrival report
// and the putt.
#pragma once

#include <string>

namespace play {

// The green step, after a shot that reached the green or the hole and after
// each putt: counts the stroke, brings remain to whole feet (0 is a holed
// ball), holds for the last putt's pause, and after a missed putt groans and
// tells how far it went.
void settle();
// The arrival report, from the pause after the stroke to the putt prompt.
void greenloop();
// The key, the countdown and the reading of a putt, and where it leaves the
// ball: remain is 0 when it drops.
void putt();
// The distance to the pin; also the F2 reply on the green.
void sayongreen();
// The putt prompt; also the F1 reply on the green.
void sayputtprompt();

inline constexpr const char* puttPrompt =
    " Press any key when you are ready to putt, press the space bar to putt. ";

// A ball where a stroke left it, brought to rest: cut to 40 feet, 0 when it
// is within 1.4 feet of the pin either side, otherwise whole feet out.
double atrest(double remain);
// A distance in feet to the nearest whole foot, a half rounding up.
int nearfeet(double feet);
// The putt about to be played drops whatever its power: too many putts, or
// the fifth stroke of the hole.
bool forcedin();
// " putt went  20 feet " for a putt that travelled feet.
std::string puttwent(double feet);
// " You are on the green 10 feet from the pin. " for a ball feet out.
std::string ongreen(int feet);

}  // namespace play
