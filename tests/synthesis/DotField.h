#pragma once

#include "simulator/synthesis/DirectionField.h"

#include <cmath>

namespace fieldcal::synthesis {

/// Small round lights on a dull ground, one every six degrees of azimuth and elevation.
class DotField : public DirectionField {
public:
    static constexpr double pitch = 6 * 3.141592653589793 / 180;
    static constexpr double sigma = 0.2 * 3.141592653589793 / 180;

    static cv::Vec3d dot(int column, int row) {
        const double azimuth = column * pitch, elevation = row * pitch;
        return {std::cos(elevation) * std::sin(azimuth), -std::sin(elevation), std::cos(elevation) * std::cos(azimuth)};
    }

    Spectrum radiance(const cv::Vec3f& d) const override {
        const double azimuth = std::atan2(d[0], d[2]), elevation = std::asin(-d[1]);
        const auto nearest =
            dot(static_cast<int>(std::lround(azimuth / pitch)), static_cast<int>(std::lround(elevation / pitch)));
        const cv::Vec3d miss = cv::Vec3d(d) - nearest;
        const auto v = static_cast<float>(0.1 + 0.3 * std::exp(-0.5 * miss.dot(miss) / (sigma * sigma)));
        return {v, v, v, v};
    }
};

}  // namespace fieldcal::synthesis
