// Runs scenarios: through the greenlark-sim binary, or in this process with
// the same runner and simulated platform around a routine of the game.
#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <optional>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace simtest {

struct Result {
    int code = -1;
    std::vector<std::string> lines;   // transcript lines
    std::string err;                  // standard error (binary runs)
    // Index of the first line at or after from whose text after the time
    // contains what; -1 if none.
    int find(const std::string& what, int from = 0) const;
    bool has(const std::string& what) const { return find(what) >= 0; }
    int count(const std::string& what) const;
    // The lines of whats in this order, each after the one before; -1 for
    // the first that is missing and all behind it.
    std::vector<int> sequence(const std::vector<std::string>& whats, int from = 0) const;
    std::string dump() const;
};

// greenlark-sim with the options given and the script text.
Result runBinary(const std::string& script, const std::vector<std::string>& options = {});

// The runner in this process around program, with default options but the
// docs folder given (empty: none).
Result runInProcess(const std::string& script, const std::function<void()>& program,
                    const std::string& docs = "", const std::string& game = GREENLARK_GAME_DIR,
                    double timeoutSeconds = 900);

// The same with the platform's tick count starting at tickStart.
Result runInProcessFromTick(std::uint32_t tickStart, const std::string& script, const std::function<void()>& program);

// The same around a script read from in as it arrives, as greenlark-sim
// reads "-": r.lines fill while the program runs, so whatever feeds in can
// answer what it hears.
void runInProcessLive(std::istream& in, const std::function<void()>& program, Result& r,
                      const std::string& docs = "");

// The one place that knows the opening, so that a change there changes only
// it. A first run, no golf.cfg: the name Jo is typed and kept and the voice
// taken, up to the power sound menu.
inline const char* kFirstRunToThePowerMenu = R"(expect "Please enter your name"
type Jo
key Enter
expect "correct for your name? yes"
key Enter
expect "do you wish to use this voice."
key Enter
expect "select power indicator sound files"
)";
// From there to the main menu's first " select ": the special keys are read
// unasked.
inline const std::string kToTheMenu = kFirstRunToThePowerMenu + std::string(R"(key Enter
expect "Would you like to read the instructions? yes"
key N
expect "Would you like to read the special key instructions? no"
key N
expect "Would you like to read the hints? yes"
key N
)");

// A later run from the name offered and kept to the main menu: the three
// questions come with no.
inline const char* kNameKeptToTheMenu = R"(key Enter
expect "do you wish to use this voice."
key Enter
expect "select power indicator sound files"
key Enter
expect "Would you like to read the instructions? no"
key Enter
expect "Would you like to read the special key instructions? no"
key Enter
expect "Would you like to read the hints? no"
key Enter
)";

// The same for a later run, with a golf.cfg in the player's folder that
// holds the name Jo: the name is offered.
inline const std::string kToTheMenuAgain =
    std::string("expect \"Is  Jo  correct for your name? yes\"\n") + kNameKeptToTheMenu;

// From the main menu out of the program by Escape and entry 7.
inline const char* kMenuToTheEnd = R"(expect " 2. use ball washer "
key Escape
expect " 7. exit-game "
key Enter
end
)";

// From the main menu to a round begun: entry 1 taken. A saved game is
// resumed from here; a new round goes on to the course picker.
inline const char* kMenuToARound = R"(expect " 2. use ball washer "
key 1
expect " 1. golf-course "
key Enter
)";

// From the main menu to the first tee of a new round on course 1: the script
// steps that every round scenario begins with, after kToTheMenu.
inline const std::string kMenuToTheTee = std::string(kMenuToARound) + R"(expect " Please Pick A-Course To Play. "
expect " Amateur Green Grass Country Club Rating 65 "
key Enter
)";

// From the start of the program to the first tee of course 1.
inline const std::string kToTheTee = std::string(kToTheMenu) + kMenuToTheTee;
inline const std::string kToTheTeeAgain = std::string(kToTheMenuAgain) + kMenuToTheTee;

// A small program for tests of the runner and of the prompts: the key event
// wired, then the player's name asked with getter and read back with the
// yes/no question until yes (" Hello NAME . ") or Escape at the name.
void namePrompt();

// Script lines made one at a time, as the live runner asks for them: next
// gives the following line, or nothing at the end of the script.
class Feed : public std::streambuf {
public:
    explicit Feed(std::function<std::optional<std::string>()> next) : next_(std::move(next)) {}

protected:
    int_type underflow() override {
        if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
        auto line = next_();
        if (!line) return traits_type::eof();
        buf_ = *line + "\n";
        setg(buf_.data(), buf_.data(), buf_.data() + buf_.size());
        return traits_type::to_int_type(*gptr());
    }

private:
    std::function<std::optional<std::string>()> next_;
    std::string buf_;
};

// A new empty temporary folder.
std::string tempDir();

// The bytes of a file; empty when it cannot be read.
std::string slurp(const std::string& path);

}  // namespace simtest
