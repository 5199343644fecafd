// A streaming linear-interpolation resampler from the synthesiser's rate to
// the device rate, for 16-bit mono chunks that arrive one after another.
#pragma once

#include <cstdint>
#include <vector>

namespace platform::real {

class Resampler {
public:
    Resampler(int fromRate, int toRate);
    // Forgets the previous chunk: the next sample starts a new stream.
    void reset();
    // Appends the resampled chunk to `out` (as -1..1 floats).
    void run(const short* in, int n, std::vector<float>& out);

private:
    double step_;
    double pos_ = 0;     // next output, in input samples from this chunk's start
    float last_ = 0;     // the previous chunk's last sample, at position -1
};

}  // namespace platform::real
