// The key wait of play and the message for a key that is no choice.
#pragma once

namespace play {

// Thrown out of a key wait when the player leaves the round for the main
// menu; the round driver catches it and returns.
struct LeaveRound {};

// Idles until a key comes that the caller has to answer; leaves g, g2 and
// keynum. The commands of play are done inside it.
void keywait();
// " That is not A-choice. ", the error sound and " please try again. ";
// silent for the F1 that a menu leaves behind.
void notchoice();

}  // namespace play
