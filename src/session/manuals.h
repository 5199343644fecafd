// The three spoken manuals, also on F4, F5 and F6 from any wait but a power
// reading. Each ends with g = F1, so the prompt below is said again.
#pragma once

namespace session {

void readins();     // F5: how to play
void speckeys();    // F4: the special keys
void ReadHints();   // F6: golf hints

}  // namespace session
