// The platform's calls about time, files and the machine.
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "platform/files.h"
#include "platform/real/sdl_platform.h"
#include "platform/real/system_info.h"

namespace platform::real {

namespace {

std::tm localNow() {
    std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return local;
}

std::string env(const char* name) {
    const char* v = std::getenv(name);
    return v ? v : "";
}

}  // namespace

std::string SdlPlatform::dateText() { return shortDate(localNow()); }

double SdlPlatform::timeOfDay() { return secondsSinceMidnight(localNow()); }

// Relative paths resolve against the process's working folder.
std::vector<DirEntry> SdlPlatform::list(const std::string& pattern) { return files::list("", pattern); }

void SdlPlatform::makeDir(const std::string& path) { files::makeDir("", path); }

void SdlPlatform::removeFile(const std::string& path) { files::remove("", path); }

std::string SdlPlatform::readFile(const std::string& path) { return files::read("", path); }

void SdlPlatform::writeFile(const std::string& path, const std::string& data) {
    files::write("", path, data, false);
}

void SdlPlatform::appendFile(const std::string& path, const std::string& data) {
    files::write("", path, data, true);
}

std::string SdlPlatform::documentsFolder() { return documentsFolderOf(env("HOME"), env("XDG_CONFIG_HOME")); }

std::string SdlPlatform::programFolder() { return dataFolderOf(executableFolder()); }

void SdlPlatform::startProgram(const std::string& path) {
    launch(path);
    pacer_.active();
}

void SdlPlatform::failed(const std::string& what) {
    if (trace_) std::fprintf(stderr, "greenlark: fail: %s\n", what.c_str());
}

}  // namespace platform::real
