// Choosing a club at the spoken prompt: a moving pointer, or a digit and the
// wood or iron question, or "p" and "w" for the pitching wedge.
#pragma once

#include <string>

namespace play {

// Says the prompt and the pointer at 1.
void clubprompt();
// From the first key wait on, until a club is chosen; leaves club and, for
// the pitching wedge, wedge. A key that is no choice says so and the prompt
// starts again.
void pickclub();

// ---- the rules of choice, shared with the range's prompt
// The club value of the pitching wedge.
inline constexpr double wedgeClub = 20;
// The pointer moved by one, from 1 round to the wedge and back.
int movednoc(int noc, int by);
// A digit key's club: only 1 to 9 are a choice.
bool digitclub(double club);
// The answer the wood or iron question offers: 1 wood up to 4, else 2 iron.
int offeredwi(double club);
// The key at the wood or iron question as the code of the letter it stands
// for: Enter takes the offered answer wi, "w" and "i" are themselves, and
// any other key keeps its own code.
std::string answercode(const std::string& g, const std::string& g2, int wi);
// The club value that answer makes of the digit's club, after "p" when
// pflag is 1; 0 when it is no choice.
double chosenclub(const std::string& code, double club, int pflag);

}  // namespace play
