#include <gtest/gtest.h>

#include "platform/real/keymap.h"

namespace {

using platform::real::virtualKey;

// Named keys and the pad are known by their place; their symbol is not read.
int key(SDL_Scancode sc) { return virtualKey(sc, SDLK_UNKNOWN); }

TEST(KeyMap, LettersAreUpperCaseCodesWhateverTheCase) {
    EXPECT_EQ(virtualKey(SDL_SCANCODE_A, SDLK_a), 65);
    EXPECT_EQ(virtualKey(SDL_SCANCODE_Z, SDLK_z), 90);
    EXPECT_EQ(virtualKey(SDL_SCANCODE_M, 'M'), 77);
    // The layout decides: the key in the place of Q on a French keyboard is A.
    EXPECT_EQ(virtualKey(SDL_SCANCODE_Q, SDLK_a), 65);
}

TEST(KeyMap, KeysWithoutAnAsciiSymbolFallBackToTheirUsPlace) {
    EXPECT_EQ(virtualKey(SDL_SCANCODE_S, SDL_Keycode(0x0441)), 83);
    EXPECT_EQ(virtualKey(SDL_SCANCODE_3, SDL_Keycode(0x00e9)), 51);
    EXPECT_EQ(virtualKey(SDL_SCANCODE_SEMICOLON, SDL_Keycode(0x0436)), 186);
}

struct Typed {
    SDL_Scancode place;
    char symbol;
    int code;
};

TEST(KeyMap, DigitsAndPunctuation) {
    const Typed table[] = {
        {SDL_SCANCODE_0, '0', 48},         {SDL_SCANCODE_1, '1', 49},         {SDL_SCANCODE_9, '9', 57},
        {SDL_SCANCODE_SEMICOLON, ';', 186}, {SDL_SCANCODE_EQUALS, '=', 187},   {SDL_SCANCODE_COMMA, ',', 188},
        {SDL_SCANCODE_MINUS, '-', 189},    {SDL_SCANCODE_PERIOD, '.', 190},   {SDL_SCANCODE_SLASH, '/', 191},
        {SDL_SCANCODE_GRAVE, '`', 192},    {SDL_SCANCODE_LEFTBRACKET, '[', 219},
        {SDL_SCANCODE_BACKSLASH, '\\', 220}, {SDL_SCANCODE_RIGHTBRACKET, ']', 221},
        {SDL_SCANCODE_APOSTROPHE, '\'', 222},
    };
    for (auto t : table) {
        EXPECT_EQ(virtualKey(t.place, t.symbol), t.code) << t.symbol;
        EXPECT_EQ(key(t.place), t.code) << "by place: " << t.symbol;
    }
}

TEST(KeyMap, NumericPadByPlaceWhateverNumLockSays) {
    EXPECT_EQ(key(SDL_SCANCODE_KP_0), 96);
    EXPECT_EQ(key(SDL_SCANCODE_KP_1), 97);
    EXPECT_EQ(key(SDL_SCANCODE_KP_9), 105);
    // With NumLock off the pad reports navigation symbols; still the digits.
    EXPECT_EQ(virtualKey(SDL_SCANCODE_KP_7, SDLK_HOME), 103);
    EXPECT_EQ(virtualKey(SDL_SCANCODE_KP_PERIOD, SDLK_DELETE), 110);
    EXPECT_EQ(key(SDL_SCANCODE_KP_MULTIPLY), 106);
    EXPECT_EQ(key(SDL_SCANCODE_KP_PLUS), 107);
    EXPECT_EQ(key(SDL_SCANCODE_KP_MINUS), 109);
    EXPECT_EQ(key(SDL_SCANCODE_KP_DIVIDE), 111);
    EXPECT_EQ(key(SDL_SCANCODE_KP_ENTER), 13);
}

TEST(KeyMap, NamedKeys) {
    const std::pair<SDL_Scancode, int> table[] = {
        {SDL_SCANCODE_BACKSPACE, 8}, {SDL_SCANCODE_TAB, 9},       {SDL_SCANCODE_RETURN, 13},
        {SDL_SCANCODE_LSHIFT, 16},   {SDL_SCANCODE_RSHIFT, 16},   {SDL_SCANCODE_LCTRL, 17},
        {SDL_SCANCODE_RCTRL, 17},    {SDL_SCANCODE_LALT, 18},     {SDL_SCANCODE_RALT, 18},
        {SDL_SCANCODE_PAUSE, 19},    {SDL_SCANCODE_ESCAPE, 27},   {SDL_SCANCODE_SPACE, 32},
        {SDL_SCANCODE_PAGEUP, 33},   {SDL_SCANCODE_PAGEDOWN, 34}, {SDL_SCANCODE_END, 35},
        {SDL_SCANCODE_HOME, 36},     {SDL_SCANCODE_LEFT, 37},     {SDL_SCANCODE_UP, 38},
        {SDL_SCANCODE_RIGHT, 39},    {SDL_SCANCODE_DOWN, 40},     {SDL_SCANCODE_INSERT, 45},
        {SDL_SCANCODE_DELETE, 46},   {SDL_SCANCODE_F1, 112},      {SDL_SCANCODE_F12, 123},
        {SDL_SCANCODE_SCROLLLOCK, 145},
    };
    for (auto [sc, code] : table) EXPECT_EQ(key(sc), code) << SDL_GetScancodeName(sc);
}

TEST(KeyMap, KeysWithoutACodeGiveZero) {
    EXPECT_EQ(key(SDL_SCANCODE_CAPSLOCK), 0);
    EXPECT_EQ(key(SDL_SCANCODE_LGUI), 0);
    EXPECT_EQ(key(SDL_SCANCODE_F13), 0);
}

}  // namespace
