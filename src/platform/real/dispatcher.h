// Speech through speech-dispatcher: the synthesiser, voice and rate a player
// chose for the desktop (espeak-ng with their settings, RHVoice, Piper ...).
// Only speech goes there; the game's sounds stay in our mixer.
//
// speech-dispatcher is asked only when its socket is there, and the whole
// search for its voices runs on a thread of its own, so a player without it
// waits for nothing.
#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace platform::real {

struct DispatcherVoice {
    std::string module;
    std::string name;    // the synthesis voice; empty: the module's own default
    std::string title;
};

// A module's voices as the game offers them: its default voice, and its
// first English voice, if it offers English at all. `voices` holds pairs of
// name and language as the module lists them.
std::vector<DispatcherVoice> offeredVoices(const std::string& module,
                                           const std::vector<std::pair<std::string, std::string>>& voices);
// The game's rate (0 normal, a step about ten per cent) on the dispatcher's
// scale of -100 to 100.
int dispatcherRate(int rate);
// The game's volume, 0 to 100, on the dispatcher's scale of -100 to 100.
int dispatcherVolume(int volume);

class Dispatcher {
public:
    // Connects and lists the voices; nullptr when speech-dispatcher is not
    // running or offers no English voice. Blocks: run it off the game thread.
    static std::unique_ptr<Dispatcher> open();
    ~Dispatcher();
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;

    const std::vector<DispatcherVoice>& voices() const { return voices_; }
    void use(int index);
    void setRate(int rate);
    void setVolume(int volume);
    // Queues a text.
    void say(const std::string& text);
    // Stops the text being spoken and drops the queue.
    void silence();
    // From the moment a text is queued until speech-dispatcher tells that the
    // last one has ended or was cancelled.
    bool speaking();

    // speech-dispatcher's notifications; public for its C interface only.
    void finished(std::size_t message);

private:
    explicit Dispatcher(void* connection) : connection_(connection) {}
    void listVoices();

    void* connection_;   // speech-dispatcher's SPDConnection
    std::vector<DispatcherVoice> voices_;
    std::mutex mutex_;
    std::set<std::size_t> pending_;   // queued and not yet ended
    std::set<std::size_t> early_;     // ended before say() had noted them
    // Past this moment a text still not reported ended is taken as ended:
    // a dispatcher that went away must not hold the game for ever.
    std::chrono::steady_clock::time_point deadline_{};
};

// True when the socket of a running speech-dispatcher is there.
bool dispatcherReachable();

}  // namespace platform::real
