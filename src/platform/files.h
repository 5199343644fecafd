// Real file operations shared by both platforms. Relative paths resolve
// against the given working folder. Failures throw platform::Failure.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace platform::files {

std::string resolve(const std::string& cwd, const std::string& path);
std::vector<DirEntry> list(const std::string& cwd, const std::string& pattern);
void makeDir(const std::string& cwd, const std::string& path);
void remove(const std::string& cwd, const std::string& path);
std::string read(const std::string& cwd, const std::string& path);
void write(const std::string& cwd, const std::string& path, const std::string& data, bool append);

}  // namespace platform::files
