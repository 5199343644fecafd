// Percentiles for the benchmarks' printouts.
#pragma once

#include <algorithm>
#include <cstdio>
#include <vector>

namespace bench {

inline double percentile(std::vector<double> v, double p) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    size_t i = size_t(p / 100.0 * double(v.size() - 1) + 0.5);
    return v[std::min(i, v.size() - 1)];
}

inline void printFigures(const char* what, const std::vector<double>& v) {
    std::printf("%-44s n=%zu  median %.3f  p90 %.3f  p99 %.3f  max %.3f ms\n", what, v.size(), percentile(v, 50),
                percentile(v, 90), percentile(v, 99), percentile(v, 100));
}

}  // namespace bench
