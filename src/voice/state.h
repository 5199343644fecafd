// What the voice keeps between prompts: the key naming switch, the rate,
// volume and choice of voice, and the line getter typed.
#pragma once

#include <string>

namespace voice {

struct VoiceState {
    int keytog = 0;   // 1 silences saykey and saykey2
    int vr = 0;       // the voice's rate; one step of F9 is 1
    int vv = 95;      // the voice's volume, 0..100; one step of F11 is 5
    int nv = 0;       // index of the voice in the voice list
    std::string r;    // what getter typed
};

extern VoiceState vs;

}  // namespace voice
