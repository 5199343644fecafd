// What a terminal sends for a key, as the Linux console, xterm and tmux send
// it, turned into the window's key codes.
#include <gtest/gtest.h>

#include "platform/real/terminal_keys.h"

namespace {

using namespace platform::real;

struct Sent {
    const char* from;
    const char* bytes;
    std::vector<int> keys;
};

// \033 is Escape; octal, so that a letter behind it is not read as a digit.
const Sent kSent[] = {
    {"linux F1 F4 F5 F9 F11 F12", "\033[[A\033[[D\033[[E\033[20~\033[23~\033[24~", {112, 115, 116, 120, 122, 123}},
    {"linux arrows", "\033[A\033[B\033[C\033[D", {38, 40, 39, 37}},
    {"linux Home End PageUp PageDown Insert Delete", "\033[1~\033[4~\033[5~\033[6~\033[2~\033[3~",
     {36, 35, 33, 34, 45, 46}},
    {"linux pad 5", "\033[G", {101}},
    {"xterm F1 F4 F9 F10 F11 F12", "\033OP\033OS\033[20~\033[21~\033[23~\033[24~", {112, 115, 120, 121, 122, 123}},
    {"xterm arrows, application mode", "\033OA\033OB\033OC\033OD", {38, 40, 39, 37}},
    {"xterm Home End", "\033[H\033[F\033OH\033OF", {36, 35, 36, 35}},
    {"xterm with modifiers", "\033[1;2P\033[15;5~\033[1;5A\033O2S", {112, 116, 38, 115}},
    {"xterm pad", "\033Op\033Oy\033Oj\033Ok\033Om\033On\033Oo\033OM\033[E",
     {96, 105, 106, 107, 109, 110, 111, 13, 101}},
    {"tmux F1 F4 F9 F11 F12", "\033OP\033OS\033[20~\033[23~\033[24~", {112, 115, 120, 122, 123}},
    {"tmux arrows Home End", "\033[A\033[D\033[1~\033[4~", {38, 37, 36, 35}},
    {"tmux pad, Shift Tab", "\033Oq\033[Z", {97, 17}},
    {"letters, capitals with Shift", "azJ", {65, 90, 16, 74}},
    {"digits, Space, Enter, Backspace", "09 \r\n\177\b", {48, 57, 32, 13, 13, 8, 8}},
    {"signs, shifted signs with Shift", ";,./!?", {186, 188, 190, 191, 16, 49, 16, 191}},
    {"Tab and Ctrl with a letter stand for Ctrl", "\t\001", {17, 17}},
    {"Alt with a letter", "\033x", {18, 88}},
    {"Escape behind Escape", "\033\033[A", {27, 38}},
    {"no key: a character beyond ASCII, an unknown sequence", "\303\251\033[200~\033[99x", {}},
};

TEST(TerminalKeys, EachTerminalsSequencesAndBytes) {
    for (const auto& s : kSent) {
        KeyDecoder d;
        std::vector<int> keys;
        decodeKeys(d, s.bytes, 0, keys);
        expireKeys(d, 1000, keys);
        EXPECT_EQ(keys, s.keys) << s.from;
    }
}

// Escape alone waits for the rest of a sequence; a sequence in pieces is one
// key, and one broken off is Escape and the keys of its bytes.
TEST(TerminalKeys, EscapeAloneWaitsForTheRestOfASequence) {
    KeyDecoder d;
    std::vector<int> keys;
    const std::pair<const char*, std::uint32_t> bytes[] = {{"\033", 0}, {"\033[", 100}, {"2", 110}, {"4~\033[", 120}};
    for (auto [sent, at] : bytes) {
        expireKeys(d, at - 1, keys);
        decodeKeys(d, sent, at, keys);
    }
    expireKeys(d, 120 + kEscapeWaitMs - 1, keys);
    EXPECT_EQ(keys, (std::vector<int>{27, 123}));
    expireKeys(d, 120 + kEscapeWaitMs, keys);
    EXPECT_EQ(keys, (std::vector<int>{27, 123, 27, 219}));
}

}  // namespace
