#include "voice/getter.h"

#include "input/keys.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace voice {

using input::ks;

namespace {

bool typable(const std::string& g) {
    int code = std::stoi(g);
    using namespace key::code;
    return code == Space || (code >= A && code <= Z) || (code >= Digit0 && code <= Digit9);
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
            input::clk();
            say2(prompt);
            vs.r.clear();
            restart = false;
        }
        input::getkey();
        if (ks.g == key::F1) {
            restart = true;
            continue;
        }
        if (ks.g == key::Escape) {
            vs.r.clear();
            return;
        }
        if (ks.g == key::Shift) {
            shift = true;
            continue;
        }
        if (shift) {
            shift = false;
            ks.g2 = input::upperkey(ks.g2);
        }
        if (ks.g == key::Backspace) {
            if (vs.r.empty()) continue;
            size_t at = lastCharStart(vs.r);
            ks.g2 = vs.r.substr(at);
            saykey();
            vs.r.erase(at);
            continue;
        }
        if (ks.g == key::Enter) return;
        saykey();
        if (typable(ks.g))
            vs.r += ks.g2;
        else
            say(" Please use letters, numbers or spaces only. ");
    }
}

}  // namespace voice
