// The player's folder as the round sees it: the one start-up found.
#include "round/session.h"
#include "session/state.h"

namespace play {

std::string kp() { return session::ss.kp; }

}  // namespace play
