#include "course/exists.h"

#include <vector>

#include "platform/names.h"
#include "platform/platform.h"

namespace course {

std::string findfile(const std::string& path, NameRule rule) {
    std::size_t slash = path.find_last_of('/');
    std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    std::string leaf = slash == std::string::npos ? path : path.substr(slash + 1);
    // A name with wildcard characters is not a name the game ever asks for.
    if (leaf.empty() || leaf.find_first_of("*?") != std::string::npos) return "";
    std::vector<platform::DirEntry> found;
    if (!platform::attempt([&] { found = platform::os().list(path); })) return "";
    std::string variant;
    for (const auto& e : found) {
        if (e.isDir) continue;
        if (e.name == leaf) return folder + e.name;
        if (rule == NameRule::lowerCase && platform::lower(e.name) == leaf && variant.empty()) variant = e.name;
    }
    return variant.empty() ? "" : folder + variant;
}

bool exists(const std::string& path, NameRule rule) { return !findfile(path, rule).empty(); }

}  // namespace course
