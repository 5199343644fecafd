// The platform's life, its window and its event loop.
#include "platform/real/sdl_platform.h"

#include <signal.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "platform/real/keymap.h"

namespace platform::real {

namespace {

// Set by SIGTERM, SIGINT or SIGHUP; the next yield runs the end handler. A
// signal handler may do no more than this.
volatile std::sig_atomic_t endAsked = 0;

void askEnd(int) { endAsked = 1; }

void catchEndSignals() {
    struct sigaction sa {};
    sa.sa_handler = askEnd;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGHUP, &sa, nullptr);
    // A closed pipe behind --text or the journal is a failed write, not the end.
    signal(SIGPIPE, SIG_IGN);
}

bool named(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

// An event pushed from any thread wakes the terminal's wait, as it wakes
// the window's; not the mark SDL pushes at each poll of its own.
int SDLCALL wakeTerminal(void* terminal, SDL_Event* e) {
    if (e->type != SDL_POLLSENTINEL) static_cast<Terminal*>(terminal)->wake();
    return 1;
}

}  // namespace

SdlPlatform::SdlPlatform(Keys keys) : keys_(keys) {
    const char* trace = std::getenv("GREENLARK_TRACE");
    trace_ = trace && std::string(trace) == "1";
    // SIGINT, SIGTERM and SIGHUP end the program through the game's end
    // handler, at the next yield; SDL does not turn them into a close command.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    catchEndSignals();
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Greenlark");
    if (SDL_Init(SDL_INIT_EVENTS) != 0) throw std::runtime_error(std::string("cannot start SDL: ") + SDL_GetError());
    sdlUp_ = true;
    if (!openVideo()) openTerminal();
    wakeEvent_ = SDL_RegisterEvents(1);
    openAudio();
    // Only a running speech-dispatcher is asked, and off this thread.
    if (dispatcherReachable()) dispatcherSearch_ = std::async(std::launch::async, &Dispatcher::open);
}

// A display is there when one is named (X, Wayland, or a video driver chosen
// for SDL). With none, SDL would draw off screen, where no key ever comes.
bool SdlPlatform::openVideo() {
    if (keys_ == Keys::terminal) return false;
    bool either = keys_ == Keys::windowOrTerminal;
    if (either && !named("DISPLAY") && !named("WAYLAND_DISPLAY") && !named("SDL_VIDEODRIVER")) return false;
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        if (either) return false;
        throw std::runtime_error(std::string("cannot start SDL: ") + SDL_GetError());
    }
    const char* driver = SDL_GetCurrentVideoDriver();
    if (!either || named("SDL_VIDEODRIVER") || !driver || std::string(driver) != "offscreen") return true;
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return false;
}

void SdlPlatform::openTerminal() {
    terminal_ = Terminal::open(trace_);
    if (!terminal_)
        throw std::runtime_error(keys_ == Keys::terminal ? "no terminal to play in"
                                                         : "no display for the window and no terminal to play in");
    SDL_AddEventWatch(wakeTerminal, terminal_.get());
}

SdlPlatform::~SdlPlatform() { shutdown(); }

// Without a sound card the game still runs: sound calls fail and speech is
// silent. espeak-ng starts before our stream does: its start opens a stream
// of its own on the sound server, which made ours run dry while it was young.
void SdlPlatform::openAudio() {
    startSynthesiser();
    try {
        audio_ = std::make_unique<AudioOutput>(wakeEvent_);
    } catch (const Failure&) {
        return;
    }
    speech_ = std::make_unique<SpeechEngine>(audio_->mixer().speech(), audio_->rate());
}

void SdlPlatform::shutdown() {
    Terminal::restore();
    journal_.finish();
    if (dispatcherSearch_.valid()) dispatcherSearch_.wait();
    dispatcherSearch_ = {};
    dispatcher_.reset();
    speech_.reset();
    audio_.reset();
    if (terminal_) SDL_DelEventWatch(wakeTerminal, terminal_.get());
    terminal_.reset();
    if (window_) SDL_DestroyWindow(window_);
    window_ = nullptr;
    if (sdlUp_) SDL_Quit();
    sdlUp_ = false;
}

void SdlPlatform::endProcess() {
    shutdown();
    std::_Exit(0);
}

// In a terminal the caption is its title, written once.
void SdlPlatform::showWindow(const std::string& caption) {
    caption_ = caption;
    if (!window_ && !terminal_) openWindow();
    if (terminal_) {
        terminal_->title(caption);
    } else {
        SDL_SetWindowTitle(window_, caption.c_str());
        SDL_RaiseWindow(window_);
        // Sends the requests to the display now; events wait in SDL's queue.
        SDL_PumpEvents();
    }
    pacer_.active();
}

// A window that cannot be opened leaves the terminal, where one may be used.
void SdlPlatform::openWindow() {
    window_ = SDL_CreateWindow(caption_.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 480, 320,
                               SDL_WINDOW_SHOWN);
    if (window_) {
        SDL_StopTextInput();
        return;
    }
    std::string why = SDL_GetError();
    if (keys_ != Keys::windowOrTerminal) throw std::runtime_error("cannot open the window: " + why);
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    openTerminal();
}

void SdlPlatform::messageBox(const std::string& text) {
    SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_INFORMATION, caption_.c_str(), text.c_str(), window_);
    pacer_.active();
}

// Each event is taken off the queue before its handler runs, so a handler
// may turn the loop again from inside.
void SdlPlatform::deliver(const SDL_Event& e) {
    if (e.type == SDL_KEYDOWN) {
        if (int key = virtualKey(e.key.keysym.scancode, e.key.keysym.sym)) deliverKey(key);
    } else if (e.type == SDL_QUIT) {
        pacer_.active();
        journal_.closed();
        if (onClose_) onClose_();
    } else if (e.type == wakeEvent_) {
        pacer_.active();
    }
}

void SdlPlatform::deliverKey(int key) {
    pacer_.active();
    if (journal_.on()) journal_.key(key, playingIndicator());
    if (onKey_) onKey_(key);
}

// Polls; when nothing is there, sleeps as long as the pacer allows or until
// an event or a byte from the terminal comes.
bool SdlPlatform::nextEvent(SDL_Event& e) {
    if (SDL_PollEvent(&e)) return true;
    int ms = pacer_.sleepFor(tick());
    if (!terminal_) return ms > 0 && SDL_WaitEventTimeout(&e, ms);
    if (ms > 0) terminal_->wait(ms, tick());
    return SDL_PollEvent(&e);
}

void SdlPlatform::endIfAsked() {
    if (terminal_ && terminal_->closedNow()) endAsked = 1;
    if (!endAsked) return;
    endAsked = 0;
    if (onEnd_) onEnd_();
    endProcess();
}

// A terminal's keys are taken one at a time, so that a handler that turns
// the loop from inside takes the ones behind it in their order.
void SdlPlatform::yield() {
    endIfAsked();
    SDL_Event e;
    if (nextEvent(e)) {
        deliver(e);
        while (SDL_PollEvent(&e)) deliver(e);
    }
    if (!terminal_) return;
    terminal_->turn(tick());
    while (int key = terminal_->nextKey(tick())) deliverKey(key);
}

}  // namespace platform::real
