#include "session/state.h"

namespace session {

SessionState ss;

}  // namespace session
