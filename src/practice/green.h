// The putting green: a ball at a random distance, putted until it drops,
// then the next one. No strokes are counted and no putt is given.
#pragma once

#include <string>

namespace practice {

inline constexpr const char* holedPrompt = " Press any key to continue, or e to exit. ";

// A new ball: the generator seeded from the clock, 1 to 40 feet out.
void newball();
// The ball in the practice state putted until it drops, then the prompt to
// go on; false when "e" was pressed there. Leaves fq at failedCheck after a failed
// check of the indicator.
bool playball();
// The green's key wait: F1 and F2 are answered here, Escape leaves the
// green, and every other key comes back unspoken.
void greenwait();

// " putt went 20 feet" for a putt that travelled feet, a half foot rounding
// up; closing adds a blank behind the unit.
std::string puttwent(double feet, bool closing);
// The distance as F2 says it: " you are on the green 2 feet  from the pin ".
std::string greendistance(int feet);

}  // namespace practice
