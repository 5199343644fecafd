// The one door from game code to the machine. Two implementations stand
// behind it: the real one (SDL2 window, our mixer, espeak-ng) and the
// simulated one that drives greenlark-sim. Game code never knows which.
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace platform {

// A platform call that fails throws this. The routine that made the call is
// abandoned and the game goes on behind it (see attempt()).
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Thrown by a platform to end the program from inside any wait. Game code
// never catches it.
struct ProgramEnd {};

struct DirEntry {
    std::string name;   // as found on disk
    std::uint64_t size = 0;
    bool isDir = false;
};

struct CursorPair {
    long play = 0;   // bytes of sound data from the start
    long write = 0;
};

// The flags of speak.
inline constexpr int speakWait = 0;    // returns when spoken
inline constexpr int speakQueue = 1;   // queues and returns
inline constexpr int speakPurge = 2;   // silences and empties the queue
// runningState while anything is being spoken.
inline constexpr int speechRunning = 2;
// The voice's rate: 0 normal, each step about ten per cent faster. A voice
// goes this many steps either way and no further.
inline constexpr int fastestRate = 10;
// getStatus of a buffer.
inline constexpr int statusPlaying = 1;   // a once-through play runs
inline constexpr int statusLooping = 5;

class Platform {
public:
    virtual ~Platform() = default;

    // ---- window and events
    virtual void showWindow(const std::string& caption) = 0;
    // Runs the key event for each key code delivered in a yield.
    virtual void setKeyHandler(std::function<void(int)> onKey) = 0;
    // Runs on the window's close command, inside a yield.
    virtual void setCloseHandler(std::function<void()> onClose) = 0;
    // Runs inside a yield when the system asks the program to end (SIGTERM,
    // SIGINT); the handler ends the process. Without one the process ends.
    virtual void setEndHandler(std::function<void()> onEnd) = 0;
    // One turn of the event loop: queued key and close events run here.
    virtual void yield() = 0;
    // Milliseconds from a monotonic clock.
    virtual std::uint32_t tick() = 0;
    // A seed for the random numbers, drawn from the clock. Every reseed of
    // the game comes through here, so that a platform can record the seeds
    // of a game and give them back when it is played again.
    virtual std::uint64_t clockSeed() = 0;
    // A hint that nothing is due before tick() reaches ms; the real yield may
    // sleep until then or until an event comes. Purely an optimisation.
    virtual void dueAt(std::uint32_t ms) = 0;
    virtual void messageBox(const std::string& text) = 0;
    virtual void beep() = 0;
    // The system's short date text, month first: "11/22/2026".
    virtual std::string dateText() = 0;
    // Seconds since midnight.
    virtual double timeOfDay() = 0;
    // Ends the process at once; does not return.
    [[noreturn]] virtual void endProcess() = 0;

    // ---- speech
    virtual int voiceCount() = 0;
    virtual std::string voiceName(int index) = 0;
    // Makes the voice object anew (releasing the old one).
    virtual void createVoice() = 0;
    virtual void releaseVoice() = 0;
    virtual void setVoice(int index) = 0;
    virtual void setRate(int rate) = 0;
    virtual void setVolume(int volume) = 0;
    // flag: speakWait, speakQueue or speakPurge.
    virtual void speak(const std::string& text, int flag) = 0;
    // speechRunning while anything is being spoken.
    virtual int runningState() = 0;

    // ---- sound device
    virtual void openSoundDevice() = 0;
    virtual void closeSoundDevice() = 0;
    // A new stopped buffer at position 0 holding the whole file; returns its
    // id (> 0). Throws Failure if the file cannot be read.
    virtual int createBuffer(const std::string& path) = 0;
    // Every call below on an id that does not exist throws Failure.
    virtual void releaseBuffer(int id) = 0;
    virtual int getFrequency(int id) = 0;
    virtual void setFrequency(int id, int hz) = 0;
    virtual void setCurrentPosition(int id, long bytes) = 0;
    virtual CursorPair getCurrentPosition(int id) = 0;
    virtual void setVolumeDb(int id, int hundredthsDb) = 0;
    virtual void setPan(int id, int hundredthsDb) = 0;
    virtual void play(int id, int loopFlag) = 0;
    // statusPlaying exactly while a once-through play runs; statusLooping
    // while looping; 0 stopped.
    virtual int getStatus(int id) = 0;
    virtual void stop(int id) = 0;
    virtual void restore(int id) = 0;

    // ---- files (relative paths resolve against the working folder)
    // An exact path or a wildcard pattern (* and ?) in its last part, matched
    // case-insensitively. Ordinary files and folders that match.
    virtual std::vector<DirEntry> list(const std::string& pattern) = 0;
    virtual void makeDir(const std::string& path) = 0;
    virtual void removeFile(const std::string& path) = 0;
    virtual std::string readFile(const std::string& path) = 0;   // throws Failure
    virtual void writeFile(const std::string& path, const std::string& data) = 0;
    virtual void appendFile(const std::string& path, const std::string& data) = 0;
    // The player's documents folder; empty when there is none.
    virtual std::string documentsFolder() = 0;
    // The program's own folder, where the wave files lie.
    virtual std::string programFolder() = 0;
    virtual void startProgram(const std::string& path) = 0;

    // ---- failures
    // A step abandoned under the error rule, and why. The player hears
    // nothing of it; a developer can read it.
    virtual void failed(const std::string& what) = 0;
};

// The platform the game runs on, set once by main.
Platform& os();
void install(Platform* p);

// Hands an abandoned step's failure to the installed platform, if any.
void reportFailure(const std::string& what);

// Runs a step under the error rule: a Failure abandons the step, and the game
// goes on behind it. Returns false when the step failed.
template <class F>
bool attempt(F&& step) {
    try {
        step();
        return true;
    } catch (const Failure& f) {
        reportFailure(f.what());
        return false;
    }
}

}  // namespace platform
