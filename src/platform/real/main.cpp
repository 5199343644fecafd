// The real program: the SDL2 platform under the game.
#include <cstdio>
#include <exception>

#include "platform/real/sdl_platform.h"
#include "platform/real/system_info.h"
#include "session/entry.h"

int main() {
    // The game starts in its data folder, wherever it was started from: the
    // wave checks and the launcher look in the working folder.
    platform::real::startInDataFolder();
    try {
        platform::real::SdlPlatform sdl;
        platform::install(&sdl);
        try {
            session::gamemain();
        } catch (const platform::ProgramEnd&) {
        }
        sdl.shutdown();
        platform::install(nullptr);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "greenlark: %s\n", e.what());
        return 1;
    }
    return 0;
}
