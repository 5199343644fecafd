// Sounds that only start and run under whatever comes next.
#include "input/keys.h"
#include "platform/platform.h"
#include "sound/bank.h"

namespace sound {

namespace {
void startOnce(int id) {
    if (bk.cowtog == 1) return;
    platform::attempt([&] {
        auto& os = platform::os();
        os.setCurrentPosition(id, 0);
        os.restore(id);
        os.play(id, 0);
    });
}
}  // namespace

void playantwav() { startOnce(bk.b_golf8); }
void playaww() { startOnce(bk.b_golf9); }
void playclap1() { startOnce(bk.b_golf11); }
void playclap2() { startOnce(bk.b_golf12); }
void playclap3() { startOnce(bk.b_golf13); }

void playcrowdwav() {
    if (bk.cowtog == 1) return;
    input::clk();
    platform::attempt([] {
        auto& os = platform::os();
        if (os.getStatus(bk.b_golf10) != platform::statusPlaying) os.play(bk.b_golf10, 1);
    });
}

}  // namespace sound
