#include "platform/real/resampler.h"

#include <samplerate.h>

#include <cmath>
#include <numeric>

namespace platform::real {

namespace {

// Whole sounds are made once, so they may take the better filter; the
// speech stream takes the one that holds back least.
constexpr int kWholeFilter = SRC_SINC_MEDIUM_QUALITY;
constexpr int kStreamFilter = SRC_SINC_FASTEST;
// Frames of the sound's other end put before and after it: more than the
// filter reaches.
constexpr long kReach = 256;

// Linear interpolation, for ratios beyond the library's range (a sound file
// at 100 samples a second).
std::vector<float> linear(const std::vector<float>& in, int channels, long frames, long outFrames) {
    std::vector<float> out(std::size_t(outFrames * channels));
    double step = double(frames) / double(outFrames);
    for (long j = 0; j < outFrames; ++j) {
        double t = double(j) * step;
        long i = long(t);
        auto f = float(t - double(i));
        long next = (i + 1) % frames;
        for (int c = 0; c < channels; ++c) {
            float a = in[std::size_t(i * channels + c)], b = in[std::size_t(next * channels + c)];
            out[std::size_t(j * channels + c)] = a + (b - a) * f;
        }
    }
    return out;
}

// Padding whose length in output frames is whole where the rates allow it,
// so that the sound's first frame falls on an output frame.
long paddingFor(int fromRate, int toRate) {
    long unit = fromRate / std::gcd(fromRate, toRate);
    if (unit > 8 * kReach) return kReach;
    return ((kReach + unit - 1) / unit) * unit;
}

}  // namespace

std::vector<float> resampleWhole(const std::vector<float>& in, int channels, int fromRate, int toRate) {
    long frames = long(in.size()) / channels;
    if (frames == 0 || fromRate == toRate) return in;
    double ratio = double(toRate) / fromRate;
    long outFrames = std::max(1L, std::lround(double(frames) * ratio));
    if (!src_is_valid_ratio(ratio)) return linear(in, channels, frames, outFrames);
    long pad = paddingFor(fromRate, toRate);
    std::vector<float> padded(std::size_t((frames + 2 * pad) * channels));
    for (long i = 0; i < frames + 2 * pad; ++i) {
        long from = ((i - pad) % frames + frames) % frames;
        for (int c = 0; c < channels; ++c) padded[std::size_t(i * channels + c)] = in[std::size_t(from * channels + c)];
    }
    long skip = std::lround(double(pad) * ratio);
    std::vector<float> out(std::size_t((outFrames + 2 * skip + 8) * channels));
    SRC_DATA d{};
    d.data_in = padded.data();
    d.input_frames = frames + 2 * pad;
    d.data_out = out.data();
    d.output_frames = long(out.size()) / channels;
    d.src_ratio = ratio;
    if (src_simple(&d, kWholeFilter, channels) != 0 || d.output_frames_gen < skip + outFrames)
        return linear(in, channels, frames, outFrames);
    return std::vector<float>(out.begin() + skip * channels, out.begin() + (skip + outFrames) * channels);
}

Resampler::Resampler(int fromRate, int toRate) : ratio_(double(toRate) / fromRate) {
    int error = 0;
    state_ = src_new(kStreamFilter, 1, &error);
}

Resampler::~Resampler() {
    if (state_) src_delete(state_);
}

void Resampler::reset() {
    if (state_) src_reset(state_);
}

void Resampler::process(const float* in, long n, bool last, std::vector<float>& out) {
    if (!state_) return;
    float block[1024];
    SRC_DATA d{};
    d.src_ratio = ratio_;
    d.end_of_input = last ? 1 : 0;
    do {
        d.data_in = in;
        d.input_frames = n;
        d.data_out = block;
        d.output_frames = long(std::size(block));
        if (src_process(state_, &d) != 0) return;
        out.insert(out.end(), block, block + d.output_frames_gen);
        in += d.input_frames_used;
        n -= d.input_frames_used;
        if (d.input_frames_used == 0 && d.output_frames_gen == 0) return;
    } while (n > 0 || last);
}

void Resampler::run(const short* in, int n, std::vector<float>& out) {
    if (n <= 0) return;
    in_.resize(std::size_t(n));
    src_short_to_float_array(in, in_.data(), n);
    process(in_.data(), n, false, out);
}

void Resampler::finish(std::vector<float>& out) {
    float none = 0;
    process(&none, 0, true, out);
    reset();
}

}  // namespace platform::real
