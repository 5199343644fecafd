// Whether a file is there. The folder is listed for the exact path, letter
// case aside, and the names found are compared with the one expected: in
// lower case for the game's fixed files (golf.cfg, golf.txt, golflog.txt,
// golfrecords.txt, golfgame.sav), letter for letter for a course record.
#pragma once

#include <string>

namespace course {

enum class NameRule {
    lowerCase,   // a name that is the expected one in lower case counts
    exact,       // only the expected name, letter for letter, counts
};

// The path under which the file stands on disk, folder included; empty when
// no listed name passes the rule. The exact name wins over a case variant.
std::string findfile(const std::string& path, NameRule rule);
bool exists(const std::string& path, NameRule rule);

}  // namespace course
