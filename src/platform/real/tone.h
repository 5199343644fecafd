// A plain sine tone as a wave, for the system beep.
#pragma once

#include "platform/wav.h"

namespace platform::real {

// 16-bit mono, with a few milliseconds of fade at each end against clicks.
Wave toneWave(int hz, int ms, int rate);

}  // namespace platform::real
