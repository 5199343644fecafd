// A platform for the fuzz targets: files live in memory, everything else
// does nothing. Listing matches names with the game's own wildcard rule.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/names.h"
#include "platform/platform.h"

namespace fuzz {

class MemPlatform : public platform::Platform {
public:
    std::map<std::string, std::string> files;   // full path -> bytes
    std::uint32_t ms = 0;                         // the clock

    void showWindow(const std::string&) override {}
    void setKeyHandler(std::function<void(int)>) override {}
    void setCloseHandler(std::function<void()>) override {}
    // Each turn of the event loop is a millisecond, so that a pause ends.
    void yield() override { ++ms; }
    std::uint32_t tick() override { return ms; }
    void setEndHandler(std::function<void()>) override {}
    void dueAt(std::uint32_t) override {}
    void messageBox(const std::string&) override {}
    void beep() override {}
    std::string dateText() override { return "11/22/2026"; }
    std::uint64_t clockSeed() override { return 1; }
    double timeOfDay() override { return 12 * 3600; }
    [[noreturn]] void endProcess() override { throw platform::Failure("end of process"); }
    int voiceCount() override { return 1; }
    std::string voiceName(int) override { return "voice"; }
    void createVoice() override {}
    void releaseVoice() override {}
    void setVoice(int) override {}
    void setRate(int) override {}
    void setVolume(int) override {}
    void speak(const std::string&, int) override {}
    int runningState() override { return 0; }
    void openSoundDevice() override {}
    void closeSoundDevice() override {}
    int createBuffer(const std::string&) override { return 1; }
    void releaseBuffer(int) override {}
    int getFrequency(int) override { return 22050; }
    void setFrequency(int, int) override {}
    void setCurrentPosition(int, long) override {}
    platform::CursorPair getCurrentPosition(int) override { return {}; }
    void setVolumeDb(int, int) override {}
    void setPan(int, int) override {}
    void play(int, int) override {}
    int getStatus(int) override { return 0; }
    void stop(int) override {}
    void restore(int) override {}

    std::vector<platform::DirEntry> list(const std::string& pattern) override {
        size_t slash = pattern.find_last_of('/');
        std::string folder = pattern.substr(0, slash + 1), wild = pattern.substr(slash + 1);
        std::vector<platform::DirEntry> out;
        for (const auto& [path, bytes] : files) {
            if (path.compare(0, folder.size(), folder) != 0) continue;
            std::string name = path.substr(folder.size());
            if (name.find('/') == std::string::npos && platform::wildMatch(wild, name)) {
                platform::DirEntry e;
                e.name = name;
                out.push_back(e);
            }
        }
        return out;
    }
    void makeDir(const std::string&) override {}
    void removeFile(const std::string& path) override { files.erase(path); }
    std::string readFile(const std::string& path) override {
        auto it = files.find(path);
        if (it == files.end()) throw platform::Failure("no file " + path);
        return it->second;
    }
    void writeFile(const std::string& path, const std::string& data) override { files[path] = data; }
    void appendFile(const std::string& path, const std::string& data) override { files[path] += data; }
    std::string documentsFolder() override { return "/docs"; }
    std::string programFolder() override { return "/game"; }
    void startProgram(const std::string&) override {}
    void failed(const std::string&) override {}
};

// The platform of type P, made and installed the first time a target asks
// for it; every later input of the run finds the same one.
template <class P = MemPlatform>
P& installed() {
    static P* p = [] {
        auto* made = new P;
        platform::install(made);
        return made;
    }();
    return *p;
}

// Takes pieces off the fuzz input: a piece is its length (one byte, or two
// little-endian bytes for a big one) and its bytes; a length past the end
// takes what is left.
struct Pieces {
    const std::uint8_t* data;
    size_t size;
    size_t at = 0;
    bool more() const { return at < size; }
    std::string take(bool big) {
        size_t n = 0;
        if (at < size) n = data[at++];
        if (big && at < size) n |= size_t(data[at++]) << 8;
        n = std::min(n, size - at);
        std::string out(reinterpret_cast<const char*>(data + at), n);
        at += n;
        return out;
    }
};

// Stops the target where a property of the game's own does not hold.
#define FUZZ_CHECK(cond) \
    do { if (!(cond)) { __builtin_trap(); } } while (0)

}  // namespace fuzz
