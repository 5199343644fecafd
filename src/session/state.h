// The session's shared fields: what start-up, the main menu, the course
// picker, the settings and the way out keep between them.
#pragma once

#include <string>

namespace session {

struct SessionState {
    // ---- the main menu and the course picker
    int sel = 1;          // pointer of the list in use
    std::string typed;    // what the player has typed of a course name; kept between picks
    long stm = 0;         // time of day in whole seconds at which the picker last said an entry
    // ---- the voice
    int nv = 0;           // index of the voice in the voice list
    int vv = 95;          // the voice's volume, 0..100; one step of F11 is 5
    // ---- start-up, golf.cfg and the way out
    std::string kp;      // the player's folder, without a closing slash
    std::string golog;   // kp + "/golflog.txt": the round log
    int mm = 0, dd = 0, yy = 0;   // today's month, day and year
    bool datefell = false;        // the date text could not be read: 11, 11, 2001
    int qr = 0;          // 1 once shutdown has released everything: the window may close
    int playdeck = 0;    // 1 when the launcher lies in the current folder
};
extern SessionState ss;

}  // namespace session
