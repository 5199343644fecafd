// Choosing a club at the spoken prompt: a moving pointer, or a digit and the
// wood or iron question, or "p" and "w" for the pitching wedge.
#pragma once

namespace play {

// Says the prompt and the pointer at 1.
void clubprompt();
// From the first key wait on, until a club is chosen; leaves club and, for
// the pitching wedge, wedge. A key that is no choice says so and the prompt
// starts again.
void pickclub();

}  // namespace play
