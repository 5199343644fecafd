// The spoken texts as lines on standard output, for a player who follows
// the game on a braille display (greenlark --text).
#pragma once

#include <string>

namespace platform::real {

// A spoken text as one line: control characters as blanks, each run of
// blanks as one, none at either end. Empty for a text of blanks.
std::string textLine(const std::string& spoken);

// Writes the text's line, when it has one, on standard output at once.
void writeTextLine(const std::string& spoken);

}  // namespace platform::real
