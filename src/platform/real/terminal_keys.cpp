#include "platform/real/terminal_keys.h"

#include <cstring>

#include "platform/real/keymap.h"
#include "platform/ticks.h"

namespace platform::real {

namespace {

// The window's codes of the keys a terminal sends by a sequence or a stand-in.
namespace vk {
constexpr int Backspace = 8, Enter = 13, Shift = 16, Ctrl = 17, Alt = 18, Escape = 27, Space = 32;
constexpr int PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40;
constexpr int Insert = 45, Delete = 46, Pad0 = 96, Pad5 = 101, F1 = 112;
}  // namespace vk

constexpr char kEsc = '\x1b';
// Longer than any sequence a terminal sends for a key; what runs past it is
// dropped unread.
constexpr size_t kLongestSequence = 16;

// A shifted sign of a US keyboard and the key it lies on.
constexpr const char* kShifted = "!@#$%^&*()_+{}|:\"<>?~";
constexpr const char* kUnshifted = "1234567890-=[]\\;',./`";

// The key of one plain byte: a letter, digit or sign, Space, Enter,
// Backspace, or the Ctrl stand-in; a Shift before it goes into `keys`.
int plainKey(unsigned char c, std::vector<int>& keys) {
    if (c >= 'a' && c <= 'z') return 'A' + (c - 'a');
    if (c >= '0' && c <= '9') return c;
    if (c >= 'A' && c <= 'Z') {
        keys.push_back(vk::Shift);
        return c;
    }
    if (c == ' ') return vk::Space;
    if (c == '\r' || c == '\n') return vk::Enter;
    if (c == 0x7f || c == '\b') return vk::Backspace;
    if (c < ' ') return vk::Ctrl;
    if (int code = punctuationKey(c)) return code;
    const char* at = c < 0x80 ? std::strchr(kShifted, c) : nullptr;
    if (!at) return 0;   // bytes of characters beyond ASCII have no key the game knows
    char key = kUnshifted[at - kShifted];
    keys.push_back(vk::Shift);
    return key >= '0' && key <= '9' ? key : punctuationKey(key);
}

void plain(unsigned char c, std::vector<int>& keys) {
    if (int code = plainKey(c, keys)) keys.push_back(code);
}

// The key of a CSI sequence ending in `~`, by its first number.
int tildeKey(int n) {
    switch (n) {
        case 1: case 7: return vk::Home;
        case 2: return vk::Insert;
        case 3: return vk::Delete;
        case 4: case 8: return vk::End;
        case 5: return vk::PageUp;
        case 6: return vk::PageDown;
        case 11: case 12: case 13: case 14: case 15: return vk::F1 + (n - 11);
        case 17: case 18: case 19: case 20: case 21: return vk::F1 + 5 + (n - 17);
        case 23: case 24: return vk::F1 + 10 + (n - 23);
        default: return 0;
    }
}

// The key of a sequence's last letter, for both CSI and SS3: the arrows,
// Home and End, F1 to F4 and the middle of the pad.
int letterKey(char c) {
    switch (c) {
        case 'A': return vk::Up;
        case 'B': return vk::Down;
        case 'C': return vk::Right;
        case 'D': return vk::Left;
        case 'H': return vk::Home;
        case 'F': return vk::End;
        case 'E': case 'G': return vk::Pad5;
        case 'P': case 'Q': case 'R': case 'S': return vk::F1 + (c - 'P');
        case 'Z': return vk::Ctrl;   // Shift and Tab
        default: return 0;
    }
}

// The pad in application mode, SS3 and a letter: the digits, * + - . / and
// Enter.
int padKey(char c) {
    if (c >= 'p' && c <= 'y') return vk::Pad0 + (c - 'p');
    switch (c) {
        case 'j': return 106;
        case 'k': return 107;
        case 'm': return 109;
        case 'n': return 110;
        case 'o': return 111;
        case 'M': return vk::Enter;
        default: return 0;
    }
}

// The first number of a sequence's parameters; 0 when there is none.
int firstNumber(std::string_view params) {
    int n = 0;
    for (char c : params) {
        if (c < '0' || c > '9' || n > 1000) break;
        n = n * 10 + (c - '0');
    }
    return n;
}

void push(int code, std::vector<int>& keys) {
    if (code) keys.push_back(code);
}

// A CSI or SS3 sequence from its introducer's second byte on, at s[1]; the
// bytes it takes, 0 when it has not ended yet.
size_t sequence(std::string_view s, std::vector<int>& keys) {
    // The Linux console's F1 to F5: CSI [ and a letter.
    if (s[1] == '[' && s.size() > 2 && s[2] == '[') {
        if (s.size() < 4) return 0;
        if (s[3] >= 'A' && s[3] <= 'E') push(vk::F1 + (s[3] - 'A'), keys);
        return 4;
    }
    size_t i = 2;
    while (i < s.size() && s[i] >= 0x20 && s[i] <= 0x3f) ++i;
    if (i >= s.size()) return i > kLongestSequence ? s.size() : 0;
    char last = s[i];
    if (last < 0x40 || last > 0x7e) return i;   // broken off: drop what came
    std::string_view params = s.substr(2, i - 2);
    if (s[1] == 'O') push(padKey(last) ? padKey(last) : letterKey(last), keys);
    else if (last == '~') push(tildeKey(firstNumber(params)), keys);
    else push(letterKey(last), keys);
    return i + 1;
}

// The bytes taken from the start of `s` and their keys; 0 when they are the
// beginning of a sequence that has not ended yet.
size_t step(std::string_view s, std::vector<int>& keys) {
    if (s[0] != kEsc) {
        plain(static_cast<unsigned char>(s[0]), keys);
        return 1;
    }
    if (s.size() < 2) return 0;
    if (s[1] == '[' || s[1] == 'O') return sequence(s, keys);
    if (s[1] == kEsc) {
        keys.push_back(vk::Escape);
        return 1;
    }
    keys.push_back(vk::Alt);
    plain(static_cast<unsigned char>(s[1]), keys);
    return 2;
}

}  // namespace

void decodeKeys(KeyDecoder& d, std::string_view bytes, std::uint32_t now, std::vector<int>& keys) {
    if (!bytes.empty()) d.since = now;
    d.pending.append(bytes);
    size_t at = 0;
    while (at < d.pending.size()) {
        size_t took = step(std::string_view(d.pending).substr(at), keys);
        if (took == 0) break;
        at += took;
    }
    d.pending.erase(0, at);
}

void expireKeys(KeyDecoder& d, std::uint32_t now, std::vector<int>& keys) {
    if (d.pending.empty() || elapsed(d.since, now) < kEscapeWaitMs) return;
    keys.push_back(vk::Escape);
    for (size_t i = 1; i < d.pending.size(); ++i) plain(static_cast<unsigned char>(d.pending[i]), keys);
    d.pending.clear();
}

void newTurn(KeyQueue& q) {
    if (q.holding) ++q.turns;
}

int nextKey(KeyQueue& q, std::uint32_t now) {
    if (q.holding && (q.turns < kHoldTurns || elapsed(q.heldAt, now) < kHoldMs)) return 0;
    q.holding = false;
    if (q.waiting.empty()) return 0;
    int key = q.waiting.front();
    q.waiting.pop_front();
    if (key == vk::Shift || key == vk::Alt) {
        q.holding = true;
        q.heldAt = now;
        q.turns = 0;
    }
    return key;
}

}  // namespace platform::real
