// The answer to a key that is no choice.
#include "input/keys.h"
#include "round/inplay.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace play {

void notchoice(bool keyCuts) {
    auto& ks = input::ks;
    if (ks.g == key::F1) {
        ks.g.clear();
        return;
    }
    input::clk();
    voice::say2(" That is not A-choice. ");
    voice::speechwait(0.2);
    if (!ks.g.empty()) return;
    sound::play2(sound::stem::error);
    if (keyCuts && !ks.g.empty()) return;
    voice::say2(" please try again. ");
    voice::speechwait(0.2);
}

}  // namespace play
