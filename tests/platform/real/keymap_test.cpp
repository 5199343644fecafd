#include <gtest/gtest.h>

#include "platform/real/keymap.h"

namespace {

using platform::real::virtualKey;

// Letters, digits and signs follow the layout, and a symbol beyond ASCII the
// key's place on a US keyboard; the pad and the named keys follow the place,
// whatever the layout or NumLock says.
TEST(KeyMap, EachKeyByItsSymbolOrItsPlace) {
    const std::tuple<SDL_Scancode, SDL_Keycode, int> bySymbol[] = {
        {SDL_SCANCODE_A, SDLK_a, 65}, {SDL_SCANCODE_Z, SDLK_z, 90}, {SDL_SCANCODE_M, 'M', 77},
        {SDL_SCANCODE_Q, SDLK_a, 65},   // a French keyboard's A
        {SDL_SCANCODE_S, 0x0441, 83}, {SDL_SCANCODE_3, 0x00e9, 51}, {SDL_SCANCODE_SEMICOLON, 0x0436, 186},
        {SDL_SCANCODE_0, '0', 48}, {SDL_SCANCODE_SLASH, '/', 191}, {SDL_SCANCODE_KP_7, SDLK_HOME, 103},
        {SDL_SCANCODE_KP_PERIOD, SDLK_DELETE, 110},
    };
    for (auto [place, symbol, code] : bySymbol) EXPECT_EQ(virtualKey(place, symbol), code) << symbol;
    const std::pair<SDL_Scancode, int> byPlace[] = {
        {SDL_SCANCODE_9, 57}, {SDL_SCANCODE_SEMICOLON, 186}, {SDL_SCANCODE_EQUALS, 187}, {SDL_SCANCODE_COMMA, 188},
        {SDL_SCANCODE_MINUS, 189}, {SDL_SCANCODE_PERIOD, 190}, {SDL_SCANCODE_GRAVE, 192},
        {SDL_SCANCODE_LEFTBRACKET, 219}, {SDL_SCANCODE_BACKSLASH, 220}, {SDL_SCANCODE_RIGHTBRACKET, 221},
        {SDL_SCANCODE_APOSTROPHE, 222}, {SDL_SCANCODE_KP_0, 96}, {SDL_SCANCODE_KP_9, 105},
        {SDL_SCANCODE_KP_MULTIPLY, 106}, {SDL_SCANCODE_KP_PLUS, 107}, {SDL_SCANCODE_KP_MINUS, 109},
        {SDL_SCANCODE_KP_DIVIDE, 111}, {SDL_SCANCODE_KP_ENTER, 13}, {SDL_SCANCODE_BACKSPACE, 8}, {SDL_SCANCODE_TAB, 9},
        {SDL_SCANCODE_RETURN, 13}, {SDL_SCANCODE_RSHIFT, 16}, {SDL_SCANCODE_LCTRL, 17}, {SDL_SCANCODE_RALT, 18},
        {SDL_SCANCODE_PAUSE, 19}, {SDL_SCANCODE_ESCAPE, 27}, {SDL_SCANCODE_SPACE, 32}, {SDL_SCANCODE_PAGEUP, 33},
        {SDL_SCANCODE_PAGEDOWN, 34}, {SDL_SCANCODE_END, 35}, {SDL_SCANCODE_HOME, 36}, {SDL_SCANCODE_LEFT, 37},
        {SDL_SCANCODE_UP, 38}, {SDL_SCANCODE_RIGHT, 39}, {SDL_SCANCODE_DOWN, 40}, {SDL_SCANCODE_INSERT, 45},
        {SDL_SCANCODE_DELETE, 46}, {SDL_SCANCODE_F1, 112}, {SDL_SCANCODE_F12, 123}, {SDL_SCANCODE_SCROLLLOCK, 145},
        {SDL_SCANCODE_CAPSLOCK, 0}, {SDL_SCANCODE_LGUI, 0}, {SDL_SCANCODE_F13, 0},
    };
    for (auto [place, code] : byPlace) EXPECT_EQ(virtualKey(place, SDLK_UNKNOWN), code) << SDL_GetScancodeName(place);
}

}  // namespace
