// Swing power: three ticks, then the indicator sound; the share of the sound
// gone by when a key comes down is the power.
#pragma once

namespace play {

// The countdown of a full swing and its reading; leaves hitpow and pw.
void swing();
// The countdown of a putt and its reading; leaves hitpow, pw = 0.
void puttswing();
// The three ticks at the power volume, each followed by a pause.
void ticks();
// One reading of the hit or the putt indicator into hitpow.
void GetHitPow();
void GetPuttPow();
// The reading of a play cursor at position bytes of a file of length bytes:
// rises to 50 half-way and falls again; never below 1.
int hitpowFrom(long position, long length);

}  // namespace play
