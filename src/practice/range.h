// The driving range: shot after shot with no hole, no lie and no crowd; all
// that comes back from a shot is its length.
#pragma once

#include <string>

namespace practice {

inline constexpr const char* continuePrompt = " Press any key to continue or e to exit. ";

// The range's key wait: the voice stops at any key, Up and Down come back at
// once, F1 and F2 are answered here, Escape leaves the range.
void rangewait();
// The club prompt and its two waits, with the range's own key wait; leaves
// the club value in the practice state.
void rangeclub();

// " shot went  250 yards.  Press any key to continue or e to exit. "
std::string rangereport(int yds);

}  // namespace practice
