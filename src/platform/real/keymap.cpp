#include "platform/real/keymap.h"

namespace platform::real {

namespace {

// Keys known by their place on the keyboard, whatever the layout or lock
// state says.
int byScancode(SDL_Scancode s) {
    if (s >= SDL_SCANCODE_KP_1 && s <= SDL_SCANCODE_KP_9) return 97 + (s - SDL_SCANCODE_KP_1);
    if (s >= SDL_SCANCODE_F1 && s <= SDL_SCANCODE_F12) return 112 + (s - SDL_SCANCODE_F1);
    switch (s) {
        case SDL_SCANCODE_KP_0: return 96;
        case SDL_SCANCODE_KP_MULTIPLY: return 106;
        case SDL_SCANCODE_KP_PLUS: return 107;
        case SDL_SCANCODE_KP_MINUS: return 109;
        case SDL_SCANCODE_KP_PERIOD: return 110;
        case SDL_SCANCODE_KP_DIVIDE: return 111;
        case SDL_SCANCODE_KP_ENTER: case SDL_SCANCODE_RETURN: return 13;
        case SDL_SCANCODE_BACKSPACE: return 8;
        case SDL_SCANCODE_TAB: return 9;
        case SDL_SCANCODE_LSHIFT: case SDL_SCANCODE_RSHIFT: return 16;
        case SDL_SCANCODE_LCTRL: case SDL_SCANCODE_RCTRL: return 17;
        case SDL_SCANCODE_LALT: case SDL_SCANCODE_RALT: return 18;
        case SDL_SCANCODE_PAUSE: return 19;
        case SDL_SCANCODE_ESCAPE: return 27;
        case SDL_SCANCODE_SPACE: return 32;
        case SDL_SCANCODE_PAGEUP: return 33;
        case SDL_SCANCODE_PAGEDOWN: return 34;
        case SDL_SCANCODE_END: return 35;
        case SDL_SCANCODE_HOME: return 36;
        case SDL_SCANCODE_LEFT: return 37;
        case SDL_SCANCODE_UP: return 38;
        case SDL_SCANCODE_RIGHT: return 39;
        case SDL_SCANCODE_DOWN: return 40;
        case SDL_SCANCODE_INSERT: return 45;
        case SDL_SCANCODE_DELETE: return 46;
        case SDL_SCANCODE_SCROLLLOCK: return 145;
        default: return 0;
    }
}

// Letters, digits and punctuation by the character the layout gives.
int bySymbol(SDL_Keycode k) {
    if (k >= 'a' && k <= 'z') return 'A' + (k - 'a');
    if (k >= 'A' && k <= 'Z') return k;
    if (k >= '0' && k <= '9') return k;
    return punctuationKey(k);
}

// The US-layout character of a key, for layouts whose symbols are not ASCII.
int usCharacter(SDL_Scancode s) {
    if (s >= SDL_SCANCODE_A && s <= SDL_SCANCODE_Z) return 'a' + (s - SDL_SCANCODE_A);
    if (s >= SDL_SCANCODE_1 && s <= SDL_SCANCODE_9) return '1' + (s - SDL_SCANCODE_1);
    switch (s) {
        case SDL_SCANCODE_0: return '0';
        case SDL_SCANCODE_SEMICOLON: return ';';
        case SDL_SCANCODE_EQUALS: return '=';
        case SDL_SCANCODE_COMMA: return ',';
        case SDL_SCANCODE_MINUS: return '-';
        case SDL_SCANCODE_PERIOD: return '.';
        case SDL_SCANCODE_SLASH: return '/';
        case SDL_SCANCODE_GRAVE: return '`';
        case SDL_SCANCODE_LEFTBRACKET: return '[';
        case SDL_SCANCODE_BACKSLASH: return '\\';
        case SDL_SCANCODE_RIGHTBRACKET: return ']';
        case SDL_SCANCODE_APOSTROPHE: return '\'';
        default: return 0;
    }
}

}  // namespace

int punctuationKey(int c) {
    switch (c) {
        case ';': return 186;
        case '=': return 187;
        case ',': return 188;
        case '-': return 189;
        case '.': return 190;
        case '/': return 191;
        case '`': return 192;
        case '[': return 219;
        case '\\': return 220;
        case ']': return 221;
        case '\'': return 222;
        default: return 0;
    }
}

int virtualKey(SDL_Scancode scancode, SDL_Keycode symbol) {
    if (int code = byScancode(scancode)) return code;
    if (int code = bySymbol(symbol)) return code;
    return bySymbol(usCharacter(scancode));
}

}  // namespace platform::real
