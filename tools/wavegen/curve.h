// Piecewise-linear curves over time: pitch contours, formant tracks, levels.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

namespace wavegen {

struct Curve {
    std::vector<std::pair<double, double>> points;   // (time, value), time rising

    Curve() = default;
    Curve(std::initializer_list<std::pair<double, double>> p) : points(p) {}

    double at(double t) const {
        if (points.empty()) return 0.0;
        if (t <= points.front().first) return points.front().second;
        for (std::size_t i = 1; i < points.size(); ++i) {
            if (t <= points[i].first) {
                auto [t0, v0] = points[i - 1];
                auto [t1, v1] = points[i];
                double span = t1 - t0;
                return span > 0 ? v0 + (v1 - v0) * (t - t0) / span : v1;
            }
        }
        return points.back().second;
    }
    Curve& add(double t, double v) {
        points.emplace_back(t, v);
        return *this;
    }
};

}  // namespace wavegen
