#include "records/reading.h"

#include <algorithm>
#include <cctype>

#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "records/state.h"
#include "voice/speech.h"

namespace records {

namespace {

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return s;
}

// Listing the exact path gives back the name, in lower case.
bool exists(const std::string& path, const std::string& name) {
    std::vector<platform::DirEntry> found;
    platform::attempt([&] { found = platform::os().list(path); });
    return found.size() == 1 && lower(found[0].name) == name;
}

// Blank, first field, point, blank, second field, and so on.
std::string sentences(const std::string& path) {
    course::File f = course::openread(path);
    std::string text = " ";
    while (!course::atend(f)) text += course::readfield(f) + ". ";
    return text;
}

}  // namespace

void readaloud(const std::string& path, const std::string& name, const std::string& missing) {
    voice::stopspeech();
    input::clk();
    if (!exists(path, name)) {
        voice::say(missing);
        return;
    }
    std::string text = sentences(path);
    voice::say2(text);
    input::dy(0.2);
    auto& os = platform::os();
    while (os.runningState() == platform::speechRunning && input::ks.g.empty()) os.yield();
    if (!input::ks.g.empty()) voice::stopspeech();
    input::clk();
}

void ReadLog() { readaloud(golog(), "golflog.txt", " Sorry, but there is no golf log file yet. "); }

void ReadRecords() {
    readaloud(recordsfile(), "golfrecords.txt", " Sorry, but there is no golf records file yet. ");
}

}  // namespace records
