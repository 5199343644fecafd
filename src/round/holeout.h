// The ball drops: the verdict against par and its counters.
#pragma once

namespace play {

void sinkball();

}  // namespace play
