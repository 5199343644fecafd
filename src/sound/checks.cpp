#include "sound/checks.h"

#include "platform/names.h"
#include "platform/platform.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace sound {

namespace {

// The file by its bare name in the working folder, if its name in lower case
// is the one asked for; throws when there is none.
long sizeInWorkingFolder(const std::string& name) {
    for (const auto& e : platform::os().list(name))
        if (!e.isDir && platform::lower(e.name) == name) return long(e.size);
    throw platform::Failure("missing " + name);
}

bool present(const WaveSize& w) {
    for (const auto& e : platform::os().list(w.name))
        if (!e.isDir && platform::lower(e.name) == w.name) return long(e.size) == w.bytes;
    return false;
}

void checkIndicator(const char* regular, const char* beeps, long bytes, const char* message) {
    platform::attempt([&] {
        bk.fq = indicatorRate;
        std::string name = bk.powav == 0 ? regular : beeps;
        if (sizeInWorkingFolder(name) == bytes) {
            auto& os = platform::os();
            std::string stem = name.substr(0, name.size() - 4);
            replaceSb(os.createBuffer(os.programFolder() + "/" + stem + ".wav"));
            bk.fq = os.getFrequency(bk.sb);
            if (bk.fq == indicatorRate) return;
        }
        bk.fq = 13;
        StopAllSounds();
        stopWater();
        voice::say(message);
    });
}

}  // namespace

void checkwaves() {
    platform::attempt([] {
        for (const WaveSize& w : waveSizes) {
            if (!present(w)) {
                bk.fq = 13;
                return;
            }
        }
    });
}

void CheckHitWav() {
    checkIndicator(hitIndicatorName, hitIndicatorBeepsName, hitIndicatorBytes,
                   " Sorry but the hit power wave file seems to be corrupt.  Please contact Tobrell. ");
}

void checkputtwav() {
    checkIndicator(puttIndicatorName, puttIndicatorBeepsName, puttIndicatorBytes,
                   " Sorry but the putt power wave file seems to be corrupt.  Please contact Tobrell. ");
}

void corruptFilesEnding() {
    std::string text = "Sorry but one or more of the wave files seem to be corrupt\rPlease contact Tobrell";
    voice::say2(text);
    platform::attempt([&] { platform::os().messageBox(text); });
}

}  // namespace sound
