// Real file operations shared by both platforms. Relative paths resolve
// against the given working folder. Failures throw platform::Failure.
//
// Writing loses nothing: a replaced file is written to a new file in the
// same folder, flushed to the disk and renamed over the old one only when
// complete, so a crash, a kill or a full disk leaves the old file as it was.
// An append is flushed to the disk before the call returns.
#pragma once

#include <functional>
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

// Faults that tests put into the file layer. spaceLeft: bytes that may still
// be written before every write fails as on a full disk (negative: no
// limit). atStage: called with "written" once a replacement's bytes are out
// and with "synced" just before the rename.
struct Faults {
    long long spaceLeft = -1;
    std::function<void(const char* stage)> atStage;
};
Faults& faults();

}  // namespace platform::files
