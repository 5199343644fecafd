// The answer to a key that is no choice.
#include "round/inplay.h"
#include "sound/bank.h"
#include "voice/keys.h"
#include "voice/speech.h"

namespace play {

void notchoice() {
    auto& vs = voice::vs;
    if (vs.g == "112") {
        vs.g.clear();
        return;
    }
    voice::clk();
    voice::say2(" That is not A-choice. ");
    voice::speechwait(0.2);
    if (!vs.g.empty()) return;
    sound::play2("golf19");
    voice::say2(" please try again. ");
    voice::speechwait(0.2);
}

}  // namespace play
