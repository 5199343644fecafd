#include "voice/state.h"

namespace voice {

VoiceState vs;

}  // namespace voice
