// The player's folder, and its filling on a first run from the files that
// lie beside the program.
#include "course/exists.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "platform/platform.h"
#include "session/startup.h"
#include "session/state.h"

namespace session {

namespace {

// The working folder, where the program's own files lie.
inline constexpr char currentFolder[] = ".";

bool isFolder(const std::string& path) {
    for (const auto& e : platform::os().list(path))
        if (e.isDir) return true;
    return false;
}

// golf.txt copied line by line.
void copylines(const std::string& from, const std::string& to) {
    course::File in = course::openread(from);
    course::File out = course::openreplace(to);
    while (!course::atend(in)) course::printline(out, course::readline(in));
    course::closefile(out);
}

// A value file copied stored value by stored value until it ends; what was
// read before a damaged value is still written.
void copyvalues(const std::string& from, const std::string& to) {
    course::File out = course::openreplace(to);
    platform::attempt([&] {
        course::File in = course::openread(from);
        while (!course::atend(in)) course::writevalue(out, course::readvalue(in));
    });
    course::closefile(out);
}

}  // namespace

void getkp() {
    auto& os = platform::os();
    std::string docs;
    platform::attempt([&] { docs = os.documentsFolder(); });
    os.yield();
    if (docs.empty()) {
        ss.kp = std::string(currentFolder);
        return;
    }
    ss.kp = docs + "/brindlewick";
    platform::attempt([&] {
        if (isFolder(ss.kp)) return;
        os.makeDir(ss.kp);
        os.yield();
    });
}

void otc() {
    // Files beside the program already are the player's when kp is the
    // current folder.
    if (ss.kp == currentFolder || course::exists(ss.kp + "/golf.txt", course::NameRule::lowerCase)) return;
    std::string mark = course::findfile("golf.txt", course::NameRule::lowerCase);
    if (!mark.empty()) platform::attempt([&] { copylines(mark, ss.kp + "/golf.txt"); });
    for (const char* pattern : {"golf*.gcf", "golf*.gcx", "golf*.grf"}) {
        std::vector<platform::DirEntry> found;
        platform::attempt([&] { found = platform::os().list(pattern); });
        for (const auto& e : found)
            if (!e.isDir) platform::attempt([&] { copyvalues(e.name, ss.kp + "/" + e.name); });
    }
}

}  // namespace session
