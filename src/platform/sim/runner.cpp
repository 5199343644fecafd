#include "platform/sim/runner.h"

#include <algorithm>
#include <cstdio>

#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"

namespace sim {

Runner::Runner(std::istream& in, bool live, double timeoutSeconds)
    : in_(in), live_(live), timeout_(timeoutSeconds) {}

// A line of the script. A wait longer than a step may wait could never be
// met: such a script cannot be read.
std::optional<Command> Runner::read(const std::string& line, std::string& error) {
    auto c = parseLine(line, ++lineNo_, error);
    if (c && c->op == Op::Wait && c->seconds > timeout_) {
        char why[160];
        std::snprintf(why, sizeof why, "line %d: a wait of %g seconds is longer than the timeout of %g", lineNo_,
                      c->seconds, timeout_);
        error = why;
    }
    if (!error.empty()) return std::nullopt;
    return c;
}

bool Runner::preload(std::string& error) {
    if (live_) return true;
    std::string line;
    while (std::getline(in_, line)) {
        auto c = read(line, error);
        if (!error.empty()) return false;
        if (c) queue_.push_back(*c);
    }
    return true;
}

bool Runner::fetch() {
    if (qpos_ < queue_.size()) {
        cur_ = queue_[qpos_++];
        return true;
    }
    if (!live_) return false;
    std::string line;
    while (std::getline(in_, line)) {
        std::string error;
        auto c = read(line, error);
        if (!error.empty()) {
            std::fprintf(stderr, "greenlark-sim: %s\n", error.c_str());
            throw RunnerStop{2};
        }
        if (c) {
            cur_ = *c;
            return true;
        }
    }
    return false;
}

void Runner::begin() {
    started_ = lastKeyAt_ = p_->now();
    keyIndex_ = 0;
    prevFrom_ = curFrom_;
    curFrom_ = firstKept_ + events_.size();
    seenInStep_.clear();
    forgetBefore(std::max(prevFrom_, matchFrom_));
}

void Runner::forgetBefore(size_t index) {
    while (firstKept_ < index && !events_.empty()) {
        events_.pop_front();
        ++firstKept_;
    }
}

// What an expect can still match. A waiting expect looks at each event once:
// one it passed over can never count again, since the step after it counts
// only what comes after its own match. During any other step the next step
// will take the first event that fits, so a repeat of an event of the same
// step is never needed.
void Runner::note(const Event& e) {
    bool expecting = cur_ && (cur_->op == Op::Expect || cur_->op == Op::ExpectSound);
    if (!expecting && !seenInStep_.insert(e).second) return;
    events_.push_back(e);
}

bool Runner::findEvent(const Command& c) {
    size_t end = firstKept_ + events_.size();
    for (size_t i = std::max({prevFrom_, matchFrom_, firstKept_}); i < end; ++i) {
        const Event& e = events_[i - firstKept_];
        if (e.sound != (c.op == Op::ExpectSound)) continue;
        bool hit = c.op == Op::ExpectSound ? e.text == c.text : e.text.find(c.text) != std::string::npos;
        if (hit) {
            matchFrom_ = i + 1;
            forgetBefore(matchFrom_);
            return true;
        }
    }
    forgetBefore(end);
    return false;
}

// Presses the next key when it is due. The key event may run a long nested
// routine that turns the runner further, so nothing is read after it.
bool Runner::metKey(Command& c) {
    if (keyIndex_ >= c.keys.size()) return true;
    std::uint64_t due = (keyIndex_ == 0 ? started_ : lastKeyAt_) + 100;
    if (p_->now() < due) return false;
    int code = c.keys[keyIndex_++];
    lastKeyAt_ = p_->now();
    p_->deliverKey(code);
    return false;
}

// The step has pressed all its keys, or it presses none and is done.
bool Runner::actedAll() const {
    if (!cur_) return true;
    switch (cur_->op) {
        case Op::Key: return keyIndex_ >= cur_->keys.size();
        case Op::At:
        case Op::Close: return keyIndex_ > 0;
        default: return false;
    }
}

// A journal writes a seed behind the key that led to its draw, and the
// program draws it before the runner turns again to read the line. So a
// draw takes a seed line not yet reached, when only seed lines stand between
// it and a step that has done all it does. The runner passes over a taken
// seed line when it reaches it.
std::optional<std::uint64_t> Runner::takeSeed() {
    if (seed_) {
        auto s = seed_;
        seed_.reset();
        return s;
    }
    if (!actedAll()) return std::nullopt;
    for (size_t i = qpos_; i < queue_.size() && queue_[i].op == Op::Seed; ++i) {
        if (queue_[i].taken) continue;
        queue_[i].taken = true;
        return queue_[i].seed;
    }
    return std::nullopt;
}

bool Runner::met(Command& c) {
    switch (c.op) {
        case Op::Seed:
            if (!c.taken) seed_ = c.seed;
            return true;
        case Op::Key: return metKey(c);
        case Op::Wait: return double(p_->now() - started_) >= c.seconds * 1000.0;
        case Op::Expect:
        case Op::ExpectSound: return findEvent(c);
        case Op::Quiet: return p_->runningState() != 2;
        case Op::At:
            if (keyIndex_ > 0) return true;
            if (!p_->cursorPast(c.text, c.percent)) return false;
            keyIndex_ = 1;
            p_->deliverKey(c.keys[0]);
            return false;
        case Op::Close:
            if (keyIndex_ > 0) return true;
            keyIndex_ = 1;
            p_->deliverClose();
            return false;
        case Op::End: return false;
    }
    return false;
}

void Runner::step() {
    while (true) {
        if (!cur_) {
            if (scriptDone_ || !fetch()) {
                scriptDone_ = true;
                throw RunnerStop{0};
            }
            begin();
        }
        int line = cur_->line;
        size_t before = keyIndex_;
        if (!met(*cur_)) {
            // A step may wait that long after its start or its last key.
            if (cur_ && cur_->line == line && keyIndex_ == before && cur_->op != Op::Wait &&
                double(p_->now() - lastKeyAt_) > timeout_ * 1000.0) {
                std::fprintf(stderr, "greenlark-sim: line %d: step not met within %g virtual seconds\n",
                             line, timeout_);
                throw RunnerStop{1};
            }
            return;
        }
        emit(p_->now(), "done " + std::to_string(line));
        cur_.reset();
    }
}

int Runner::finish() {
    while (true) {
        if (!cur_) {
            if (scriptDone_ || !fetch()) return 0;
            begin();
        }
        Command& c = *cur_;
        bool ok = c.op == Op::End || c.op == Op::Seed || (c.op == Op::Key && keyIndex_ >= c.keys.size()) ||
                  ((c.op == Op::At || c.op == Op::Close) && keyIndex_ > 0) || c.op == Op::Quiet ||
                  ((c.op == Op::Expect || c.op == Op::ExpectSound) && findEvent(c));
        if (!ok) {
            std::fprintf(stderr, "greenlark-sim: line %d: the program ended before this step was met\n",
                         c.line);
            return 1;
        }
        emit(p_->now(), "done " + std::to_string(c.line));
        cur_.reset();
    }
}

}  // namespace sim
