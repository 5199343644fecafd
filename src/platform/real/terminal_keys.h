// The keys of a terminal: the bytes it sends for a key press turned into the
// key codes the window gives. Letters, digits and punctuation as on a US
// keyboard, a capital or a shifted sign as Shift and then its key, Alt and a
// key (Escape and the key's byte) as Alt and then the key; the escape
// sequences of the Linux console, xterm and tmux or screen for the arrows,
// the Home, End, Insert, Delete and Page keys, F1 to F12 and, where the
// terminal tells it apart, the numeric pad. Keys a terminal cannot send alone
// have stand-ins: Tab, and Ctrl with any letter, stand for Ctrl.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace platform::real {

// How long an Escape byte waits for the rest of a sequence before it counts
// as the Escape key: a terminal sends a whole sequence at once.
inline constexpr std::uint32_t kEscapeWaitMs = 50;

struct KeyDecoder {
    std::string pending;     // bytes of a sequence begun, waiting for its rest
    std::uint32_t since = 0; // tick the pending bytes came
};

// Adds the key codes of the bytes that came at tick `now` to `keys`; a
// sequence cut off at the end waits in the decoder for the rest.
void decodeKeys(KeyDecoder& d, std::string_view bytes, std::uint32_t now, std::vector<int>& keys);

// At tick `now`, bytes that waited kEscapeWaitMs for the rest of a sequence
// are the Escape key and the keys of the bytes behind it.
void expireKeys(KeyDecoder& d, std::uint32_t now, std::vector<int>& keys);

// The keys waiting for the game. A key behind Shift or Alt is held back a
// few turns of the loop and a few milliseconds, as a hand presses it after
// the modifier: a prompt that takes the modifier drains the keys that come
// with it.
struct KeyQueue {
    std::deque<int> waiting;
    bool holding = false;     // the last key given out was Shift or Alt
    std::uint32_t heldAt = 0; // tick it went out
    int turns = 0;            // turns of the loop since
};

inline constexpr int kHoldTurns = 4;
inline constexpr std::uint32_t kHoldMs = 60;

// A turn of the loop begins.
void newTurn(KeyQueue& q);
// The next key to give the game at tick `now`; 0 when none is due.
int nextKey(KeyQueue& q, std::uint32_t now);

}  // namespace platform::real
