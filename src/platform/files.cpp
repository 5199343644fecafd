#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/names.h"

namespace fs = std::filesystem;

namespace platform::files {

namespace {

// Nothing the game reads is anywhere near this; a larger file is refused.
constexpr std::uintmax_t kMaxRead = 64u << 20;

void fail(const std::string& what, const std::string& path, const std::string& why = "") {
    throw Failure("cannot " + what + " " + path + (why.empty() ? "" : ": " + why));
}

}  // namespace

std::string resolve(const std::string& cwd, const std::string& path) {
    if (path.empty() || path[0] == '/' || cwd.empty()) return path;
    return cwd + "/" + path;
}

std::vector<DirEntry> list(const std::string& cwd, const std::string& pattern) {
    std::string full = resolve(cwd, pattern);
    size_t slash = full.find_last_of('/');
    std::string dir = slash == std::string::npos ? "." : full.substr(0, slash);
    if (dir.empty()) dir = "/";
    std::string leaf = slash == std::string::npos ? full : full.substr(slash + 1);
    std::vector<DirEntry> out;
    std::error_code ec;
    fs::directory_iterator it(dir, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (!wildMatch(leaf, name)) continue;
        DirEntry e;
        e.name = name;
        e.isDir = it->is_directory(ec);
        if (!e.isDir) {
            std::uintmax_t n = it->file_size(ec);
            e.size = ec ? 0 : n;
        }
        ec.clear();
        out.push_back(e);
    }
    return out;
}

void makeDir(const std::string& cwd, const std::string& path) {
    std::error_code ec;
    if (!fs::create_directory(resolve(cwd, path), ec) && ec) fail("make the folder", path, ec.message());
}

void remove(const std::string& cwd, const std::string& path) {
    std::error_code ec;
    if (!fs::remove(resolve(cwd, path), ec)) fail("delete", path, ec ? ec.message() : "not there");
}

std::string read(const std::string& cwd, const std::string& path) {
    std::string full = resolve(cwd, path);
    std::error_code ec;
    auto size = fs::file_size(full, ec);
    if (ec) fail("read", path, ec.message());
    if (size > kMaxRead) fail("read", path, "too large");
    std::ifstream in(full, std::ios::binary);
    if (!in) fail("read", path);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

Faults& faults() {
    static Faults f;
    return f;
}

namespace {

// Writes all of data to fd, as far as the faults allow.
bool writeAll(int fd, const std::string& data) {
    size_t done = 0;
    while (done < data.size()) {
        size_t want = data.size() - done;
        long long& space = faults().spaceLeft;
        if (space >= 0 && (long long)want > space) want = size_t(space);
        if (want == 0) {
            errno = ENOSPC;
            return false;
        }
        ssize_t n = ::write(fd, data.data() + done, want);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += size_t(n);
        if (space >= 0) space -= n;
    }
    return true;
}

void stage(const char* name) {
    if (faults().atStage) faults().atStage(name);
}

// The folder's entry of a renamed file reaches the disk too.
void syncFolder(const std::string& dir) {
    int fd = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

void clearLeftovers(const std::string& dir, const std::string& prefix) {
    std::error_code ec;
    fs::directory_iterator it(dir, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (name.size() == prefix.size() + 6 && name.compare(0, prefix.size(), prefix) == 0) {
            std::error_code rm;
            fs::remove(it->path(), rm);
        }
    }
}

void replace(const std::string& full, const std::string& path, const std::string& data) {
    size_t slash = full.find_last_of('/');
    std::string dir = slash == std::string::npos ? "." : full.substr(0, slash);
    if (dir.empty()) dir = "/";
    std::string leaf = slash == std::string::npos ? full : full.substr(slash + 1);
    // A leading point keeps a left-over new file out of every pattern the
    // game lists; what a writer killed before its rename left goes now.
    std::string prefix = "." + leaf + ".new-";
    clearLeftovers(dir, prefix);
    std::string tmp = dir + "/" + prefix + "XXXXXX";
    int fd = ::mkstemp(tmp.data());
    if (fd < 0) fail("write", path);
    struct stat old{};
    ::fchmod(fd, ::stat(full.c_str(), &old) == 0 ? (old.st_mode & 07777) : 0644);
    bool ok = writeAll(fd, data);
    if (ok) stage("written");
    ok = ok && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (ok) stage("synced");
    ok = ok && ::rename(tmp.c_str(), full.c_str()) == 0;
    if (!ok) {
        ::unlink(tmp.c_str());
        fail("write", path);
    }
    syncFolder(dir);
}

// An append that fails is cut back to where it began.
void append(const std::string& full, const std::string& path, const std::string& data) {
    int fd = ::open(full.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) fail("append", path);
    struct stat before{};
    bool ok = ::fstat(fd, &before) == 0;
    if (ok && !(writeAll(fd, data) && ::fsync(fd) == 0)) {
        (void)::ftruncate(fd, before.st_size);
        ok = false;
    }
    ok = ::close(fd) == 0 && ok;
    if (!ok) fail("append", path);
}

}  // namespace

void write(const std::string& cwd, const std::string& path, const std::string& data, bool append) {
    std::string full = resolve(cwd, path);
    if (append)
        files::append(full, path, data);
    else
        replace(full, path, data);
}

}  // namespace platform::files
