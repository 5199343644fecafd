// golf.cfg: the name, voice, rate, volumes and switches the game keeps
// between runs. Ten lines: the name as held, then nv, vr, vv, wavol, wavol2,
// cowtog, powav and keytog in printed form, then an empty line. A file of
// seven lines leaves powav and keytog as they were.
#pragma once

#include <string>

namespace session {

inline constexpr char cfgName[] = "golf.cfg";

// The file beside the program, then the one in kp, each read over the
// settings if it is there.
void readconfig();
// kp + "/golf.cfg" with the settings as they stand.
void writeconfig();
// The path of golf.cfg in folder ("" for the working folder) if it is there;
// empty otherwise.
std::string cfgpath(const std::string& folder);

}  // namespace session
