#include "platform/wav.h"

#include "platform/platform.h"
#include "platform/sound_limits.h"

namespace platform {

namespace {

std::uint32_t le32(const std::string& b, size_t at) {
    return std::uint32_t(std::uint8_t(b[at])) | std::uint32_t(std::uint8_t(b[at + 1])) << 8 |
           std::uint32_t(std::uint8_t(b[at + 2])) << 16 | std::uint32_t(std::uint8_t(b[at + 3])) << 24;
}

std::uint16_t le16(const std::string& b, size_t at) {
    return std::uint16_t(std::uint8_t(b[at]) | std::uint8_t(b[at + 1]) << 8);
}

// What is wrong with the format, or "" when we can play it.
std::string formatProblem(const Wave& w) {
    if (w.channels != 1 && w.channels != 2) return std::to_string(w.channels) + " channels";
    if (w.bits != 8 && w.bits != 16) return std::to_string(w.bits) + "-bit samples";
    if (w.rate < minFrequency || w.rate > maxFrequency) return "a rate of " + std::to_string(w.rate);
    if (w.blockAlign != w.channels * w.bits / 8) return "a block of " + std::to_string(w.blockAlign) + " bytes";
    return "";
}

std::optional<Wave> refuse(std::string* why, const std::string& what) {
    if (why) *why = what;
    return std::nullopt;
}

}  // namespace

std::optional<Wave> parseWave(const std::string& b, std::string* why) {
    if (b.size() < 12 || b.compare(0, 4, "RIFF") != 0 || b.compare(8, 4, "WAVE") != 0)
        return refuse(why, "not a RIFF WAVE file");
    Wave w;
    bool haveFmt = false, haveData = false;
    size_t at = 12;
    while (at + 8 <= b.size()) {
        std::string id = b.substr(at, 4);
        std::uint64_t len = le32(b, at + 4);
        size_t body = at + 8;
        std::uint64_t avail = b.size() - body;
        if (id == "fmt ") {
            if (len < 16 || len > avail) return refuse(why, "a cut fmt chunk");
            int tag = le16(b, body);
            if (tag != 1) return refuse(why, "format " + std::to_string(tag) + ", not PCM");
            w.channels = le16(b, body + 2);
            w.rate = int(le32(b, body + 4));
            w.blockAlign = le16(b, body + 12);
            w.bits = le16(b, body + 14);
            haveFmt = true;
        } else if (id == "data") {
            std::uint64_t n = len < avail ? len : avail;   // a short last chunk keeps what is there
            w.data.assign(b.begin() + long(body), b.begin() + long(body + n));
            haveData = true;
            if (haveFmt) break;
        }
        std::uint64_t next = body + len + (len & 1);
        if (next > b.size()) break;
        at = size_t(next);
    }
    if (!haveFmt) return refuse(why, "no fmt chunk");
    if (!haveData) return refuse(why, "no data chunk");
    std::string problem = formatProblem(w);
    if (!problem.empty()) return refuse(why, problem);
    w.data.resize(w.data.size() - w.data.size() % size_t(w.blockAlign));
    return w;
}

Wave bufferWave(const std::string& bytes, const std::string& path) {
    std::string why;
    auto w = parseWave(bytes, &why);
    if (!w) throw Failure("no sound buffer from " + path + ": " + why);
    if (w->frames() == 0) throw Failure("no sound buffer from " + path + ": an empty data chunk");
    return *w;
}

std::string fileStem(const std::string& path) {
    size_t slash = path.find_last_of('/');
    std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    size_t dot = name.find_last_of('.');
    return dot == std::string::npos ? name : name.substr(0, dot);
}

}  // namespace platform
