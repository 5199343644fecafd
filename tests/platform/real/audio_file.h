// Reading back what SDL's disk audio driver wrote: 32-bit float stereo at
// 48 kHz, the format the platform asks the device for.
#pragma once

#include <string>
#include <vector>

namespace realtest {

// The left channel of the file from frame `from` on.
std::vector<float> leftChannel(const std::string& path, long from = 0);
long framesIn(const std::string& path);

// Speech, as opposed to silence, a click or a steady tone: at least `minMs`
// of sound, rising and falling in loudness.
bool soundsLikeSpeech(const std::vector<float>& samples, int minMs);
// True when there was sound and the last `quietMs` are silent.
bool endsInSilence(const std::vector<float>& samples, int quietMs);

}  // namespace realtest
