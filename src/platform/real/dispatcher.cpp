#include "platform/real/dispatcher.h"

#include <libspeechd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "platform/platform.h"
#include "platform/real/speech_text.h"

namespace platform::real {

namespace {

// speech-dispatcher's callbacks carry no pointer of ours: there is one
// connection, and this is it.
Dispatcher* current = nullptr;
std::mutex currentMutex;

void onEnd(std::size_t message, std::size_t, SPDNotificationType) {
    std::lock_guard lock(currentMutex);
    if (current) current->finished(message);
}

SPDConnection* spd(void* connection) { return static_cast<SPDConnection*>(connection); }

bool english(const std::string& language) {
    return language.size() >= 2 && std::tolower(static_cast<unsigned char>(language[0])) == 'e' &&
           std::tolower(static_cast<unsigned char>(language[1])) == 'n' &&
           (language.size() == 2 || language[2] == '-' || language[2] == '_');
}

}  // namespace

std::vector<DispatcherVoice> offeredVoices(const std::string& module,
                                           const std::vector<std::pair<std::string, std::string>>& voices) {
    auto first = std::find_if(voices.begin(), voices.end(), [](const auto& v) { return english(v.second); });
    if (module == "dummy" || first == voices.end()) return {};
    return {{module, "", module + " default voice"}, {module, first->first, module + " " + first->first}};
}

// Ten of the dispatcher's points a step.
int dispatcherRate(int rate) { return std::clamp(rate, -fastestRate, fastestRate) * 10; }

int dispatcherVolume(int volume) { return std::clamp(volume, 0, 100) * 2 - 100; }

bool dispatcherReachable() {
    char* error = nullptr;
    SPDConnectionAddress* address = spd_get_default_address(&error);
    std::free(error);
    if (!address) return false;
    bool there = address->method == SPD_METHOD_UNIX_SOCKET && address->unix_socket_name &&
                 std::filesystem::exists(address->unix_socket_name);
    SPDConnectionAddress__free(address);
    return there;
}

std::unique_ptr<Dispatcher> Dispatcher::open() {
    char* error = nullptr;
    SPDConnection* c = spd_open2("greenlark", "speech", nullptr, SPD_MODE_THREADED, nullptr, 0, &error);
    std::free(error);
    if (!c) return nullptr;
    std::unique_ptr<Dispatcher> d(new Dispatcher(c));
    d->listVoices();
    if (d->voices_.empty()) return nullptr;
    {
        std::lock_guard lock(currentMutex);
        current = d.get();
    }
    c->callback_end = onEnd;
    c->callback_cancel = onEnd;
    spd_set_notification_on(c, SPD_END);
    spd_set_notification_on(c, SPD_CANCEL);
    return d;
}

Dispatcher::~Dispatcher() {
    {
        std::lock_guard lock(currentMutex);
        if (current == this) current = nullptr;
    }
    spd_cancel(spd(connection_));
    spd_close(spd(connection_));
}

void Dispatcher::listVoices() {
    char** modules = spd_list_modules(spd(connection_));
    for (char** m = modules; m && *m; ++m) {
        if (spd_set_output_module(spd(connection_), *m) != 0) continue;
        std::vector<std::pair<std::string, std::string>> listed;
        SPDVoice** found = spd_list_synthesis_voices(spd(connection_));
        for (SPDVoice** v = found; v && *v; ++v)
            listed.emplace_back((*v)->name ? (*v)->name : "", (*v)->language ? (*v)->language : "");
        if (found) free_spd_voices(found);
        for (auto& v : offeredVoices(*m, listed)) voices_.push_back(v);
    }
    if (modules) free_spd_modules(modules);
}

void Dispatcher::use(int index) {
    if (index < 0 || index >= int(voices_.size())) return;
    const DispatcherVoice& v = voices_[size_t(index)];
    spd_set_output_module(spd(connection_), v.module.c_str());
    spd_set_language(spd(connection_), "en");
    if (v.name.empty())
        spd_set_voice_type(spd(connection_), SPD_MALE1);
    else
        spd_set_synthesis_voice(spd(connection_), v.name.c_str());
}

void Dispatcher::setRate(int rate) { spd_set_voice_rate(spd(connection_), dispatcherRate(rate)); }

void Dispatcher::setVolume(int volume) { spd_set_volume(spd(connection_), dispatcherVolume(volume)); }

void Dispatcher::say(const std::string& text) {
    // A text of blanks is nothing to hear, and some synthesisers never report
    // its end.
    if (text.find_first_not_of(" ") == std::string::npos) return;
    // Priority "message" queues behind our own texts; "text" would cut the
    // one before short, so only the last of a run would be heard.
    int id = spd_say(spd(connection_), SPD_MESSAGE, textForSynth(text).c_str());
    if (id < 0) return;
    std::lock_guard lock(mutex_);
    auto now = std::chrono::steady_clock::now();
    // Even at the slowest rate a character takes less than a fifth of a second.
    deadline_ = std::max(deadline_, now) + std::chrono::seconds(5) + std::chrono::milliseconds(200) * text.size();
    if (!early_.erase(std::size_t(id))) pending_.insert(std::size_t(id));
}

void Dispatcher::silence() {
    spd_cancel(spd(connection_));
    std::lock_guard lock(mutex_);
    pending_.clear();
    early_.clear();
}

bool Dispatcher::speaking() {
    std::lock_guard lock(mutex_);
    if (!pending_.empty() && std::chrono::steady_clock::now() > deadline_) pending_.clear();
    return !pending_.empty();
}

void Dispatcher::finished(std::size_t message) {
    std::lock_guard lock(mutex_);
    if (pending_.erase(message)) return;
    // The notice came before say() had the id; a few are kept until it has.
    if (early_.size() > 64) early_.clear();
    early_.insert(message);
}

}  // namespace platform::real
