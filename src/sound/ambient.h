// The course heard around the player: short sounds that come and go while
// the game waits for a key, general ones near the middle and those of the
// places beside the hole from their side, and water loops on the side of
// the water.
#pragma once

#include <cstdint>
#include <string>

namespace sound {

struct Ambient {
    // Side flags of the hole: 0 none, 1 left, 2 right, 3 both sides.
    int cow = 0, pig = 0, horse = 0, siren = 0, chicken = 0, turkey = 0, ajaf = 0, airplane = 0;
    int train = 0, cars = 0, parklot = 0, water = 0, swim = 0, deer = 0, santa = 0;
    int namb = 0;       // ambient files found at start-up
    std::uint32_t nexttick = 0;   // tick after which the next step is due
    int ambwait = 0;    // the wait last drawn, ms
    int ambno = 0;      // number of the sound chosen
    std::string ambname;
    int pan = 0;
    int side = 1;       // 1 right, -1 left
    int ambinit = 0;    // 1 once the first sound of this run was chosen
};

extern Ambient am;

// Counts the "amb*.wav" files of the working folder, at most 2220.
void countamb();
// Sets the fifteen side flags from the hole's left and right ids.
void chamb(int hole);
// Starts the water loops on the side of the water.
void startwater();
// The key wait's entry: the first sound is due 1025 to 3074 ms from now.
void ambenter();
// One pass of the key wait: runs ambtick when it is due.
void ambpass();
// One step of the scheduler.
void ambtick();
// -1 or 1 with even chance.
int ambside();
// The flag a numbered sound needs, or nullptr for a general sound.
int* ambflag(int ambno);

}  // namespace sound
