// The round state: every field the routines of a round share. They live as
// long as the program, so a round starts from what the last one left except
// where a step sets a value. The routines take no arguments and leave their
// results here.
#pragma once

#include <string>

#include "course/locs.h"
#include "voice/text.h"

namespace play {

struct RoundState {
    // ---- the round
    int hole = 1;      // 1..18 in play; 19 once all holes are done
    int stks = 0;      // strokes of the finished holes
    int total = 0;     // sum of the pars of the holes begun
    int totaltag = 2;  // stored tag of total: the widest tag of the pars summed
    int BAD = 0, DOUBLEBOGEY = 0, Bogey = 0, PARS = 0;
    int BIRDIE = 0, EAGLE = 0, DOUEAG = 0, HOLEINONE = 0;
    int sank = 0;      // class of the last holed ball, 1..8
    int virgin = 0;    // 1 from endhole until the hole's score was spoken once
    int c = 1;         // the course in play, an index of the catalogue
    int nocs = 0;      // entries of the catalogue; the last is the random course
    int washed = 0;    // 1 once the ball washer was used
    int dirty = 1;     // 0 when washed, else 1
    int hookset = 3;   // hook and slice selector; 3 takes neither arm
    int resumed = 0;   // 1 when this round came from a saved game
    int resumeskip = 0;  // 1 until the first starthole after a resume
    int nsaves = 0;    // times this round was saved
    int savedexit = 0; // 1 once the player chose to save and leave: the save stays

    // ---- the hole, set by starthole
    int par = 0;
    int holelen = 0;   // togo == holelen means the ball is on the tee
    int leftloc = 0, rightloc = 0;
    std::string leftname, rightname;
    int fairw = 0;     // the fairway figure

    // ---- the shot
    int stk = 0;       // strokes on this hole, penalties included
    int lie = course::lie::fairway;   // index into the place names: a lie::
    int togo = 0;      // yards from the ball to the green
    int lasttogo = 0;  // togo before the last shot
    double remain = 0; // yards from the green; on the green feet from the pin
    int yds = 0;       // yards the last shot went
    double offl = 0;   // yards off line of the last shot, never rounded
    int hitpow = 0;    // last power reading, 1..50
    double pw = 0;     // swing fraction hitpow * 2 / 100; 0 once a putt begins
    double puttpow = 0;  // strength of the last putt, hitpow / 5; kept from hole to hole
    double puttfeet = 0; // feet the last putt travelled, puttpow * 4
    double club = 0;   // club value of the distance formula
    int noc = 1;       // club pointer of the prompt, 1..10; 10 the wedge
    double keynum = 0; // numeric value of the last key keywait handled
    int wi = 0;        // wood or iron answer: 1 wood, 2 iron, 0 never asked yet
    int pflag = 0;     // 1 once "p" was pressed at this prompt

    // ---- stage and flags of the hole
    int f1state = 0;   // 1 tee, 2 in play, 3 on the green, 4 hole done
    int savestate = 0; // 1 while no swing was begun on this hole
    int putts = 0;
    int onputt = 0;
    int firstapp = 0;
    int greensaid = 0;
    int wedge = 0;     // the pitching wedge was chosen
    int nopause = 0;
    int trapped = 0;
    int inpond = 0;
    int noclap = 0;
    int misuse = 0;
    int misusestop = 0;
    int holed = 0;     // 1 once the green step has dropped the ball

    // ---- from the session: the player's name, a blank at each end
    std::string pn;
};

extern RoundState rs;

// The club prompt; after a shot and at F1 it carries one more blank.
inline constexpr const char* clubPrompt =
    " Select Your Club.              1 to 9 For Irons, 1 to 4 For woods, or PW For Pitching Wedge.";
inline constexpr const char* anyKeyPrompt = " press any key to continue ";

namespace lie = course::lie;

// The number and text forms of what is spoken.
using voice::cut;
using voice::spaced;

}  // namespace play
