#include "sound/wave_table.h"

#include <strings.h>

namespace sound {

namespace {

constexpr WaveSize effect(const char* name, long millis) {
    return {name, waveBytes(effectRate * millis / 1000), effectRate};
}

constexpr WaveSize indicator(const char* name, long frames) { return {name, waveBytes(frames), indicatorRate}; }

}  // namespace

const WaveSize waveSizes[waveCount] = {
    effect("amb1.wav", 4500),   effect("amb10.wav", 3500),  effect("amb11.wav", 6000),
    effect("amb12.wav", 3500),  effect("amb13.wav", 6000),  effect("amb14.wav", 3000),
    effect("amb15.wav", 3500),  effect("amb16.wav", 2500),  effect("amb17.wav", 3500),
    effect("amb18.wav", 3000),  effect("amb19.wav", 4000),  effect("amb2.wav", 6000),
    effect("amb20.wav", 4000),  effect("amb21.wav", 6000),  effect("amb22.wav", 6000),
    effect("amb23.wav", 5000),  effect("amb24.wav", 7000),  effect("amb25.wav", 6000),
    effect("amb26.wav", 3500),  effect("amb27.wav", 7000),  effect("amb28.wav", 5000),
    effect("amb29.wav", 7000),  effect("amb3.wav", 4000),   effect("amb30.wav", 6000),
    effect("amb31.wav", 6000),  effect("amb32.wav", 5000),  effect("amb33.wav", 6000),
    effect("amb34.wav", 7000),  effect("amb35.wav", 3000),  effect("amb4.wav", 6000),
    effect("amb5.wav", 3500),   effect("amb6.wav", 3500),   effect("amb7.wav", 3500),
    effect("amb8.wav", 3500),   effect("amb9.wav", 4500),   effect("golf0.wav", 3500),
    effect("golf1.wav", 250),   effect("golf10.wav", 6000), effect("golf11.wav", 2500),
    effect("golf12.wav", 4000), effect("golf13.wav", 7000), effect("golf14.wav", 2000),
    effect("golf15.wav", 1200), effect("golf16.wav", 40),   effect("golf17.wav", 150),
    effect("golf18.wav", 900),  effect("golf19.wav", 400),  effect("golf2.wav", 900),
    effect("golf20.wav", 1800), effect("golf21.wav", 1200), effect("golf22.wav", 2600),
    effect("golf23.wav", 1000), effect("golf24.wav", 4500), effect("golf25.wav", 2500),
    effect("golf26.wav", 1200), indicator("golf27.wav", puttIndicatorFrames),
    indicator("golf28.wav", hitIndicatorFrames), effect("golf29.wav", 4000),
    effect("golf3.wav", 800),   effect("golf30.wav", 3000), effect("golf31.wav", 6000),
    effect("golf4.wav", 1000),  effect("golf5.wav", 1500),
    indicator("golf6.wav", puttIndicatorFrames), indicator("golf7.wav", hitIndicatorFrames),
    effect("golf8.wav", 1800),  effect("golf9.wav", 1600),
};

const WaveSize* findWave(const char* name) {
    for (const WaveSize& w : waveSizes)
        if (strcasecmp(w.name, name) == 0) return &w;
    return nullptr;
}

}  // namespace sound
