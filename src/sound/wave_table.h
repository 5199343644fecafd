// The game's sound files and their exact sizes, checked at start-up. The
// generator (tools/wavegen) takes its durations from this table, so the files
// it writes and the sizes the game expects come from one place.
#pragma once

namespace sound {

constexpr int effectRate = 22050;        // every file but the power indicators
constexpr int indicatorRate = 11025;     // the four power indicators
constexpr long waveHeaderBytes = 44;     // plain RIFF header, PCM 16-bit mono

constexpr long waveBytes(long frames) { return waveHeaderBytes + 2 * frames; }
constexpr long dataFrames(long bytes) { return (bytes - waveHeaderBytes) / 2; }

// The power indicators: the pitch peaks at exactly half the sound data, so
// both lengths are an even number of frames.
constexpr long hitIndicatorFrames = 30870;     // 2.8 s at 11025 Hz
constexpr long puttIndicatorFrames = 106942;   // about 9.7 s at 11025 Hz
constexpr long hitIndicatorBytes = waveBytes(hitIndicatorFrames);     // golf7.wav, golf28.wav
constexpr long puttIndicatorBytes = waveBytes(puttIndicatorFrames);   // golf6.wav, golf27.wav
constexpr const char* hitIndicatorName = "golf7.wav";
constexpr const char* hitIndicatorBeepsName = "golf28.wav";
constexpr const char* puttIndicatorName = "golf6.wav";
constexpr const char* puttIndicatorBeepsName = "golf27.wav";

struct WaveSize {
    const char* name;
    long bytes;
    int rate;
};

constexpr int waveCount = 67;
// In the order the game checks them: names sorted without regard to case.
extern const WaveSize waveSizes[waveCount];

// The entry for a file name (case-insensitive), or nullptr.
const WaveSize* findWave(const char* name);

}  // namespace sound
