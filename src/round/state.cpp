#include "round/state.h"

namespace play {

RoundState rs;

}  // namespace play
