#pragma once

#include <string>

namespace voice {

// Lets the player type a line of letters, digits and blanks; the result
// stands in vs.r. Escape leaves it empty.
void getter(const std::string& prompt);

}  // namespace voice
