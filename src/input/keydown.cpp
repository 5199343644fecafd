// The key event of the window: every key lands in g and g2, and outside a
// power reading the F-keys run their routines nested inside the wait.
#include "input/keys.h"

#include "platform/platform.h"

namespace input {

KeyState ks;
FKeyRoutines fkeys;

namespace {

void runFKey(const std::function<void()>& routine) {
    if (routine) platform::attempt(routine);
    ks.g = key::F1;
}

}  // namespace

void Form_KeyDown(int code) {
    if (code == key::code::F10) code = key::code::F1;   // F10 is F1 everywhere
    ks.g = std::to_string(code);
    ks.g2 = keychar(code);
    if (ks.wckp == 1) return;
    if ((code == key::code::F1 || code == key::code::F2) && fkeys.stopAbAndClaps) fkeys.stopAbAndClaps();
    switch (code) {
        case key::code::F4: runFKey(fkeys.speckeys); break;
        case key::code::F5: runFKey(fkeys.readins); break;
        case key::code::F6: runFKey(fkeys.ReadHints); break;
        case key::code::F9: runFKey(fkeys.adjrate); break;
        case key::code::F11: runFKey(fkeys.adjvol); break;
        case key::code::F12: runFKey(fkeys.changevoice2); break;
        default: break;
    }
}

}  // namespace input
