// What the voice keeps between prompts: the key naming switch, the rate and
// the line getter typed.
#pragma once

#include <string>

namespace voice {

struct VoiceState {
    int keytog = 0;   // 1 silences saykey and saykey2
    int vr = 0;       // the voice's rate; one step of F9 is 1
    std::string r;    // what getter typed
};

extern VoiceState vs;

}  // namespace voice
