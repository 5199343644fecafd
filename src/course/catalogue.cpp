#include <algorithm>
#include <string>
#include <vector>

#include "course/builtin.h"
#include "course/catalogue.h"
#include "course/course.h"
#include "course/customfile.h"
#include "platform/names.h"
#include "platform/platform.h"

namespace course {

namespace {

const char* const kRandom = " Random golf course no rating ";

// Whether the file reads as a whole course.
bool complete(const std::string& folder, const std::string& name) {
    return platform::attempt([&] { readcourse(platform::os().readFile(folder + name), isgcx(name), name); });
}

// Gives each listed file that reads as a whole course the next free slot,
// keeping the last slot for the random course.
void addFiles(const std::string& folder, const std::string& pattern, int& next) {
    std::vector<platform::DirEntry> found;
    platform::attempt([&] { found = platform::os().list(folder + pattern); });
    for (const auto& e : found) {
        if (next >= catSlots - 1) return;
        if (e.isDir || !complete(folder, e.name)) continue;
        cs.cfile[next] = e.name;
        cs.cname[next] = customName(e.name);
        ++next;
    }
}

bool before(const std::string& a, const std::string& b) {
    std::string x = platform::lower(a), y = platform::lower(b);
    return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end(), [](char p, char q) {
        return static_cast<unsigned char>(p) < static_cast<unsigned char>(q);
    });
}

}  // namespace

std::string customName(const std::string& file) {
    std::string stem = file.size() > 8 ? file.substr(4, file.size() - 8) : "";
    return " " + stem + " ";
}

void sortCustom(int first, int last) {
    for (int i = first + 1; i <= last; ++i) {
        for (int j = i; j > first && before(cs.cfile[j], cs.cfile[j - 1]); --j) {
            std::swap(cs.cfile[j], cs.cfile[j - 1]);
            std::swap(cs.cname[j], cs.cname[j - 1]);
        }
    }
}

int GetCors(const std::string& kp) {
    for (int a = 1; a < catSlots; ++a) {
        cs.cname[a].clear();
        cs.cfile[a].clear();
    }
    fillBuiltinNames();
    std::string folder = kp + "/";
    int next = builtins + 1;
    addFiles(folder, "golf*.gcf", next);
    addFiles(folder, "golf*.gcx", next);
    sortCustom(builtins + 1, next - 1);
    cs.cname[next] = kRandom;
    return next;
}

}  // namespace course
