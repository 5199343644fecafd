#include "platform/real/journal.h"

#include <cmath>

#include "platform/script_words.h"
#include "platform/wav.h"

namespace platform::real {

namespace {

// The power indicators of a swing and a putt, plain and beeping.
bool isIndicator(const std::string& stem) {
    return stem == "golf6" || stem == "golf7" || stem == "golf27" || stem == "golf28";
}

}  // namespace

std::string atPercent(long cursor, long fileBytes) {
    if (fileBytes <= 0) return "0.0";
    double tenths = std::floor(double(cursor) * 1000.0 / double(fileBytes));
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", tenths / 10.0);
    return text;
}

std::vector<std::string> expectChain(const std::vector<std::string>& heard) {
    std::vector<std::string> chain;
    if (heard.empty()) return chain;
    size_t at = heard.size() - 1;
    chain.push_back(heard[at]);
    while (true) {
        size_t j = at;
        while (j > 0 && heard[j - 1].find(heard[at]) == std::string::npos) --j;
        if (j == 0) break;
        at = j - 1;
        chain.insert(chain.begin(), heard[at]);
    }
    return chain;
}

Journal::~Journal() { finish(); }

bool Journal::open(const std::string& path) {
    out_ = std::fopen(path.c_str(), "w");
    if (!out_) return false;
    line("# A game of greenlark as it was played: greenlark-sim THIS-FILE plays it again.");
    line("# Comments tell what the player heard.");
    return true;
}

void Journal::line(const std::string& text) {
    if (!out_) return;
    std::fputs(text.c_str(), out_);
    std::fputc('\n', out_);
    std::fflush(out_);
}

void Journal::made(int id, const std::string& path, long fileBytes) {
    std::string stem = fileStem(path);
    buffers_[id] = Buffer{stem, fileBytes, isIndicator(stem)};
}

void Journal::released(int id) {
    if (press_ && press_->id == id) writePress();
    buffers_.erase(id);
}

void Journal::releasedAll() {
    writePress();
    buffers_.clear();
}

std::vector<int> Journal::indicators() const {
    std::vector<int> ids;
    for (const auto& [id, b] : buffers_)
        if (b.indicator) ids.push_back(id);
    return ids;
}

void Journal::spoke(const std::string& text, int flag) {
    if (!out_) return;
    writePress();
    line(std::string(flag == 0 ? "# say " : "# say2 ") + script::quote(text));
    if (!text.empty()) heard_.push_back(text);
}

void Journal::played(int id, bool loop) {
    if (!out_) return;
    auto it = buffers_.find(id);
    if (it == buffers_.end()) return;
    writePress();
    line("# play " + it->second.stem + (loop ? " loop" : " once"));
}

void Journal::expectHeard() {
    for (const auto& text : expectChain(heard_)) line("expect " + script::quote(text));
    heard_.clear();
}

void Journal::key(int code, const std::optional<Indicator>& during) {
    if (!out_) return;
    writePress();
    expectHeard();
    if (during && buffers_.count(during->id)) {
        press_ = Press{during->id, during->cursor, code};
        return;
    }
    line("key " + script::keyName(code));
}

void Journal::read(int id, long cursor) {
    if (!press_ || press_->id != id) return;
    press_->cursor = cursor;
    writePress();
}

void Journal::writePress() {
    if (!press_) return;
    Press p = *press_;
    press_.reset();
    auto it = buffers_.find(p.id);
    if (it == buffers_.end()) return;
    line("at " + it->second.stem + " " + atPercent(p.cursor, it->second.fileBytes) + " " +
         script::keyName(p.code));
}

void Journal::closed() {
    if (!out_) return;
    writePress();
    expectHeard();
    line("close");
}

void Journal::seed(std::uint64_t seed) {
    if (!out_) return;
    writePress();
    line("seed " + std::to_string(seed));
}

void Journal::finish() {
    if (!out_) return;
    writePress();
    line("end");
    std::fclose(out_);
    out_ = nullptr;
}

}  // namespace platform::real
