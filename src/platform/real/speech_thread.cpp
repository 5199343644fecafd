// The speech thread: every call into espeak-ng happens here.
#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <mutex>

#include "platform/real/speech_engine.h"

namespace platform::real {

namespace {

// Samples quieter than this (about -52 dBFS) at the start of an utterance
// are the synthesiser's lead-in, dropped so that speech starts at once.
constexpr int kSilence = 80;
// Milliseconds of sound per synthesiser callback: small, so that the first
// samples of an utterance come early.
constexpr int kChunkMs = 10;

int synthCallback(short* wav, int n, espeak_EVENT* events) {
    auto* engine = static_cast<SpeechEngine*>(events ? events->user_data : nullptr);
    if (!engine) return 0;
    return engine->onSamples(wav, n);
}

}  // namespace

// espeak-ng is started once per process (it cannot be shut down, see run()).
// Starting it switches the whole process to a UTF-8 character type, which
// would change how the window's title is stored, among other things: the
// process keeps its own, and only the thread that starts it, and later the
// engine's thread, read characters as UTF-8.
int startSynthesiser() {
    static std::mutex once;
    static int rate = 0;
    std::lock_guard lock(once);
    if (rate > 0) return rate;
    locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    locale_t before = utf8 ? uselocale(utf8) : nullptr;
    std::string global = setlocale(LC_CTYPE, nullptr);
    rate = std::max(espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, kChunkMs, nullptr, 0), 0);
    setlocale(LC_CTYPE, global.c_str());
    if (utf8) {
        uselocale(before);
        freelocale(utf8);
    }
    return rate;
}

// An engine made after another reuses espeak-ng from its own thread, never
// alongside the other.
bool SpeechEngine::start() {
    utf8_ = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (utf8_) uselocale(utf8_);
    int rate = startSynthesiser();
    if (rate <= 0) return false;
    espeak_SetSynthCallback(synthCallback);
    resampler_ = std::make_unique<Resampler>(rate, outputRate_);
    return true;
}

void SpeechEngine::run() {
    bool ok = start();
    {
        std::lock_guard lock(mutex_);
        started_ = true;
        ready_ = ok;
        if (!ok) queue_.clear();
    }
    wake_.notify_all();
    Utterance u;
    while (ok && next(u)) {
        applySettings(u);
        synthesise(u.text);
    }
    // No espeak_Terminate(): in synchronous mode it waits forever for
    // espeak's own idle helper thread. The engine's memory goes with the
    // process.
    if (utf8_) {
        uselocale(LC_GLOBAL_LOCALE);
        freelocale(utf8_);
    }
}

// Waits for the next text; false when the engine is closing.
bool SpeechEngine::next(Utterance& u) {
    std::unique_lock lock(mutex_);
    synthesising_ = false;
    wake_.wait(lock, [this] { return quit_ || !queue_.empty(); });
    if (quit_) return false;
    u = std::move(queue_.front());
    queue_.pop_front();
    synthesising_ = true;
    synthGeneration_ = feed_.generation();
    return true;
}

// espeak keeps its volume at full (more would clip); the mixer scales it.
void SpeechEngine::applySettings(const Utterance& u) {
    if (u.voice != appliedVoice_) {
        if (espeak_SetVoiceByName(u.voice.c_str()) != EE_OK) espeak_SetVoiceByName("en");
        appliedVoice_ = u.voice;
        appliedWpm_ = 0;
    }
    if (u.wpm != appliedWpm_) {
        espeak_SetParameter(espeakRATE, u.wpm, 0);
        espeak_SetParameter(espeakVOLUME, 100, 0);
        appliedWpm_ = u.wpm;
    }
}

// The resampler's filter holds back the last fraction of a millisecond
// until the text has been synthesised to its end.
void SpeechEngine::synthesise(const std::string& text) {
    leading_ = true;
    resampler_->reset();
    espeak_Synth(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, this);
    if (leading_ || feed_.generation() != synthGeneration_) return;
    chunk_.clear();
    resampler_->finish(chunk_);
    deliver(chunk_);
}

int SpeechEngine::onSamples(const short* wav, int n) {
    if (feed_.generation() != synthGeneration_) return 1;
    if (!wav || n <= 0) return 0;
    int start = 0;
    if (leading_) {
        while (start < n && std::abs(wav[start]) < kSilence) ++start;
        if (start == n) return 0;
        leading_ = false;
    }
    chunk_.clear();
    resampler_->run(wav + start, n - start, chunk_);
    return deliver(chunk_) ? 0 : 1;
}

// Hands the samples to the feed, waiting while it is full; false when the
// speech was silenced meanwhile.
bool SpeechEngine::deliver(const std::vector<float>& samples) {
    std::size_t done = 0;
    while (done < samples.size()) {
        if (feed_.generation() != synthGeneration_) return false;
        done += feed_.push(synthGeneration_, samples.data() + done, samples.size() - done);
        if (done < samples.size()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

}  // namespace platform::real
