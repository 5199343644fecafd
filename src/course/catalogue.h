// The numbered catalogue of courses and the loaders of the courses that are
// not built in: the custom course files in the player's folder and the
// random course.
//
// Slots 1..6 hold the built-in courses, 7..nocs-1 the custom files sorted by
// their lower-case names, and nocs the random course. A custom file that
// ends before its last field, or whose text is damaged, is left out.
#pragma once

#include <string>

namespace course {

// Builds cname and cfile from the course files in the player's folder and
// returns nocs, the slot of the random course. Start-up calls it once.
int GetCors(const std::string& folder);
// The spoken name of a custom file: the name without "golf" and its
// extension, between two blanks.
std::string customName(const std::string& file);
// Sorts the custom entries first..last by lower-case file name, cname and
// cfile together; stable.
void sortCustom(int first, int last);

// Loads catalogue entry c from its file in the player's folder: .gcx when
// the name ends in "gcx" whatever its case, else .gcf. Clears HS and sets fox
// first; a file that cannot be read or ends early throws platform::Failure
// and leaves H and HF as they stand.
void GetCusCors(const std::string& folder, int c);

// Makes a new random course of eighteen holes; fox becomes 1.
void setrandomcourse();

}  // namespace course
