// Speaking: say waits until spoken, say2 queues, stopspeech silences.
#pragma once

#include <string>

namespace voice {

void say(const std::string& text);
void say2(const std::string& text);
void stopspeech();
// Speaks the club pointer: the digit, or " pitching wedge " from 10 on.
void saynoc(int noc);
// Names the key just pressed, quickly: saykey does not wait, saykey2 does.
void saykey();
void saykey2();
// Waits after a say2 until the text has ended or a key came; a key stops the
// voice. first is 0.5 for the manuals, 0.2 elsewhere.
void speechwait(double first = 0.2);

}  // namespace voice
