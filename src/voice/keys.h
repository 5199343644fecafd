// Keys as the game reads them: the last key's code in g and its character in
// g2, one key's room and no queue behind it.
#pragma once

#include <functional>
#include <string>

namespace voice {

struct KeyState {
    std::string g;    // code of the last key in decimal; empty: no key waiting
    std::string g2;   // the same key as one lower-case character
    int wckp = 0;     // 1 while a power reading runs: keys only set g and g2
    int keytog = 0;   // 1 silences saykey and saykey2
    int vr = 0;       // the voice's rate
    std::string r;    // what getter typed
};

extern KeyState vs;

// The routines the F-keys run nested inside any wait. Each leaves g = "112"
// behind, so the wait below repeats its prompt. Empty until they exist.
struct FKeyRoutines {
    std::function<void()> speckeys;      // F4
    std::function<void()> readins;       // F5
    std::function<void()> ReadHints;     // F6
    std::function<void()> adjrate;       // F9
    std::function<void()> adjvol;        // F11
    std::function<void()> changevoice2;  // F12
};

extern FKeyRoutines fkeys;

// The character the game reads for a key code: the character with that
// number, in lower case (cp1252 above 127), as UTF-8.
std::string keychar(int code);
std::string upperkey(const std::string& ch);

void Form_KeyDown(int code);
// Clears g and g2 and drains the keys in flight.
void clk();
// Waits for a key that counts; speech stopped.
void getkey();
// Waits a x 1025 milliseconds, yielding.
void dy(double a);

}  // namespace voice
