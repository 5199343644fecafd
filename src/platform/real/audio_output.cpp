#include "platform/real/audio_output.h"

#include <cstdio>
#include <cstdlib>

namespace platform::real {

bool pulseFirst(const char* chosen, const char* sdlDriver) {
    std::string c = chosen ? chosen : "", d = sdlDriver ? sdlDriver : "";
    if (c == "pulse") return true;
    if (c == "sdl") return false;
    return d.empty() || d == "pulseaudio" || d == "pulse";
}

// A PulseAudio server that does not answer, or refuses our stream, leaves
// SDL's output to play.
AudioOutput::AudioOutput(std::uint32_t wakeEvent, int sleepMs) {
    if (pulseFirst(std::getenv("GREENLARK_AUDIO"), std::getenv("SDL_AUDIODRIVER"))) {
        try {
            pulse_ = std::make_unique<PulseOutput>(wakeEvent, sleepMs);
            return;
        } catch (const Failure& f) {
            const char* chosen = std::getenv("GREENLARK_AUDIO");
            if (chosen && std::string(chosen) == "pulse") std::fprintf(stderr, "greenlark: %s\n", f.what());
        }
    }
    sdl_ = std::make_unique<SdlOutput>(wakeEvent, sleepMs);
}

}  // namespace platform::real
