// F7 in play: the round log read back hole by hole, an entry at a time.
#include <string>
#include <vector>

#include "input/keys.h"
#include "platform/platform.h"
#include "round/inplay.h"
#include "round/session.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

namespace {

using input::ks;

// The log's lines, read one at a time; a read past the end leaves the
// line it was to fill as it was.
class Lines {
public:
    explicit Lines(const std::string& text) {
        size_t at = 0;
        while (at < text.size()) {
            size_t end = text.find_first_of("\r\n", at);
            if (end == std::string::npos) end = text.size();
            lines_.push_back(text.substr(at, end - at));
            at = end;
            if (text.compare(at, 2, "\r\n") == 0) at += 2;
            else if (at < text.size()) at += 1;
        }
    }
    bool atend() const { return next_ >= lines_.size(); }
    void read(std::string& into) {
        if (!atend()) into = lines_[next_++];
    }

private:
    std::vector<std::string> lines_;
    size_t next_ = 0;
};

std::string logtext() {
    std::string text;
    platform::attempt([&] { text = platform::os().readFile(kp() + "/golflog.txt"); });
    return text;
}

int wrap(int pointer, int n) {
    if (pointer < 1) return n;
    if (pointer > n) return 1;
    return pointer;
}

}  // namespace

std::vector<std::string> logentries(const std::string& text) {
    Lines log(text);
    std::string line;
    for (int head = 0; head < 3; ++head) log.read(line);
    std::vector<std::string> entries;
    do {
        log.read(line);
        std::string first = line;
        log.read(line);
        entries.push_back(first + " " + line);
    } while (!log.atend() && int(entries.size()) < maxLogEntries);
    return entries;
}

void logreview() {
    input::clk();
    std::vector<std::string> entries = logentries(logtext());
    sound::StopAllSounds();
    int n = int(entries.size()), pointer = 1;
    voice::say2(entries[0]);
    while (true) {
        input::getkey();
        if (ks.g == key::Escape) break;
        if (ks.g == key::Up || ks.g == key::Down) {
            pointer = wrap(pointer + (ks.g == key::Up ? -1 : 1), n);
            voice::say2(entries[size_t(pointer - 1)]);
            continue;
        }
        voice::say(" Use the up and down arrow keys to review the holes, press the escape key to return to the game. ");
    }
    input::clk();
    sound::playcrowdwav();
    ks.g = key::F2;
}

}  // namespace play
