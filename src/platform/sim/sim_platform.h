// The simulated platform: a virtual clock, scripted keys and a transcript
// of everything spoken, played and written.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/sim/runner.h"
#include "platform/sim/sim_sound.h"
#include "platform/sim/transcript.h"

namespace sim {

struct Options {
    std::string game;
    std::string cwd;
    std::string docs;
    int voices = 3;
    std::string date = "11/22/2026";
    double clockStart = 12 * 3600;
    double timeout = 900;
    // Where the tick count stands at the start; tests use it to cross the
    // wrap of the 32-bit count. The command line does not set it.
    std::uint32_t tickStart = 0;
};

class SimPlatform : public platform::Platform {
public:
    SimPlatform(const Options& o, Runner& r);

    // ---- what the runner uses
    std::uint64_t now() const { return clock_; }
    void deliverKey(int code);
    void deliverClose();
    bool cursorPast(const std::string& stem, double percent);
    void log(const std::string& body);

    // ---- the platform
    void showWindow(const std::string& caption) override;
    void setKeyHandler(std::function<void(int)> onKey) override { onKey_ = std::move(onKey); }
    void setCloseHandler(std::function<void()> onClose) override { onClose_ = std::move(onClose); }
    // No script asks the program to end.
    void setEndHandler(std::function<void()>) override {}
    void yield() override;
    std::uint32_t tick() override { return std::uint32_t(opt_.tickStart + clock_); }
    // The script's seed, or else the tick count.
    std::uint64_t clockSeed() override;
    void dueAt(std::uint32_t) override {}
    void messageBox(const std::string& text) override;
    void beep() override;
    std::string dateText() override { return opt_.date; }
    double timeOfDay() override;
    [[noreturn]] void endProcess() override;

    int voiceCount() override { return opt_.voices; }
    std::string voiceName(int index) override;
    void createVoice() override {}
    void releaseVoice() override {}
    void setVoice(int index) override;
    void setRate(int rate) override;
    void setVolume(int volume) override;
    void speak(const std::string& text, int flag) override;
    int runningState() override { return double(clock_) < speechEnd_ ? 2 : 0; }

    void openSoundDevice() override { device_.open = true; }
    void closeSoundDevice() override;
    int createBuffer(const std::string& path) override;
    void releaseBuffer(int id) override;
    int getFrequency(int id) override { return buf(id).freq; }
    void setFrequency(int id, int hz) override;
    void setCurrentPosition(int id, long bytes) override;
    platform::CursorPair getCurrentPosition(int id) override;
    void setVolumeDb(int id, int hundredthsDb) override;
    void setPan(int id, int hundredthsDb) override;
    void play(int id, int loopFlag) override;
    int getStatus(int id) override;
    void stop(int id) override;
    void restore(int id) override { buf(id); }

    std::vector<platform::DirEntry> list(const std::string& pattern) override;
    void makeDir(const std::string& path) override;
    void removeFile(const std::string& path) override;
    std::string readFile(const std::string& path) override;
    void writeFile(const std::string& path, const std::string& data) override;
    void appendFile(const std::string& path, const std::string& data) override;
    std::string documentsFolder() override { return opt_.docs; }
    std::string programFolder() override { return opt_.game; }
    void startProgram(const std::string& path) override;
    // A transcript line: fail "TEXT".
    void failed(const std::string& what) override { log("fail " + quote(what)); }

private:
    SimBuffer& buf(int id);
    std::string bufName(int id);
    double speechMs(const std::string& text) const;

    Options opt_;
    Runner& runner_;
    std::uint64_t clock_ = 0;
    double speechEnd_ = 0;
    int rate_ = 0;
    SimDevice device_;
    std::function<void(int)> onKey_;
    std::function<void()> onClose_;
};

}  // namespace sim
