// The PulseAudio output's life: the server connection, the main loop's
// thread, and the poke by which the game's threads reach that thread.
#include "platform/real/pulse_output.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <string>

namespace platform::real {

namespace {

// How long start-up waits for each of the server's answers.
constexpr pa_usec_t kAnswerUsec = 3 * PA_USEC_PER_SEC;

struct Locked {
    explicit Locked(pa_threaded_mainloop* loop) : loop(loop) { pa_threaded_mainloop_lock(loop); }
    ~Locked() { pa_threaded_mainloop_unlock(loop); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    pa_threaded_mainloop* loop;
};

struct Waiting {
    pa_threaded_mainloop* loop = nullptr;
    bool over = false;
    int rate = 0;
    std::string sink;
};

void timedOut(pa_mainloop_api*, pa_time_event*, const struct timeval*, void* waiting) {
    auto* w = static_cast<Waiting*>(waiting);
    w->over = true;
    pa_threaded_mainloop_signal(w->loop, 0);
}

// Waits, holding the main loop's lock, until `done` or the bound.
template <class Done>
bool waitUntil(Waiting& w, Done done) {
    pa_mainloop_api* api = pa_threaded_mainloop_get_api(w.loop);
    timeval at{};
    pa_timeval_add(pa_gettimeofday(&at), kAnswerUsec);
    w.over = false;
    pa_time_event* bound = api->time_new(api, &at, timedOut, &w);
    while (!done() && !w.over) pa_threaded_mainloop_wait(w.loop);
    api->time_free(bound);
    return done();
}

// The server's default rate, and its default sink.
void serverInfo(pa_context*, const pa_server_info* info, void* waiting) {
    auto* w = static_cast<Waiting*>(waiting);
    w->rate = info && pa_sample_spec_valid(&info->sample_spec) ? int(info->sample_spec.rate) : -1;
    if (info && info->default_sink_name) w->sink = info->default_sink_name;
    pa_threaded_mainloop_signal(w->loop, 0);
}

// The default sink's own rate, which spares the server resampling our
// stream.
void sinkInfo(pa_context*, const pa_sink_info* info, int eol, void* waiting) {
    auto* w = static_cast<Waiting*>(waiting);
    if (info && pa_sample_spec_valid(&info->sample_spec)) w->rate = int(info->sample_spec.rate);
    if (eol) w->sink.clear();
    pa_threaded_mainloop_signal(w->loop, 0);
}

template <class Done>
void ask(Waiting& w, pa_operation* asked, Done done) {
    if (!asked) return;
    waitUntil(w, done);
    pa_operation_unref(asked);
}

}  // namespace

PulseOutput::PulseOutput(std::uint32_t wakeEvent, int sleepMs) : sleepMs_(sleepMs) {
    wokenAt_ = monotonicNs();
    try {
        start(wakeEvent);
    } catch (const Failure&) {
        release();
        throw;
    }
}

PulseOutput::~PulseOutput() { release(); }

void PulseOutput::start(std::uint32_t wakeEvent) {
    pokeFd_ = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    loop_ = pa_threaded_mainloop_new();
    if (!loop_ || pokeFd_ < 0) throw Failure("no PulseAudio main loop");
    pa_mainloop_api* api = pa_threaded_mainloop_get_api(loop_);
    context_ = pa_context_new(api, "Greenlark");
    if (!context_) throw Failure("no PulseAudio context");
    pa_context_set_state_callback(context_, contextState, this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 ||
        pa_threaded_mainloop_start(loop_) < 0)
        throw Failure("no PulseAudio server");
    Locked lock(loop_);
    Waiting w;
    w.loop = loop_;
    auto settled = [this] { return !PA_CONTEXT_IS_GOOD(pa_context_get_state(context_)) ||
                                   pa_context_get_state(context_) == PA_CONTEXT_READY; };
    if (!waitUntil(w, settled) || pa_context_get_state(context_) != PA_CONTEXT_READY)
        throw Failure("no PulseAudio server answers");
    ask(w, pa_context_get_server_info(context_, serverInfo, &w), [&w] { return w.rate != 0; });
    if (!w.sink.empty()) {
        pa_operation* asked = pa_context_get_sink_info_by_name(context_, w.sink.c_str(), sinkInfo, &w);
        ask(w, asked, [&w] { return w.sink.empty(); });
    }
    if (w.rate <= 0) throw Failure("the PulseAudio server did not tell its rate");
    rate_ = std::clamp(w.rate, 8000, 192000);
    mixer_ = std::make_unique<Mixer>(rate_, 0);
    waker_ = std::make_unique<Waker>(*mixer_, wakeEvent);
    mixer_->onChange([this] { poke(); });
    pokeEvent_ = api->io_new(api, pokeFd_, PA_IO_EVENT_INPUT, &PulseOutput::poked, this);
    openStream();
    auto opened = [this] { return !stream_ || pa_stream_get_state(stream_) != PA_STREAM_CREATING; };
    if (!waitUntil(w, opened) || !stream_ || pa_stream_get_state(stream_) != PA_STREAM_READY)
        throw Failure("the PulseAudio server refused our stream");
}

// Safe after a start that failed half way.
void PulseOutput::release() {
    if (loop_) {
        {
            Locked lock(loop_);
            closeStream();
            pa_mainloop_api* api = pa_threaded_mainloop_get_api(loop_);
            if (drain_) api->time_free(drain_);
            drain_ = nullptr;
            if (pokeEvent_) api->io_free(pokeEvent_);
            pokeEvent_ = nullptr;
            if (context_) {
                pa_context_set_state_callback(context_, nullptr, nullptr);
                pa_context_disconnect(context_);
                pa_context_unref(context_);
            }
            context_ = nullptr;
        }
        pa_threaded_mainloop_stop(loop_);
        pa_threaded_mainloop_free(loop_);
        loop_ = nullptr;
    }
    waker_.reset();
    if (pokeFd_ >= 0) close(pokeFd_);
    pokeFd_ = -1;
}

// A server that goes away leaves the mixer draining; one that comes back
// takes the next sound.
void PulseOutput::contextState(pa_context* c, void* self) {
    auto* out = static_cast<PulseOutput*>(self);
    pa_threaded_mainloop_signal(out->loop_, 0);
    if (!out->pokeEvent_) return;
    if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(c))) {
        out->closeStream();
        out->startDrain();
    } else if (pa_context_get_state(c) == PA_CONTEXT_READY && out->drain_) {
        out->openStream();
    }
}

void PulseOutput::reconnect() {
    std::int64_t now = monotonicNs();
    if (now - triedAt_ < 1000000000) return;
    triedAt_ = now;
    pa_context* fresh = pa_context_new(pa_threaded_mainloop_get_api(loop_), "Greenlark");
    if (!fresh) return;
    pa_context_set_state_callback(context_, nullptr, nullptr);
    pa_context_disconnect(context_);
    pa_context_unref(context_);
    context_ = fresh;
    pa_context_set_state_callback(context_, contextState, this);
    pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

// Any thread: the main loop's thread wakes and looks at the mixer.
void PulseOutput::poke() {
    std::uint64_t one = 1;
    if (::write(pokeFd_, &one, sizeof one) < 0) return;
}

void PulseOutput::wake() {
    wokenAt_ = monotonicNs();
    poke();
}

void PulseOutput::poked(pa_mainloop_api*, pa_io_event*, int fd, pa_io_event_flags_t, void* self) {
    std::uint64_t count = 0;
    while (::read(fd, &count, sizeof count) > 0) {
    }
    static_cast<PulseOutput*>(self)->onPoke();
}

// Nothing has sounded, and nothing was about to, for the whole stretch.
bool PulseOutput::maySleep() {
    if (sleepMs_ <= 0) return false;
    return mixer_->quietFrames() >= framesIn(sleepMs_) &&
           monotonicNs() - wokenAt_.load() >= std::int64_t(sleepMs_) * 1000000;
}

}  // namespace platform::real
