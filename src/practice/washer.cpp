// The ball washer: the washer's loop over the crowd, quieter than in play,
// until any key. It is heard even with the crowd switched off.
#include "input/keys.h"
#include "platform/platform.h"
#include "practice/practice.h"
#include "sound/bank.h"
#include "sound/wave_table.h"

namespace practice {

void ballwasher() {
    auto& os = platform::os();
    auto& bk = sound::bk;
    input::clk();   // a key pressed before the washing does not end it
    // Each step on its own: a volume the device refuses leaves the crowd
    // playing at the one it had.
    platform::attempt([&] { os.setVolumeDb(bk.b_golf10, bk.wavol - 200); });
    platform::attempt([&] { os.play(bk.b_golf10, 1); });
    platform::attempt([&] {
        sound::replaceSb(sound::loadbuffer(sound::stem::washer, bk.wavol));
        os.play(bk.sb, 1);
    });
    while (input::ks.g.empty()) os.yield();
    // A settings routine run by the key may have replaced or released sb.
    platform::attempt([&] { os.stop(bk.sb); });
    sound::releaseField(bk.sb);
    platform::attempt([&] { os.stop(bk.b_golf10); });
    platform::attempt([&] { os.setVolumeDb(bk.b_golf10, bk.wavol); });   // from now on level with the effects
    input::clk();
}

}  // namespace practice
