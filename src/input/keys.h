// Keys as the game reads them: the last key's code in g and its character in
// g2, one key's room and no queue behind it.
#pragma once

#include <functional>
#include <string>

#include "input/keycodes.h"

namespace input {

struct KeyState {
    std::string g;    // code of the last key in decimal; empty: no key waiting
    std::string g2;   // the same key as one lower-case character
    int wckp = 0;     // 1 while a power reading runs: keys only set g and g2
};

extern KeyState ks;

// The routines the keys run nested inside any wait, set at start-up. The
// F-key routines each leave g = key::F1 behind, so the wait below repeats
// its prompt. Empty until they exist.
struct FKeyRoutines {
    std::function<void()> stopAbAndClaps;  // F1, F2: the ambient sound and the claps stop
    std::function<void()> speckeys;        // F4
    std::function<void()> readins;         // F5
    std::function<void()> ReadHints;       // F6
    std::function<void()> adjrate;         // F9
    std::function<void()> adjvol;          // F11
    std::function<void()> changevoice2;    // F12
};

extern FKeyRoutines fkeys;

// The character the game reads for a key code: the character with that
// number, in lower case (cp1252 above 127), as UTF-8.
std::string keychar(int code);
std::string upperkey(const std::string& ch);

void Form_KeyDown(int code);
// Clears g and g2 and drains the keys in flight.
void clk();
// F8, Ctrl, Alt, Pause and Scroll Lock only stop the voice: they are no answer.
bool hushonly(const std::string& g);
// Waits for a key that counts; speech stopped.
void getkey();
// Waits a x 1025 milliseconds, yielding.
void dy(double a);

}  // namespace input
