// Start-up: the player's folder and its first-run filling, today's date,
// the opening sounds and the opening questions.
#pragma once

#include <string>

namespace session {

// kp: the documents folder + "/brindlewick", made if missing; the current
// folder when there is no documents folder.
void getkp();
// On a first run (no golf.txt in kp) copies golf.txt and the course and
// record files that lie beside the program into kp.
void otc();

struct Date {
    int mm = 0, dd = 0, yy = 0;
    bool fell = false;   // the text could not be taken apart
};
// Today's date from the system's short date text, month first; a text that
// cannot be taken apart gives 11/11/2001.
Date readdate(const std::string& text);
inline constexpr Date fallbackDate{11, 11, 2001, true};

// golf.cfg, golf0, the voice, golf1, the random ending, the place names and
// the title.
void startup();
// A pause of 0.3 to 0.7, then the splash, golf14 or golf15 at random: the
// end of the opening and of the leaving.
void flourish();
// The power sound menu: powav from the player's choice.
void powersound();
// Instructions, special keys and hints, in their first-run or later form.
void questions();

}  // namespace session
