// The PulseAudio output's stream: topping up, writing over, and the
// server's word on what is heard. Everything here runs on the main loop's
// thread, under its lock.
#include <algorithm>
#include <cmath>

#include "platform/real/pulse_output.h"

namespace platform::real {

namespace {

constexpr std::size_t kFrameBytes = 2 * sizeof(float);
// The server asks for more once this much of its buffer is free; so large
// a request leaves the sink itself a short buffer (the buffer less twice
// the request), which is what a change written at the read position waits
// behind.
constexpr int kRequestMs = 28;

}  // namespace

void PulseOutput::openStream() {
    if (drain_) pa_threaded_mainloop_get_api(loop_)->time_free(drain_);
    drain_ = nullptr;
    pa_sample_spec spec{PA_SAMPLE_FLOAT32NE, std::uint32_t(rate_), 2};
    stream_ = pa_stream_new(context_, "Greenlark", &spec, nullptr);
    if (!stream_) return;
    pa_stream_set_state_callback(stream_, streamState, this);
    pa_stream_set_write_callback(stream_, request, this);
    pa_stream_set_latency_update_callback(stream_, timingUpdated, this);
    pa_stream_set_underflow_callback(stream_, ranDry, this);
    pa_buffer_attr attr{};
    attr.maxlength = std::uint32_t(-1);
    attr.tlength = std::uint32_t(framesIn(kAheadMs)) * kFrameBytes;
    attr.prebuf = kFrameBytes;
    attr.minreq = std::uint32_t(framesIn(kRequestMs)) * kFrameBytes;
    attr.fragsize = std::uint32_t(-1);
    auto flags = pa_stream_flags_t(PA_STREAM_NOFLAGS);
    mixer_->deviceRestarted();
    base_ = mixer_->rendered();
    verifying_ = false;
    if (pa_stream_connect_playback(stream_, nullptr, &attr, flags, nullptr, nullptr) < 0) {
        closeStream();
        return;
    }
    mixer_->takeChange();
    tick_ = pa_context_rttime_new(context_, pa_rtclock_now() + kTickMs * PA_USEC_PER_MSEC, ticked, this);
    streaming_ = true;
}

void PulseOutput::closeStream() {
    if (tick_) pa_threaded_mainloop_get_api(loop_)->time_free(tick_);
    tick_ = nullptr;
    if (stream_) {
        pa_stream_set_state_callback(stream_, nullptr, nullptr);
        pa_stream_set_write_callback(stream_, nullptr, nullptr);
        pa_stream_set_latency_update_callback(stream_, nullptr, nullptr);
        pa_stream_set_underflow_callback(stream_, nullptr, nullptr);
        pa_stream_disconnect(stream_);
        pa_stream_unref(stream_);
    }
    stream_ = nullptr;
    streaming_ = false;
}

void PulseOutput::streamState(pa_stream*, void* self) {
    pa_threaded_mainloop_signal(static_cast<PulseOutput*>(self)->loop_, 0);
}

void PulseOutput::request(pa_stream*, std::size_t, void* self) { static_cast<PulseOutput*>(self)->topUp(); }

void PulseOutput::timingUpdated(pa_stream*, void* self) { static_cast<PulseOutput*>(self)->heard(); }

// Everything written was heard and the server waits for more: the stream
// goes on later than the clock had it, which starts anew from the server's
// next word.
void PulseOutput::ranDry(pa_stream*, void* self) { static_cast<PulseOutput*>(self)->mixer_->deviceRestarted(); }

// A stream the server dropped is opened anew for the next sound.
void PulseOutput::onPoke() {
    if (stream_ && !PA_STREAM_IS_GOOD(pa_stream_get_state(stream_))) closeStream();
    if (!stream_) {
        if (pa_context_get_state(context_) == PA_CONTEXT_READY) openStream();
        else if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(context_))) reconnect();
        if (!stream_) startDrain();
        return;
    }
    if (pa_stream_get_state(stream_) == PA_STREAM_READY) rewrite();
}

void PulseOutput::ticked(pa_mainloop_api*, pa_time_event*, const struct timeval*, void* self) {
    static_cast<PulseOutput*>(self)->onTick();
}

void PulseOutput::onTick() {
    if (!stream_ || !PA_STREAM_IS_GOOD(pa_stream_get_state(stream_))) {
        closeStream();
        startDrain();
        return;
    }
    if (pa_stream_get_state(stream_) == PA_STREAM_READY) {
        topUp();
        if (pa_operation* o = pa_stream_update_timing_info(stream_, nullptr, nullptr)) pa_operation_unref(o);
    }
    if (maySleep()) {
        closeStream();
        // A sound that started meanwhile opens it again.
        if (mixer_->quietFrames() == 0) openStream();
        return;
    }
    pa_context_rttime_restart(context_, tick_, pa_rtclock_now() + kTickMs * PA_USEC_PER_MSEC);
}

// The server's word on how far it has read our stream, at its moment
// `timestamp` on the real-time clock, taken to the monotonic one. Only a
// reply that came late can make the server seem slow, never fast, so the
// clock keeps the earliest of the recent replies, as it does for SDL's
// requests: the frame the server takes for the sink, which is the frame its
// monitor records.
void PulseOutput::heard() {
    const pa_timing_info* t = stream_ ? pa_stream_get_timing_info(stream_) : nullptr;
    if (!t || t->read_index_corrupt || !t->playing) return;
    timeval real{};
    std::int64_t before = 0, after = 0;
    for (int tries = 0; tries < 3; ++tries) {
        before = monotonicNs();
        pa_gettimeofday(&real);
        after = monotonicNs();
        if (after - before < 50000) break;
    }
    std::int64_t ago = std::int64_t(pa_timeval_diff(&real, &t->timestamp)) * 1000;
    if (pa_timeval_cmp(&real, &t->timestamp) < 0) ago = -ago;
    std::int64_t read = base_ + t->read_index / std::int64_t(kFrameBytes);
    mixer_->reached(read, (before + after) / 2 - ago);
}

void PulseOutput::startDrain() {
    if (drain_ || stream_ || maySleep()) return;
    mixer_->deviceRestarted();
    drainFrom_ = mixer_->rendered();
    drainSince_ = monotonicNs();
    drain_ = pa_context_rttime_new(context_, pa_rtclock_now() + kTickMs * PA_USEC_PER_MSEC, drained, this);
}

void PulseOutput::drained(pa_mainloop_api* api, pa_time_event*, const struct timeval*, void* self) {
    auto* out = static_cast<PulseOutput*>(self);
    out->drain();
    if (out->maySleep()) {
        api->time_free(out->drain_);
        out->drain_ = nullptr;
    } else {
        pa_context_rttime_restart(out->context_, out->drain_, pa_rtclock_now() + kTickMs * PA_USEC_PER_MSEC);
    }
}

// Renders up to the moment and throws it away.
void PulseOutput::drain() {
    std::int64_t now = monotonicNs();
    std::int64_t to = drainFrom_ + (now - drainSince_) * rate_ / 1000000000;
    std::int64_t from = mixer_->rendered();
    block_.resize(std::size_t(std::max<std::int64_t>(to - from, 0)) * 2);
    if (to > from && mixer_->render(block_.data(), int(to - from))) waker_->notify();
    mixer_->reached(to, now);
}

void PulseOutput::topUp() {
    std::int64_t ahead = framesIn(rewrites_ ? kAheadMs : kAppendAheadMs);
    std::int64_t target = std::int64_t(mixer_->heardFrame(monotonicNs())) + ahead;
    std::int64_t end = mixer_->rendered();
    if (target > end) write(end, target - end, false);
}

// The game changed what is heard: everything from a little past the
// server's read position (or from where the speech ran out, if that is
// later) is rendered again and written over what was there.
void PulseOutput::rewrite() {
    auto from = mixer_->takeChange();
    if (from && rewrites_) {
        double reading = mixer_->heardFrame(monotonicNs());
        auto at = std::max(*from, std::int64_t(std::ceil(reading + kMarginMs * rate_ / 1000)));
        std::int64_t end = mixer_->rendered();
        if (at < end) {
            mixer_->rewind(at);
            write(at, std::max(end, std::int64_t(reading) + framesIn(kAheadMs)) - at, true);
        }
    }
    topUp();
}

void PulseOutput::write(std::int64_t from, std::int64_t frames, bool over) {
    block_.resize(std::size_t(frames) * 2);
    bool ended = mixer_->render(block_.data(), int(frames));
    for (float& s : block_) s = std::clamp(s, -1.0f, 1.0f);
    std::int64_t offset = over ? (from - base_) * std::int64_t(kFrameBytes) : 0;
    int written = pa_stream_write(stream_, block_.data(), block_.size() * sizeof(float), nullptr, offset,
                                  over ? PA_SEEK_ABSOLUTE : PA_SEEK_RELATIVE);
    if (ended) waker_->notify();
    spoilt_ = true;
    if (over && written < 0) rewrites_ = false;
    if (over && written >= 0 && !verifiedOnce_ && !verifying_) verify();
}

// The server's write index after a write over must be where ours is; a
// server that ignored the seek has it further on. Asked once, and again if
// something else was written before the answer came.
void PulseOutput::verify() {
    pa_operation* o = pa_stream_update_timing_info(stream_, verified, this);
    if (!o) return;
    pa_operation_unref(o);
    verifying_ = true;
    spoilt_ = false;
}

void PulseOutput::verified(pa_stream* s, int success, void* self) {
    auto* out = static_cast<PulseOutput*>(self);
    if (s != out->stream_) return;
    out->verifying_ = false;
    const pa_timing_info* t = pa_stream_get_timing_info(s);
    if (!success || out->spoilt_ || !t || t->write_index_corrupt) return;
    std::int64_t ours = (out->mixer_->rendered() - out->base_) * std::int64_t(kFrameBytes);
    out->verifiedOnce_ = true;
    if (t->write_index != ours) out->rewrites_ = false;
}

}  // namespace platform::real
