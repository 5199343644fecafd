// The machine's own share of the dropouts: a bare SDL stream with the
// game's format and period, playing a steady tone and nothing else, for
// dropouts.sh to count as it counts the game's. Ends on SIGTERM.
//
// usage: bench_tone
#include <SDL2/SDL.h>

#include <cmath>
#include <csignal>
#include <cstdio>

namespace {

volatile std::sig_atomic_t stopping = 0;
double phase = 0;

void onSignal(int) { stopping = 1; }

// A 440 Hz tone at -20 dBFS on both sides.
void SDLCALL fill(void*, Uint8* stream, int len) {
    auto* out = reinterpret_cast<float*>(stream);
    for (int i = 0; i < len / 8; ++i) {
        float v = 0.1f * float(std::sin(phase));
        phase = std::fmod(phase + 2 * M_PI * 440 / 48000, 2 * M_PI);
        out[2 * i] = out[2 * i + 1] = v;
    }
}

}  // namespace

int main() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_Init(SDL_INIT_AUDIO) != 0) return 1;
    SDL_AudioSpec want{};
    want.freq = 48000;
    want.format = AUDIO_F32SYS;
    want.channels = 2;
    want.samples = 256;
    want.callback = fill;
    SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &want, nullptr, 0);
    if (!device) {
        std::fprintf(stderr, "bench_tone: %s\n", SDL_GetError());
        return 1;
    }
    std::signal(SIGTERM, onSignal);
    std::signal(SIGINT, onSignal);
    SDL_PauseAudioDevice(device, 0);
    while (!stopping) SDL_Delay(50);
    SDL_CloseAudioDevice(device);
    SDL_Quit();
    return 0;
}
