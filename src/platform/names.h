// File name matching shared by both platforms.
#pragma once

#include <string>

namespace platform {

// Case-insensitive match of a name against a pattern with * and ?.
bool wildMatch(const std::string& pattern, const std::string& name);
std::string lower(std::string s);

}  // namespace platform
