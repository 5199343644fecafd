// The course picker: the spoken list of the catalogue in which a new round
// chooses its course.
#pragma once

#include <string>

namespace session {

// The player picks a course by arrows, by the digits of the built-in
// courses or by typing the first letters of a course from the player's
// folder; sets c, starts the round log and loads the course.
void pickcourse();

// The letter search: the first entry from 7 on whose lower-case name begins
// with what was typed becomes sel. A letter more than a second after the
// entry was said starts a new search. now is the time of day of the key.
void searchcourse(const std::string& letter, double now);

}  // namespace session
