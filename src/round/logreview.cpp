// F7 in play: the round log read back hole by hole, an entry at a time.
#include <string>
#include <vector>

#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "records/state.h"
#include "round/inplay.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

namespace {

using input::ks;

// The next line into into; past the end of the log it stays as it was.
void readinto(course::File& log, std::string& into) {
    if (!course::atend(log)) into = course::readline(log);
}

std::string logtext() {
    std::string text;
    platform::attempt([&] { text = platform::os().readFile(records::golog()); });
    return text;
}

int wrap(int pointer, int n) {
    if (pointer < 1) return n;
    if (pointer > n) return 1;
    return pointer;
}

}  // namespace

std::vector<std::string> logentries(const std::string& text) {
    course::File log;
    log.bytes = text;
    std::string line;
    for (int head = 0; head < 3; ++head) readinto(log, line);
    std::vector<std::string> entries;
    do {
        readinto(log, line);
        std::string first = line;
        readinto(log, line);
        entries.push_back(first + " " + line);
    } while (!course::atend(log) && int(entries.size()) < maxLogEntries);
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
