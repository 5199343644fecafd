#include "platform/sim/sim_platform.h"

#include <algorithm>
#include <cmath>

#include "platform/files.h"
#include "platform/sound_limits.h"
#include "platform/sim/transcript.h"
#include "platform/wav.h"

namespace sim {

SimPlatform::SimPlatform(const Options& o, Runner& r) : opt_(o), runner_(r) { runner_.attach(this); }

void SimPlatform::log(const std::string& body) { emit(clock_, body); }

void SimPlatform::deliverKey(int code) {
    log("key " + std::to_string(code));
    if (onKey_) onKey_(code);
}

void SimPlatform::deliverClose() {
    if (onClose_) onClose_();
}

bool SimPlatform::cursorPast(const std::string& stem, double percent) {
    device_.update(clock_);
    for (auto& [id, b] : device_.buffers)
        if (b.stem == stem && b.playing && double(device_.cursor(b, clock_)) * 100.0 >= percent * double(b.fileBytes))
            return true;
    return false;
}

void SimPlatform::showWindow(const std::string& caption) { log("caption " + quote(caption)); }

void SimPlatform::yield() {
    ++clock_;
    device_.update(clock_);
    runner_.step();
}

std::uint64_t SimPlatform::clockSeed() {
    auto seed = runner_.takeSeed();
    return seed ? *seed : tick();
}

void SimPlatform::messageBox(const std::string& text) { log("msgbox " + quote(text)); }
void SimPlatform::beep() { log("beep"); }
double SimPlatform::timeOfDay() { return std::fmod(opt_.clockStart + double(clock_) / 1000.0, 86400.0); }
void SimPlatform::endProcess() { throw platform::ProgramEnd{}; }

// ---- speech

std::string SimPlatform::voiceName(int index) {
    if (index < 0 || index >= opt_.voices) throw platform::Failure("no voice " + std::to_string(index));
    return "Voice " + std::to_string(index + 1);
}

void SimPlatform::setVoice(int index) {
    if (index < 0 || index >= opt_.voices) throw platform::Failure("no voice " + std::to_string(index));
    log("voice " + std::to_string(index));
}

void SimPlatform::setRate(int rate) {
    rate_ = rate;
    log("rate " + std::to_string(rate));
}

void SimPlatform::setVolume(int volume) { log("volume " + std::to_string(volume)); }

double SimPlatform::speechMs(const std::string& text) const {
    size_t chars = 0;
    for (char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++chars;
    int rate = std::clamp(rate_, -platform::fastestRate, platform::fastestRate);
    return 60.0 * double(chars) * std::pow(1.1, -rate);
}

void SimPlatform::speak(const std::string& text, int flag) {
    if (flag == 2) {
        log("hush");
        speechEnd_ = double(clock_);
        return;
    }
    log((flag == 0 ? "say " : "say2 ") + quote(text));
    runner_.note({false, text});
    double start = speechEnd_ > double(clock_) ? speechEnd_ : double(clock_);
    speechEnd_ = start + speechMs(text);
    if (flag == 0) {
        clock_ = std::uint64_t(std::ceil(speechEnd_));
        device_.update(clock_);
    }
}

// ---- sound

SimBuffer& SimPlatform::buf(int id) {
    auto it = device_.buffers.find(id);
    if (it == device_.buffers.end()) throw platform::Failure("no sound buffer " + std::to_string(id));
    return it->second;
}

std::string SimPlatform::bufName(int id) { return buf(id).stem + " #" + std::to_string(id); }

void SimPlatform::closeSoundDevice() {
    device_.buffers.clear();
    device_.open = false;
}

int SimPlatform::createBuffer(const std::string& path) {
    if (!device_.open) throw platform::Failure("the sound device is not open");
    std::string bytes = platform::files::read(opt_.cwd, path);
    platform::Wave w = platform::bufferWave(bytes, path);
    SimBuffer b;
    b.stem = platform::fileStem(path);
    b.fileBytes = long(bytes.size());
    b.dataBytes = long(w.data.size());
    b.blockAlign = w.blockAlign;
    b.fileRate = b.freq = w.rate;
    int id = device_.nextId++;
    device_.buffers[id] = b;
    return id;
}

void SimPlatform::releaseBuffer(int id) {
    std::string name = bufName(id);
    device_.buffers.erase(id);
    log("release " + name);
}

void SimPlatform::setFrequency(int id, int hz) {
    SimBuffer& b = buf(id);
    platform::checkFrequency(id, hz);
    device_.update(clock_);
    device_.rebase(b, clock_);
    b.freq = hz == platform::originalFrequency ? b.fileRate : hz;
}

void SimPlatform::setCurrentPosition(int id, long bytes) {
    SimBuffer& b = buf(id);
    long at = platform::checkedPosition(id, bytes, b.dataBytes, b.blockAlign);
    device_.update(clock_);
    b.pos = b.startPos = at;
    b.startMs = clock_;
}

platform::CursorPair SimPlatform::getCurrentPosition(int id) {
    SimBuffer& b = buf(id);
    device_.update(clock_);
    long c = device_.cursor(b, clock_);
    return {c, c};
}

void SimPlatform::setVolumeDb(int id, int v) {
    SimBuffer& b = buf(id);
    platform::checkVolume(id, v);
    b.volume = v;
    log("setvol " + bufName(id) + " " + std::to_string(v));
}

void SimPlatform::setPan(int id, int p) {
    SimBuffer& b = buf(id);
    platform::checkPan(id, p);
    b.pan = p;
    log("setpan " + bufName(id) + " " + std::to_string(p));
}

void SimPlatform::play(int id, int loopFlag) {
    SimBuffer& b = buf(id);
    device_.update(clock_);
    if (b.playing) {   // on without a rewind, with the new loop flag
        device_.rebase(b, clock_);
        b.looping = loopFlag != 0;
        return;
    }
    b.playing = true;
    b.looping = loopFlag != 0;
    b.startMs = clock_;
    b.startPos = b.pos;
    log("play " + bufName(id) + " vol=" + std::to_string(b.volume) + " pan=" + std::to_string(b.pan) +
        (b.looping ? " loop" : " once"));
    runner_.note({true, b.stem});
}

int SimPlatform::getStatus(int id) {
    SimBuffer& b = buf(id);
    device_.update(clock_);
    return b.playing ? (b.looping ? 5 : 1) : 0;
}

void SimPlatform::stop(int id) {
    SimBuffer& b = buf(id);
    device_.update(clock_);
    if (!b.playing) return;
    b.pos = device_.cursor(b, clock_);
    b.playing = false;
    log("stop " + bufName(id));
}

// ---- files

std::vector<platform::DirEntry> SimPlatform::list(const std::string& pattern) {
    return platform::files::list(opt_.cwd, pattern);
}
void SimPlatform::makeDir(const std::string& path) { platform::files::makeDir(opt_.cwd, path); }
void SimPlatform::removeFile(const std::string& path) { platform::files::remove(opt_.cwd, path); }
std::string SimPlatform::readFile(const std::string& path) { return platform::files::read(opt_.cwd, path); }
void SimPlatform::writeFile(const std::string& path, const std::string& data) {
    platform::files::write(opt_.cwd, path, data, false);
}
void SimPlatform::appendFile(const std::string& path, const std::string& data) {
    platform::files::write(opt_.cwd, path, data, true);
}
void SimPlatform::startProgram(const std::string& path) { log("start " + path); }

}  // namespace sim
