// The three manuals. Any key ends a reading at once.
#include "session/manuals.h"

#include <string>

#include "input/keys.h"
#include "platform/platform.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace session {

namespace {

const char* const kInstructions =
    " Welcome to the first tee. Before each shot, the scene will be set for you.  Respond by choosing the right "
    "club from your bag and pressing a key to hit the ball when the sound indicator reaches the power level that "
    "you wish to hit the ball with. The  game is  programmed to mix  pre-set  club distance with your indicated "
    "percent of full swing to produce your results. Obviously, the more you  play  and  learn the subtleties of "
    "club swing percent, the  better  you  will score. WHAT? YOU THOUGHT THIS WAS GOING TO BE EASY? ";

const char* const kSpecialKeys =
    " Special key instructions. C. crowd and ambient sounds toggle. Escape key. save and or exit game. K. key "
    "speak toggle. F1. repeat current prompt. F2. repeat last shot. F3. say your bag of clubs. F4. say special key "
    "instructions. F5. say instructions. F6. reed golf hints F7. review golf log file. F8. or control key. stop "
    "speech temporarily. F9. adjust rate of speech. F11. adjust volume of speech and sounds.  F12. change voice. ";

const char* const kHints1 =
    " Golf Hints. The object of golf is to get the ball into the hole.  On most of the holes you will want to "
    "start at the tee using your 1 wood so that you can drive the ball about 300 yards.  Of course you don't want "
    "to do that on say the holes that are like 147 yards.  But after you drive the ball off of the tee your next "
    "goal is to get the ball onto the green using one of your other clubs.  Most likely an iron.  Once on the "
    "green it will tell you how many feet you are from the pin which is the flag pole that is stuck in the hole.  "
    "Now all you have to do is hit the ball with the correct amount of power to get the ball into the hole.  Oh "
    "yeah you want to get the ball into the hole in as few strokes as possible.  Par or less is the goal.  A "
    "birdie is one less than par.  An eagle is two less than par and a double eagle is three less than par.  A "
    "hole in one is always a good thing.  A boggy is one over par and a double boggy is two over par. ";

const char* const kHints2 =
    " The game of golf takes lots of practice and knowing which club to use for each shot. Putting of course "
    "takes lots of practice.";

const char* const kHints3 =
    " Here is a list of which club I use depending on how far it is to the green.  With the exception of the "
    "pitching wedge I go pretty much for maximum power with each club. less than 100 yards = pitching wedge. less "
    "than 125 yards 9 iron. less than 140 yards 8 iron. less than 155 yards 7 iron. less than 175 yards 6 iron. "
    "less than 190 yards 5 iron. less than 205 yards 4 iron. less than 220 yards 3 iron. less than 235 yards 2 "
    "iron. less than 250 yards 1 iron. the 1 wood will get me about 300 yards and the 4 wood about 260 yards.  ";

// The manuals' first pause is longer than a prompt's.
inline constexpr double manualPause = 0.5;

void readout(const std::string& text) {
    voice::stopspeech();
    platform::attempt([] { platform::os().stop(sound::bk.ab); });
    input::clk();
    voice::say2(text);
    voice::speechwait(manualPause);
    input::clk();
    input::ks.g = key::F1;
}

}  // namespace

void readins() { readout(kInstructions); }
void speckeys() { readout(kSpecialKeys); }
void ReadHints() { readout(std::string(kHints1) + kHints2 + kHints3); }

}  // namespace session
