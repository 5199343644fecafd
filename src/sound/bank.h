// The sound bank: the buffers, their lives and volumes, and the routines
// that hold the game for a sound, start one, or keep a loop running.
#pragma once

#include <string>

namespace sound {

// fq after a wave file failed its check: no sound has that frequency.
inline constexpr int failedCheck = 13;

struct Bank {
    int wavol = 0;    // effects volume, hundredths of a dB, -5000..0
    int wavol2 = 0;   // ticks and power indicators, same scale
    int cowtog = 0;   // 1 silences crowd and ambient sounds
    int fq = 0;       // frequency last read, or failedCheck
    int powav = 0;    // power indicator choice: 0 regular, else with beeps
    // Buffer ids; 0 is no buffer, and a call on it fails.
    int b_golf1 = 0, b_golf2 = 0, b_golf3 = 0, b_golf4 = 0, b_golf5 = 0;
    int b_golf8 = 0, b_golf9 = 0, b_golf10 = 0;
    int b_golf11 = 0, b_golf12 = 0, b_golf13 = 0, b_golf17 = 0;
    int wb1 = 0, wb2 = 0;   // the water loops
    int sb = 0;             // scratch: one sound at a time
    int ab = 0;             // the ambient one-shot
    int pb = 0;             // the power indicator
};

extern Bank bk;

// The path of a wave file beside the program, from its stem.
std::string wavepath(const std::string& stem);
// Makes a buffer ready from a file stem beside the program: frequency read
// into fq and written back, rewound, at the given volume. Throws on failure.
int loadbuffer(const std::string& stem, int volume, bool yieldBeforeFrequency = false);
// Puts a new buffer into sb, releasing what it held.
void replaceSb(int id);
// Releases a buffer field if it holds one, and empties it.
void releaseField(int& field);

// Sounds that hold the game until they end.
void play(const std::string& a);
void play2(const std::string& a);   // a key ends it and stays in g
void play3(const std::string& a);   // at wavol2
void playgolfwav();
void playsandwav();
void playswingwav();
void playsinkputtwav();
void playsplashwav();
void playputtwav();

// Sounds that only start; silent while cowtog is 1.
void playantwav();
void playaww();
void playclap1();
void playclap2();
void playclap3();
void playcrowdwav();

void StopAllSounds();
void CreateSounds();
// F1 and F2: the ambient sound and the three applauses stop at once.
void stopAbAndClaps();
// Stops both water loops.
void stopWater();

}  // namespace sound
