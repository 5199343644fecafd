// The key codes the game tests, as the key handler delivers them: Windows
// virtual-key numbers. The strings are what g holds for each key; the
// numbers in key::code are the same codes where a number is needed.
#pragma once

namespace key {

namespace code {
inline constexpr int Backspace = 8;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16;
inline constexpr int Ctrl = 17;
inline constexpr int Alt = 18;
inline constexpr int Pause = 19;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int Up = 38;
inline constexpr int Down = 40;
inline constexpr int Digit0 = 48;
inline constexpr int Digit9 = 57;
inline constexpr int A = 65;
inline constexpr int Z = 90;
inline constexpr int F1 = 112;
inline constexpr int F2 = 113;
inline constexpr int F3 = 114;
inline constexpr int F4 = 115;
inline constexpr int F5 = 116;
inline constexpr int F6 = 117;
inline constexpr int F7 = 118;
inline constexpr int F8 = 119;
inline constexpr int F9 = 120;
inline constexpr int F10 = 121;
inline constexpr int F11 = 122;
inline constexpr int F12 = 123;
inline constexpr int ScrollLock = 145;
}  // namespace code

inline constexpr char Backspace[] = "8";
inline constexpr char Enter[] = "13";
inline constexpr char Shift[] = "16";
inline constexpr char Ctrl[] = "17";
inline constexpr char Alt[] = "18";
inline constexpr char Pause[] = "19";
inline constexpr char Escape[] = "27";
inline constexpr char Space[] = "32";
inline constexpr char Up[] = "38";
inline constexpr char Down[] = "40";
inline constexpr char E[] = "69";
inline constexpr char I[] = "73";
inline constexpr char W[] = "87";
inline constexpr char F1[] = "112";
inline constexpr char F2[] = "113";
inline constexpr char F3[] = "114";
inline constexpr char F4[] = "115";
inline constexpr char F5[] = "116";
inline constexpr char F6[] = "117";
inline constexpr char F7[] = "118";
inline constexpr char F8[] = "119";
inline constexpr char F9[] = "120";
inline constexpr char F11[] = "122";
inline constexpr char F12[] = "123";
inline constexpr char ScrollLock[] = "145";

}  // namespace key
