// Band-limited resampling, from libsamplerate: whole sounds once, when a
// buffer is made, and the synthesiser's speech as it comes, in blocks.
// Linear interpolation would leave images of high sounds (a strike, a bird,
// the top of the power indicator) above them, heard as a harsh edge.
#pragma once

#include <memory>
#include <vector>

struct SRC_STATE_tag;

namespace platform::real {

// `in`: interleaved frames of `channels` samples at `fromRate`. The sound is
// taken as a loop, its end running into its start, so that a looped sound
// stays seamless; a sound that starts and ends in silence loses nothing by
// it. Gives frames * toRate / fromRate frames, at least one.
std::vector<float> resampleWhole(const std::vector<float>& in, int channels, int fromRate, int toRate);

// A stream of 16-bit mono blocks that arrive one after another. Its first
// sample comes out with the first block; the filter holds back under a
// millisecond of each block until the next one, or the end.
class Resampler {
public:
    Resampler(int fromRate, int toRate);
    ~Resampler();
    Resampler(const Resampler&) = delete;
    Resampler& operator=(const Resampler&) = delete;

    // Forgets the stream: the next sample starts a new one.
    void reset();
    // Appends the resampled block to `out` (as -1..1 floats).
    void run(const short* in, int n, std::vector<float>& out);
    // The stream ended: appends what the filter held back.
    void finish(std::vector<float>& out);

private:
    void process(const float* in, long n, bool last, std::vector<float>& out);
    double ratio_;
    SRC_STATE_tag* state_ = nullptr;
    std::vector<float> in_;
};

}  // namespace platform::real
