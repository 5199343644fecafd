#include "platform/real/resampler.h"

namespace platform::real {

Resampler::Resampler(int fromRate, int toRate) : step_(double(fromRate) / toRate) {}

void Resampler::reset() {
    pos_ = 0;
    last_ = 0;
}

void Resampler::run(const short* in, int n, std::vector<float>& out) {
    if (n <= 0) return;
    auto at = [&](long i) { return i < 0 ? last_ : float(in[i]) / 32768.0f; };
    while (pos_ < double(n - 1)) {
        long i = pos_ < 0 ? -1 : long(pos_);
        double f = pos_ - double(i);
        float a = at(i), b = at(i + 1);
        out.push_back(a + (b - a) * float(f));
        pos_ += step_;
    }
    pos_ -= n;
    last_ = at(n - 1);
}

}  // namespace platform::real
