// The course in memory: the hole table, the place-name vocabulary and the
// built-in catalogue entries. Only one course is loaded at a time; every load
// writes all eighteen holes over the previous one.
//
// All shared fields of the course subsystem live in the one instance
// `course::cs`. Every table is indexed from 1; slot 0 stays empty.
//   cs.H[hole][k]   hole 1..18, field 1..7: par, yards, left id, right id,
//                   fairw, sixth figure, seventh figure (fields 6 and 7 are
//                   carried for the course files; no rule of play reads them)
//   cs.HS[hole][s]  custom text of a .gcx course: s = 1 left, 2 right
//   cs.HF[hole]     greenside flag: 1 pond and sand trap, 2 sand trap only
//   cs.partag[hole] tag of the par as its course file held it (2 for every
//                   other course); the round's total takes the widest
//   cs.locs[id]     spoken place names, ids 1..162; 0 and 163..165 empty
//   cs.fox          naming rule: 1 vocabulary only, 2 with .gcx custom text
//   cs.cname[a], cs.cfile[a]  catalogue entries; 1..6 are the built-ins
//   cs.firstend     1 once an end-of-round report was given; the end
//                   applause reads it, only SetHolesData clears it
#pragma once

#include <string>

namespace course {

inline constexpr int holeSlots = 20;    // holes 0..19
inline constexpr int fieldSlots = 9;    // fields 0..8
inline constexpr int textSlots = 4;     // HS fields 0..3
inline constexpr int locSlots = 166;    // ids 0..165
inline constexpr int lastLoc = 162;     // highest id with a text
inline constexpr int catSlots = 2223;   // catalogue slots 0..2222
inline constexpr int builtins = 6;      // catalogue slots 1..6

// The id that on a .gcx course stands for custom text in HS.
inline constexpr int customLoc = 160;

struct Course {
    int H[holeSlots][fieldSlots] = {};
    std::string HS[holeSlots][textSlots];
    int HF[holeSlots] = {};
    int partag[holeSlots] = {};
    std::string locs[locSlots];
    int fox = 1;
    std::string cname[catSlots];
    std::string cfile[catSlots];
    int firstend = 0;
};

extern Course cs;

}  // namespace course
