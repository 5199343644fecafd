#include "platform/files.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/names.h"

namespace fs = std::filesystem;

namespace platform::files {

namespace {

// Nothing the game reads is anywhere near this; a larger file is refused.
constexpr std::uintmax_t kMaxRead = 64u << 20;

void fail(const std::string& what, const std::string& path) { throw Failure(what + ": " + path); }

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
    if (!fs::create_directory(resolve(cwd, path), ec) && ec) fail("mkdir", path);
}

void remove(const std::string& cwd, const std::string& path) {
    std::error_code ec;
    if (!fs::remove(resolve(cwd, path), ec)) fail("delete", path);
}

std::string read(const std::string& cwd, const std::string& path) {
    std::string full = resolve(cwd, path);
    std::error_code ec;
    auto size = fs::file_size(full, ec);
    if (ec || size > kMaxRead) fail("read", path);
    std::ifstream in(full, std::ios::binary);
    if (!in) fail("read", path);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void write(const std::string& cwd, const std::string& path, const std::string& data, bool append) {
    std::ofstream out(resolve(cwd, path), std::ios::binary | (append ? std::ios::app : std::ios::trunc));
    if (!out) fail("write", path);
    out << data;
    if (!out) fail("write", path);
}

}  // namespace platform::files
