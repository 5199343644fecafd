// Adapting the game's texts to how espeak-ng reads them.
#pragma once

#include <string>

namespace platform::real {

// A hyphen between two letters becomes a blank, so that "A-chicken-farm"
// is read as the words "a chicken farm" and not as one run-together word
// beginning with the letter name "A". Everything else stays as it is.
std::string textForSynth(const std::string& text);

}  // namespace platform::real
