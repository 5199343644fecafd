// Sounds that hold the game until they have ended.
#include "input/keys.h"
#include "platform/platform.h"
#include "sound/bank.h"

namespace sound {

namespace {

// play, play2, play3: through sb. A settings routine nested in the wait may
// replace or release sb: the wait then ends at once.
void hold(const std::string& a, int volume, bool keyEnds) {
    platform::attempt([&] {
        auto& os = platform::os();
        input::clk();
        replaceSb(loadbuffer(a, volume));
        int mine = bk.sb;
        os.play(mine, 0);
        while (true) {
            os.yield();
            if (bk.sb != mine || os.getStatus(mine) != platform::statusPlaying) break;
            if (keyEnds && !input::ks.g.empty()) break;
        }
        os.stop(bk.sb);
        releaseField(bk.sb);
    });
}

void holdPreloaded(int id) {
    platform::attempt([&] {
        auto& os = platform::os();
        os.restore(id);
        os.play(id, 0);
        do {
            os.yield();
        } while (os.getStatus(id) == platform::statusPlaying);
        os.setCurrentPosition(id, 0);
    });
}

}  // namespace

void play(const std::string& a) { hold(a, bk.wavol, false); }
void play2(const std::string& a) { hold(a, bk.wavol, true); }
void play3(const std::string& a) { hold(a, bk.wavol2, false); }

void playgolfwav() { holdPreloaded(bk.b_golf1); }
void playsandwav() { holdPreloaded(bk.b_golf2); }
void playswingwav() { holdPreloaded(bk.b_golf3); }
void playsinkputtwav() { holdPreloaded(bk.b_golf4); }
void playsplashwav() { holdPreloaded(bk.b_golf5); }

void playputtwav() {
    platform::attempt([] {
        auto& os = platform::os();
        os.restore(bk.b_golf17);
        os.yield();
        os.play(bk.b_golf17, 0);
        os.yield();
        input::dy(0.2);
        os.setCurrentPosition(bk.b_golf17, 0);
    });
}

}  // namespace sound
