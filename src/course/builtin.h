// The six courses that are part of the game: the four full-length courses,
// the all-par-3 course and the one that uses the wider vocabulary.
#pragma once

namespace course {

// Writes H(1,1)..H(18,7) of built-in course `a` (1..6), sets fox to 1 and
// firstend to 0. Nothing else changes: HS and HF are left as they are.
// A number outside 1..6 leaves H alone but still sets fox and firstend.
void SetHolesData(int a);

// Puts the names and record file names of the built-ins into cname and
// cfile, slots 1..6. The catalogue builder calls it before the custom files.
void fillBuiltinNames();

}  // namespace course
