#include "audio_file.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

namespace realtest {

namespace {

constexpr double kLoud = 0.01;   // -40 dBFS

// The loudness of each ten-millisecond stretch.
std::vector<double> tenMsLoudness(const std::vector<float>& samples) {
    std::vector<double> rms;
    for (size_t at = 0; at + 480 <= samples.size(); at += 480) {
        double sum = 0;
        for (size_t i = at; i < at + 480; ++i) sum += double(samples[i]) * samples[i];
        rms.push_back(std::sqrt(sum / 480));
    }
    return rms;
}

}  // namespace

long framesIn(const std::string& path) {
    std::error_code ec;
    auto size = std::filesystem::file_size(path, ec);
    return ec ? 0 : long(size / 8);
}

std::vector<float> leftChannel(const std::string& path, long from) {
    std::ifstream in(path, std::ios::binary);
    in.seekg(from * 8);
    std::vector<float> out;
    for (float frame[2]; in.read(reinterpret_cast<char*>(frame), sizeof frame);) out.push_back(frame[0]);
    return out;
}

bool soundsLikeSpeech(const std::vector<float>& samples, int minMs) {
    std::vector<double> loud;
    for (double r : tenMsLoudness(samples))
        if (r > kLoud) loud.push_back(r);
    if (int(loud.size()) * 10 < minMs) return false;
    auto [low, high] = std::minmax_element(loud.begin(), loud.end());
    return *high > 2.0 * *low;
}

bool endsInSilence(const std::vector<float>& samples, int quietMs) {
    auto rms = tenMsLoudness(samples);
    size_t tail = size_t(quietMs / 10);
    if (rms.size() <= tail) return false;
    auto quietFrom = rms.end() - long(tail);
    auto loud = [](double r) { return r > kLoud; };
    return std::any_of(rms.begin(), quietFrom, loud) && std::none_of(quietFrom, rms.end(), loud);
}

}  // namespace realtest
