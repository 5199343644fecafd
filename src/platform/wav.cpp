#include "platform/wav.h"

#include <cstring>

namespace platform {

namespace {

std::uint32_t le32(const std::string& b, size_t at) {
    return std::uint32_t(std::uint8_t(b[at])) | std::uint32_t(std::uint8_t(b[at + 1])) << 8 |
           std::uint32_t(std::uint8_t(b[at + 2])) << 16 | std::uint32_t(std::uint8_t(b[at + 3])) << 24;
}

std::uint16_t le16(const std::string& b, size_t at) {
    return std::uint16_t(std::uint8_t(b[at]) | std::uint8_t(b[at + 1]) << 8);
}

bool formatOk(const Wave& w) {
    return (w.channels == 1 || w.channels == 2) && (w.bits == 8 || w.bits == 16) && w.rate > 0 &&
           w.rate <= 384000 && w.blockAlign == w.channels * w.bits / 8;
}

}  // namespace

std::optional<Wave> parseWave(const std::string& b) {
    if (b.size() < 12 || b.compare(0, 4, "RIFF") != 0 || b.compare(8, 4, "WAVE") != 0) return std::nullopt;
    Wave w;
    bool haveFmt = false, haveData = false;
    size_t at = 12;
    while (at + 8 <= b.size()) {
        std::string id = b.substr(at, 4);
        std::uint64_t len = le32(b, at + 4);
        size_t body = at + 8;
        std::uint64_t avail = b.size() - body;
        if (id == "fmt ") {
            if (len < 16 || len > avail) return std::nullopt;
            if (le16(b, body) != 1) return std::nullopt;   // PCM only
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
    if (!haveFmt || !haveData || !formatOk(w)) return std::nullopt;
    w.data.resize(w.data.size() - w.data.size() % size_t(w.blockAlign));
    return w;
}

std::string fileStem(const std::string& path) {
    size_t slash = path.find_last_of('/');
    std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    size_t dot = name.find_last_of('.');
    return dot == std::string::npos ? name : name.substr(0, dot);
}

}  // namespace platform
