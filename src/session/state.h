// The session's shared fields: what start-up, the main menu, the course
// picker, the settings and the way out keep between them.
#pragma once

#include <string>

namespace session {

struct SessionState {
};
extern SessionState ss;

}  // namespace session
