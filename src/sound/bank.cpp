#include "sound/bank.h"

#include "platform/platform.h"
#include "sound/wave_table.h"

namespace sound {

Bank bk;

std::string wavepath(const std::string& stem) { return platform::os().programFolder() + "/" + stem + ".wav"; }

int loadbuffer(const std::string& stem, int volume, bool yieldBeforeFrequency) {
    auto& os = platform::os();
    int id = os.createBuffer(wavepath(stem));
    try {
        bk.fq = os.getFrequency(id);
        os.setCurrentPosition(id, 0);
        os.setVolumeDb(id, volume);
        if (yieldBeforeFrequency) os.yield();
        os.setFrequency(id, bk.fq);
    } catch (const platform::Failure&) {
        platform::attempt([&] { os.releaseBuffer(id); });
        throw;
    }
    return id;
}

void releaseField(int& field) {
    if (field == 0) return;
    int id = field;
    field = 0;
    platform::attempt([&] { platform::os().releaseBuffer(id); });
}

void replaceSb(int id) {
    releaseField(bk.sb);
    bk.sb = id;
}

void CreateSounds() {
    struct Slot {
        const char* stem;
        int* field;
        int below;
    };
    const Slot slots[] = {{stem::strike, &bk.b_golf1, 0},   {stem::sandStrike, &bk.b_golf2, 0},
                          {stem::misuseSwing, &bk.b_golf3, 0},   {stem::sink, &bk.b_golf4, 0},
                          {stem::splash, &bk.b_golf5, 0},   {stem::crowdOoh, &bk.b_golf8, 0},
                          {stem::crowdAww, &bk.b_golf9, 0},   {stem::crowdLoop, &bk.b_golf10, 100},
                          {stem::clap1, &bk.b_golf11, 0}, {stem::clap2, &bk.b_golf12, 0},
                          {stem::clap3, &bk.b_golf13, 0}, {stem::puttStrike, &bk.b_golf17, 0},
                          {stem::water, &bk.wb1, 0},      {stem::water, &bk.wb2, 0}};
    for (const Slot& s : slots)
        platform::attempt([&] { *s.field = loadbuffer(s.stem, bk.wavol - s.below); });
}

void StopAllSounds() {
    platform::attempt([] {
        auto& os = platform::os();
        for (int id : {bk.ab, bk.b_golf1, bk.b_golf2, bk.b_golf3, bk.b_golf4, bk.b_golf5, bk.b_golf8,
                       bk.b_golf9, bk.b_golf10, bk.b_golf11, bk.b_golf12, bk.b_golf13})
            os.stop(id);
    });
}

void stopAbAndClaps() {
    auto& os = platform::os();
    for (int id : {bk.ab, bk.b_golf11, bk.b_golf12, bk.b_golf13})
        platform::attempt([&] { os.stop(id); });
}

void stopWater() {
    auto& os = platform::os();
    platform::attempt([&] { os.stop(bk.wb1); });
    platform::attempt([&] { os.stop(bk.wb2); });
}

}  // namespace sound
