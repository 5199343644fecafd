// The key wait of play with the commands a player can give at any prompt of
// a round, the two Escape menus, the review of the log, and the message for
// a key that is no choice.
#pragma once

#include <string>
#include <vector>

namespace play {

// Thrown out of a key wait when the player leaves the round for the main
// menu; the round driver catches it and returns.
struct LeaveRound {};

// Idles until a key comes that the caller has to answer; leaves g, g2 and
// keynum. The commands of play are done inside it. A return from an Escape
// menu hands back g = key::F1 with g2 empty and keynum 27.
void keywait();
// " That is not A-choice. ", the error sound and " please try again. ";
// silent for the F1 that a menu leaves behind. With keyCuts a key during
// the error sound also skips " please try again. ", as at the range.
void notchoice(bool keyCuts = false);

// The Escape menu at the beginning of a hole, with saving, and the one in
// play. The other entries leave the round or the program; "return to game"
// comes back with g = key::F1 and g2 empty.
void escmenu();
void escmenu2();
// F7: the log hole by hole; Escape leaves it with g = key::F2, so that the
// key wait goes on with the report of the stage.
void logreview();

// The review's entries from the log's text: the head skipped, then two
// lines joined by a blank for each entry. A line that is missing repeats
// the last one read; there is always at least one entry.
std::vector<std::string> logentries(const std::string& text);
inline constexpr int maxLogEntries = 111;

// F3: what each club reaches, behind the player's name.
inline constexpr const char* bagText =
    " This Is Your Bag Of Clubs, Woods 1 thru 4 300 to 250 Yards, Irons 1 thru 9 250 to   0 Yards, "
    "Pitching Wedge 100 to   0 Yards ";

}  // namespace play
