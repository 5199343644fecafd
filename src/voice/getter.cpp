#include "voice/getter.h"

#include "voice/keys.h"
#include "voice/speech.h"

namespace voice {

namespace {

bool typable(const std::string& g) {
    int code = std::stoi(g);
    return code == 32 || (code >= 65 && code <= 90) || (code >= 48 && code <= 57);
}

// The last UTF-8 character of s.
size_t lastCharStart(const std::string& s) {
    size_t i = s.size() - 1;
    while (i > 0 && (static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) --i;
    return i;
}

}  // namespace

void getter(const std::string& prompt) {
    bool restart = true, shift = false;
    while (true) {
        if (restart) {
            clk();
            say2(prompt);
            vs.r.clear();
            restart = false;
        }
        getkey();
        if (vs.g == "112") {
            restart = true;
            continue;
        }
        if (vs.g == "27") {
            vs.r.clear();
            return;
        }
        if (vs.g == "16") {
            shift = true;
            continue;
        }
        if (shift) {
            shift = false;
            vs.g2 = upperkey(vs.g2);
        }
        if (vs.g == "8") {
            if (vs.r.empty()) continue;
            size_t at = lastCharStart(vs.r);
            vs.g2 = vs.r.substr(at);
            saykey();
            vs.r.erase(at);
            continue;
        }
        if (vs.g == "13") return;
        saykey();
        if (typable(vs.g))
            vs.r += vs.g2;
        else
            say(" Please use letters, numbers or spaces only. ");
    }
}

}  // namespace voice
