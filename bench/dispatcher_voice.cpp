// The index the game gives the first speech-dispatcher voice: the voices
// come after the embedded ones, so golf.cfg chooses it by this number.
// Prints the index, and the voice's name on stderr; fails when
// speech-dispatcher offers no voice.
//
// usage: bench_voices
#include <cstdio>

#include "platform/real/sdl_platform.h"
#include "platform/real/voices.h"

int main() {
    platform::real::SdlPlatform p;
    p.createVoice();
    int first = platform::real::voiceCount();
    int found = p.voiceCount() > first ? first : -1;
    if (found >= 0) {
        std::printf("%d\n", found);
        std::fprintf(stderr, "speech-dispatcher voice %d: %s\n", found, p.voiceName(found).c_str());
    } else {
        std::fprintf(stderr, "speech-dispatcher offers no voice\n");
    }
    p.shutdown();
    return found >= 0 ? 0 : 1;
}
