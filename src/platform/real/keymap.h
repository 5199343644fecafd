// Translation of SDL key events to the virtual-key codes the game reads.
#pragma once

#include <SDL2/SDL_keyboard.h>

namespace platform::real {

// The game's code for a key, or 0 for a key the game has no code for.
// Letters, digits and punctuation follow the keyboard layout (the key
// symbol); the numeric pad and the named keys follow the physical key.
int virtualKey(SDL_Scancode scancode, SDL_Keycode symbol);

// The code of the key of a US keyboard that types the sign `c` unshifted
// (; = , - . / ` [ \ ] '), or 0.
int punctuationKey(int c);

}  // namespace platform::real
