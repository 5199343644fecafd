// Shared by the practice tests: the figures read back from a transcript, the
// sounds a visit must not make, and a game folder with a spoiled file.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "round/fresh_game.h"
#include "sim_harness.h"

namespace practicetest {

// The number behind the first occurrence of what in line at; -1 if none.
inline int numberAfter(const simtest::Result& r, int at, const std::string& what) {
    if (at < 0) return -1;
    const std::string& l = r.lines[size_t(at)];
    size_t p = l.find(what);
    if (p == std::string::npos) return -1;
    return std::atoi(l.c_str() + p + what.size());
}

// A transcript line without its time; empty for no line.
inline std::string body(const simtest::Result& r, int at) {
    if (at < 0 || at >= int(r.lines.size())) return "";
    const std::string& l = r.lines[size_t(at)];
    return l.substr(l.find(' ') + 1);
}

// The first line after at that is spoken (say or say2), without its time.
inline std::string spokenAfter(const simtest::Result& r, int at) {
    for (int i = at + 1; i < int(r.lines.size()); ++i) {
        std::string b = body(r, i);
        if (b.starts_with("say ") || b.starts_with("say2 ")) return b;
    }
    return "";
}

// Crowd, reaction and applause: none of them may play at a practice area.
inline int crowdSounds(const simtest::Result& r) {
    int n = 0;
    for (const char* stem : {"play golf10 ", "play golf8 ", "play golf9 ", "play golf11 ", "play golf12 ",
                             "play golf13 ", "play amb", "play golf31 "})
        n += r.count(stem);
    return n;
}

// A copy of the game's wave files with one of them cut short.
inline std::string gameWithout(const std::string& spoiled) {
    std::string dir = simtest::tempDir();
    for (const auto& e : std::filesystem::directory_iterator(GREENLARK_GAME_DIR))
        if (e.path().extension() == ".wav") std::filesystem::copy(e.path(), dir + "/" + e.path().filename().string());
    std::filesystem::resize_file(dir + "/" + spoiled, 1000);
    return dir;
}

}  // namespace practicetest
