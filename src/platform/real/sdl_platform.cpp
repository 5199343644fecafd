// The platform's life, its window and its event loop.
#include "platform/real/sdl_platform.h"

#include <signal.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "platform/real/keymap.h"

namespace platform::real {

namespace {

// Set by SIGTERM or SIGINT; the next yield runs the end handler. A signal
// handler may do no more than this.
volatile std::sig_atomic_t endAsked = 0;

void askEnd(int) { endAsked = 1; }

void catchEndSignals() {
    struct sigaction sa {};
    sa.sa_handler = askEnd;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
}

}  // namespace

SdlPlatform::SdlPlatform() {
    const char* trace = std::getenv("GREENLARK_TRACE");
    trace_ = trace && std::string(trace) == "1";
    // SIGINT and SIGTERM end the program through the game's end handler, at
    // the next yield; SDL does not turn them into a close command.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    catchEndSignals();
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Greenlark");
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_EVENTS) != 0)
        throw std::runtime_error(std::string("cannot start SDL: ") + SDL_GetError());
    sdlUp_ = true;
    wakeEvent_ = SDL_RegisterEvents(1);
    openAudio();
    // Only a running speech-dispatcher is asked, and off this thread.
    if (dispatcherReachable()) dispatcherSearch_ = std::async(std::launch::async, &Dispatcher::open);
}

SdlPlatform::~SdlPlatform() { shutdown(); }

// Without a sound card the game still runs: sound calls fail and speech is
// silent. espeak-ng starts before our stream does: its start opens a stream
// of its own on the sound server, which made ours run dry while it was young.
void SdlPlatform::openAudio() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return;
    startSynthesiser();
    try {
        audio_ = std::make_unique<AudioOutput>(wakeEvent_);
    } catch (const Failure&) {
        return;
    }
    speech_ = std::make_unique<SpeechEngine>(audio_->mixer().speech(), audio_->rate());
}

void SdlPlatform::shutdown() {
    journal_.finish();
    if (dispatcherSearch_.valid()) dispatcherSearch_.wait();
    dispatcherSearch_ = {};
    dispatcher_.reset();
    speech_.reset();
    audio_.reset();
    if (window_) SDL_DestroyWindow(window_);
    window_ = nullptr;
    if (sdlUp_) SDL_Quit();
    sdlUp_ = false;
}

void SdlPlatform::endProcess() {
    shutdown();
    std::_Exit(0);
}

void SdlPlatform::showWindow(const std::string& caption) {
    caption_ = caption;
    if (!window_) {
        window_ = SDL_CreateWindow(caption.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 480, 320,
                                   SDL_WINDOW_SHOWN);
        if (!window_) throw std::runtime_error(std::string("cannot open the window: ") + SDL_GetError());
        SDL_StopTextInput();
    }
    SDL_SetWindowTitle(window_, caption.c_str());
    SDL_RaiseWindow(window_);
    // Sends the requests to the display now; events wait in SDL's queue.
    SDL_PumpEvents();
    pacer_.active();
}

void SdlPlatform::messageBox(const std::string& text) {
    SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_INFORMATION, caption_.c_str(), text.c_str(), window_);
    pacer_.active();
}

// Each event is taken off the queue before its handler runs, so a handler
// may turn the loop again from inside.
void SdlPlatform::deliver(const SDL_Event& e) {
    if (e.type == SDL_KEYDOWN) {
        int key = virtualKey(e.key.keysym.scancode, e.key.keysym.sym);
        if (!key) return;
        pacer_.active();
        if (journal_.on()) journal_.key(key, playingIndicator());
        if (onKey_) onKey_(key);
    } else if (e.type == SDL_QUIT) {
        pacer_.active();
        journal_.closed();
        if (onClose_) onClose_();
    } else if (e.type == wakeEvent_) {
        pacer_.active();
    }
}

// Polls; when nothing is there, sleeps as long as the pacer allows or until
// an event comes.
bool SdlPlatform::nextEvent(SDL_Event& e) {
    if (SDL_PollEvent(&e)) return true;
    int ms = pacer_.sleepFor(tick());
    return ms > 0 && SDL_WaitEventTimeout(&e, ms);
}

void SdlPlatform::endIfAsked() {
    if (!endAsked) return;
    endAsked = 0;
    if (onEnd_) onEnd_();
    endProcess();
}

void SdlPlatform::yield() {
    endIfAsked();
    SDL_Event e;
    if (!nextEvent(e)) return;
    deliver(e);
    while (SDL_PollEvent(&e)) deliver(e);
}

}  // namespace platform::real
