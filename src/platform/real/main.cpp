// The real program: the SDL2 platform under the game.
//   greenlark [--terminal] [--text] [--journal FILE]
// --journal writes the game into FILE as a greenlark-sim script.
// --terminal plays in the terminal even where a window could open; without
// a display the game plays there anyway. --text writes each spoken text as
// a line on standard output.
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <string>

#include "platform/real/sdl_platform.h"
#include "platform/real/system_info.h"
#include "session/entry.h"

namespace {

struct Options {
    bool terminal = false;
    bool text = false;
};

// The journal's file, empty for none; false for arguments it cannot read.
bool readArgs(int argc, char** argv, std::string& journal, Options& o) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--terminal") == 0) o.terminal = true;
        else if (std::strcmp(argv[i], "--text") == 0) o.text = true;
        else if (std::strcmp(argv[i], "--journal") != 0 || i + 1 >= argc || !journal.empty() || !*argv[i + 1])
            return false;
        else
            journal = argv[++i];
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::string journal;
    Options o;
    if (!readArgs(argc, argv, journal, o)) {
        std::fprintf(stderr, "usage: greenlark [--terminal] [--text] [--journal FILE]\n");
        return 2;
    }
    // A journal named from where the program was started.
    if (!journal.empty()) journal = std::filesystem::absolute(journal).string();
    // The game starts in its data folder, wherever it was started from: the
    // wave checks and the launcher look in the working folder.
    platform::real::startInDataFolder();
    try {
        platform::real::SdlPlatform sdl(o.terminal ? platform::real::Keys::terminal
                                                   : platform::real::Keys::windowOrTerminal);
        if (o.text) sdl.writeTexts();
        if (!journal.empty() && !sdl.journalTo(journal)) {
            std::fprintf(stderr, "greenlark: cannot write the journal %s\n", journal.c_str());
            return 2;
        }
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
