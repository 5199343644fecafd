// The game's sound output: our own stream on a PulseAudio server wherever
// one answers (PipeWire's pulse layer included), SDL's audio device where
// none does. GREENLARK_AUDIO=sdl or =pulse chooses by hand; an SDL audio
// driver named in SDL_AUDIODRIVER other than PulseAudio's chooses SDL.
// Whichever it is, the game's sounds go through its mixer.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/real/mixer.h"
#include "platform/real/pulse_output.h"
#include "platform/real/sdl_output.h"

namespace platform::real {

class AudioOutput {
public:
    // How long the output stays silent before the stream stops.
    static constexpr int kSleepMs = 2000;

    // `wakeEvent` is the SDL event type pushed when a sound or the speech
    // ends. Throws Failure when neither output can be opened.
    explicit AudioOutput(std::uint32_t wakeEvent, int sleepMs = kSleepMs);

    Mixer& mixer() { return pulse_ ? pulse_->mixer() : sdl_->mixer(); }
    int rate() const { return pulse_ ? pulse_->rate() : sdl_->rate(); }
    // Something is about to sound: the stream keeps running, or starts again
    // if it had stopped. Returns at once.
    void wake() { pulse_ ? pulse_->wake() : sdl_->wake(); }
    bool streaming() const { return pulse_ ? pulse_->streaming() : sdl_->streaming(); }
    // "pulse" or "sdl".
    std::string kind() const { return pulse_ ? "pulse" : "sdl"; }
    // True while changes are written over what is buffered.
    bool rewrites() const { return pulse_ && pulse_->rewrites(); }

private:
    std::unique_ptr<PulseOutput> pulse_;
    std::unique_ptr<SdlOutput> sdl_;
};

// Whether to try PulseAudio first, from GREENLARK_AUDIO and SDL_AUDIODRIVER
// (either may be null).
bool pulseFirst(const char* chosen, const char* sdlDriver);

}  // namespace platform::real
