// Runs a scenario script against the program, step by step, inside the
// program's own yields.
#pragma once

#include <cstdint>
#include <deque>
#include <istream>
#include <set>
#include <optional>
#include <string>
#include <vector>

#include "platform/sim/script.h"

namespace sim {

class SimPlatform;

// One thing the program did that a script step can wait for.
struct Event {
    bool sound = false;   // a buffer started playing; else a text was spoken
    std::string text;     // the text, or the stem
    bool operator<(const Event& o) const { return sound != o.sound ? sound < o.sound : text < o.text; }
};

// Thrown out of a yield to stop the program: the script is done, or a step
// failed (code 1) or a line could not be read (code 2).
struct RunnerStop {
    int code = 0;
};

class Runner {
public:
    // live: read commands from the stream as they arrive.
    Runner(std::istream& in, bool live, double timeoutSeconds);
    // Reads a whole script file ahead; false (and error) when a line is bad.
    bool preload(std::string& error);
    void attach(SimPlatform* p) { p_ = p; }
    // One turn: runs what is due at the present virtual time.
    void step();
    // The program has ended: settles the remaining steps. Returns the exit code.
    int finish();
    // The program spoke a text or started a sound.
    void note(const Event& e);
    // The seed the script gives the program's next draw of a seed from the
    // clock, if it gives one.
    std::optional<std::uint64_t> takeSeed();
    // How many events are kept for the steps to come.
    size_t keptEvents() const { return events_.size(); }

private:
    bool fetch();
    std::optional<Command> read(const std::string& line, std::string& error);
    void forgetBefore(size_t index);
    bool met(Command& c);
    bool metKey(Command& c);
    bool findEvent(const Command& c);
    void begin();
    bool actedAll() const;

    std::istream& in_;
    bool live_;
    double timeout_;
    int lineNo_ = 0;
    std::vector<Command> queue_;
    size_t qpos_ = 0;
    std::optional<Command> cur_;
    size_t keyIndex_ = 0;
    std::uint64_t started_ = 0;     // virtual ms when the step began
    std::uint64_t lastKeyAt_ = 0;
    // Events are numbered from the start of the run; events_ holds those
    // from number firstKept_ on, the only ones a step can still match.
    std::deque<Event> events_;
    size_t firstKept_ = 0;
    std::set<Event> seenInStep_;    // what the current step has kept
    size_t curFrom_ = 0;            // event number at the start of the step
    size_t prevFrom_ = 0;           // the same for the step before
    size_t matchFrom_ = 0;          // just past the last matched event
    bool scriptDone_ = false;
    std::optional<std::uint64_t> seed_;   // from a seed line the runner reached
    SimPlatform* p_ = nullptr;
};

}  // namespace sim
