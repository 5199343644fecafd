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

// PCM, 8 or 16 bit, mono or stereo. Nothing else is accepted; a malformed
// file gives no wave and never reads past its bytes.
std::optional<Wave> parseWave(const std::string& bytes);

// The file stem of a path: "/a/b/golf16.wav" gives "golf16".
std::string fileStem(const std::string& path);

}  // namespace platform
