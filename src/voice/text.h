// How numbers and texts are joined into what the voice says.
#pragma once

#include <string>

namespace voice {

// A number in its spaced form: the digits behind one blank, or behind a
// minus when it is negative.
std::string spaced(long n);
// The text without its trailing blanks.
std::string cut(std::string text);

}  // namespace voice
