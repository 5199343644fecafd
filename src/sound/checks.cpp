#include "sound/checks.h"

#include <optional>

#include "platform/names.h"
#include "platform/platform.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace sound {

namespace {

// The size of the file by its bare name in the working folder, if its name
// in lower case is the one asked for.
std::optional<long> sizeInWorkingFolder(const std::string& name) {
    for (const auto& e : platform::os().list(name))
        if (!e.isDir && platform::lower(e.name) == name) return long(e.size);
    return std::nullopt;
}

// A new buffer of the indicator in sb and its frequency in fq. False when
// no buffer can be made of the file: that fails the check, as a wrong size
// does.
bool loadIndicator(const std::string& name) {
    return platform::attempt([&] {
        auto& os = platform::os();
        replaceSb(os.createBuffer(wavepath(name.substr(0, name.size() - 4))));
        bk.fq = os.getFrequency(bk.sb);
    });
}

void checkIndicator(const char* regular, const char* beeps, long bytes, const char* message) {
    platform::attempt([&] {
        bk.fq = indicatorRate;
        std::string name = bk.powav == 0 ? regular : beeps;
        auto size = sizeInWorkingFolder(name);
        if (!size) throw platform::Failure(name + " is not in the working folder");   // the check is abandoned
        if (*size == bytes && loadIndicator(name) && bk.fq == indicatorRate) return;
        bk.fq = failedCheck;
        StopAllSounds();
        stopWater();
        voice::say(message);
    });
}

}  // namespace

void checkwaves() {
    platform::attempt([] {
        for (const WaveSize& w : waveSizes) {
            if (sizeInWorkingFolder(w.name) != w.bytes) {
                bk.fq = failedCheck;
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
