#include "platform/real/system_info.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "platform/platform.h"

namespace fs = std::filesystem;

namespace platform::real {

namespace {

bool isFolder(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

// The value of XDG_DOCUMENTS_DIR in a user-dirs.dirs file, with $HOME
// expanded; empty when the file or the line is missing.
std::string documentsLine(const std::string& file, const std::string& home) {
    std::ifstream in(file);
    std::string line;
    const std::string key = "XDG_DOCUMENTS_DIR=";
    while (std::getline(in, line)) {
        if (line.rfind(key, 0) != 0) continue;
        std::string value = line.substr(key.size());
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"') value = value.substr(1, value.size() - 2);
        if (value.rfind("$HOME", 0) == 0) value = home + value.substr(5);
        return value;
    }
    return "";
}

}  // namespace

std::string shortDate(const std::tm& local) {
    return std::to_string(local.tm_mon + 1) + "/" + std::to_string(local.tm_mday) + "/" +
           std::to_string(local.tm_year + 1900);
}

double secondsSinceMidnight(const std::tm& local) {
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
}

std::string documentsFolderOf(const std::string& home, const std::string& configHome) {
    std::string config = configHome.empty() ? home + "/.config" : configHome;
    std::string named = documentsLine(config + "/user-dirs.dirs", home);
    if (isFolder(named)) return named;
    if (!home.empty() && isFolder(home + "/Documents")) return home + "/Documents";
    return "";
}

std::string executableFolder() {
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    return ec ? "" : exe.parent_path().string();
}

std::string dataFolderOf(const std::string& exeFolder) {
    if (exeFolder.empty()) return exeFolder;
    fs::path installed = fs::path(exeFolder).parent_path() / "share" / "greenlark";
    std::error_code ec;
    if (!isFolder(installed.string())) return exeFolder;
    fs::path canonical = fs::canonical(installed, ec);
    return ec ? installed.string() : canonical.string();
}

void startInDataFolder() {
    std::string data = dataFolderOf(executableFolder());
    if (!data.empty() && chdir(data.c_str()) != 0) std::perror("greenlark: cannot enter the data folder");
}

// A double fork: the program runs on as an orphan and leaves no zombie here.
void launch(const std::string& path) {
    bool runnable = access(path.c_str(), X_OK) == 0 && !isFolder(path);
    if (!runnable && access(path.c_str(), R_OK) != 0) throw Failure("cannot start " + path);
    pid_t child = fork();
    if (child < 0) throw Failure("cannot start " + path);
    if (child == 0) {
        if (fork() == 0) {
            setsid();
            if (runnable) execl(path.c_str(), path.c_str(), static_cast<char*>(nullptr));
            else execlp("xdg-open", "xdg-open", path.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
}

}  // namespace platform::real
