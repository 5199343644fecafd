// RIFF WAVE reading shared by the mixer and the simulated device.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

struct Wave {
    int channels = 0;
    int rate = 0;
    int bits = 0;
    int blockAlign = 0;
    std::vector<std::uint8_t> data;   // the sound data, as in the file
    long frames() const { return blockAlign ? long(data.size()) / blockAlign : 0; }
};

// PCM, 8 or 16 bit, mono or stereo, at a rate a buffer can be set to.
// Nothing else is accepted; a malformed file gives no wave, and `why` (when
// given) what is wrong with it. Never reads past its bytes.
std::optional<Wave> parseWave(const std::string& bytes, std::string* why = nullptr);

// The wave of a new sound buffer from the bytes of the file at `path`; it
// must hold at least one frame. Throws Failure naming the file and what is
// wrong with it.
Wave bufferWave(const std::string& bytes, const std::string& path);

// The file stem of a path: "/a/b/golf16.wav" gives "golf16".
std::string fileStem(const std::string& path);

}  // namespace platform
