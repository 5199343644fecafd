// The voices the speech service offers, and the speaking rate.
#pragma once

#include <string>

namespace platform::real {

int voiceCount();
// espeak-ng's name for voice `index` ("en-us", "en+f3"); the first voice for
// an index out of range.
std::string voiceId(int index);
// A name the voice can speak: "American English, female".
std::string voiceTitle(int index);
// The game's rate (0 normal, each step about ten per cent faster or slower)
// as espeak-ng's words per minute.
int wordsPerMinute(int rate);

}  // namespace platform::real
