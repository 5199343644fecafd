// The real platform: an SDL2 window that takes the keyboard (or the terminal
// the game was started from, where there is no display), our mixer on SDL's
// audio callback, and espeak-ng speech mixed into the same output.
#pragma once

#include <SDL2/SDL.h>

#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "platform/real/audio_output.h"
#include "platform/real/dispatcher.h"
#include "platform/real/journal.h"
#include "platform/real/pacer.h"
#include "platform/real/speech_engine.h"
#include "platform/real/terminal.h"

namespace platform::real {

// Where the keys come from: a window, the terminal the program was started
// from, or a window when a display can be opened and else the terminal.
enum class Keys { window, terminal, windowOrTerminal };

class SdlPlatform : public Platform {
public:
    explicit SdlPlatform(Keys keys = Keys::window);
    ~SdlPlatform() override;
    SdlPlatform(const SdlPlatform&) = delete;
    SdlPlatform& operator=(const SdlPlatform&) = delete;

    // Releases the voice, the audio and the window. Safe to call twice.
    void shutdown();
    // Writes the game into a journal from here on; false if the file cannot
    // be written.
    bool journalTo(const std::string& path) { return journal_.open(path); }
    // Writes each spoken text as a line on standard output as well.
    void writeTexts() { texts_ = true; }

    void showWindow(const std::string& caption) override;
    void setKeyHandler(std::function<void(int)> onKey) override { onKey_ = std::move(onKey); }
    void setCloseHandler(std::function<void()> onClose) override { onClose_ = std::move(onClose); }
    void setEndHandler(std::function<void()> onEnd) override { onEnd_ = std::move(onEnd); }
    void yield() override;
    std::uint32_t tick() override { return SDL_GetTicks(); }
    std::uint64_t clockSeed() override;
    void dueAt(std::uint32_t ms) override { pacer_.dueAt(ms); }
    void messageBox(const std::string& text) override;
    void beep() override;
    std::string dateText() override;
    double timeOfDay() override;
    [[noreturn]] void endProcess() override;

    int voiceCount() override;
    std::string voiceName(int index) override;
    void createVoice() override;
    void releaseVoice() override;
    void setVoice(int index) override;
    void setRate(int rate) override;
    void setVolume(int volume) override;
    void speak(const std::string& text, int flag) override;
    int runningState() override;

    void openSoundDevice() override;
    void closeSoundDevice() override;
    int createBuffer(const std::string& path) override;
    void releaseBuffer(int id) override;
    int getFrequency(int id) override;
    void setFrequency(int id, int hz) override;
    void setCurrentPosition(int id, long bytes) override;
    CursorPair getCurrentPosition(int id) override;
    void setVolumeDb(int id, int hundredthsDb) override;
    void setPan(int id, int hundredthsDb) override;
    void play(int id, int loopFlag) override;
    int getStatus(int id) override;
    void stop(int id) override;
    void restore(int id) override;

    std::vector<DirEntry> list(const std::string& pattern) override;
    void makeDir(const std::string& path) override;
    void removeFile(const std::string& path) override;
    std::string readFile(const std::string& path) override;
    void writeFile(const std::string& path, const std::string& data) override;
    void appendFile(const std::string& path, const std::string& data) override;
    std::string documentsFolder() override;
    std::string programFolder() override;
    void startProgram(const std::string& path) override;
    // To standard error when GREENLARK_TRACE=1 was set at start.
    void failed(const std::string& what) override;

private:
    void openAudio();
    // SDL's video, when a display can be opened; false when it cannot.
    bool openVideo();
    void openWindow();
    // The terminal in place of the window; throws when there is none.
    void openTerminal();
    void deliver(const SDL_Event& e);
    void deliverKey(int key);
    bool nextEvent(SDL_Event& e);
    // A SIGTERM, SIGINT or SIGHUP came, or the terminal was closed: the end
    // handler runs.
    void endIfAsked();
    // The mixer; throws Failure when the sound device is not open.
    Mixer& openMixer();
    // The mixer for a call on game sound `id`; throws Failure when the sound
    // device is not open or the id is not the game's.
    Mixer& soundsFor(int id);
    void applyVoice();
    // speech-dispatcher, once its search has ended; nullptr when it is not
    // there.
    Dispatcher* dispatcher();
    bool onDispatcher() { return dispatcherVoice_ >= 0 && dispatcher(); }
    // The power indicator playing now, if one is, for the journal.
    std::optional<Journal::Indicator> playingIndicator();

    SDL_Window* window_ = nullptr;
    Keys keys_ = Keys::window;
    std::unique_ptr<Terminal> terminal_;
    bool texts_ = false;
    std::string caption_;
    std::function<void(int)> onKey_;
    std::function<void()> onClose_;
    std::function<void()> onEnd_;
    Pacer pacer_;
    std::uint32_t wakeEvent_ = 0;
    bool sdlUp_ = false;
    bool trace_ = false;

    std::unique_ptr<AudioOutput> audio_;
    std::unique_ptr<SpeechEngine> speech_;
    bool soundOpen_ = false;
    int beepId_ = 0;

    bool voiceMade_ = false;
    int voiceIndex_ = 0;
    int rate_ = 0;
    int volume_ = 100;

    std::future<std::unique_ptr<Dispatcher>> dispatcherSearch_;
    std::unique_ptr<Dispatcher> dispatcher_;
    bool dispatcherGivenUp_ = false;
    int dispatcherVoice_ = -1;   // the voice in use is speech-dispatcher's
    Journal journal_;
};

}  // namespace platform::real
