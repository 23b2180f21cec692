#pragma once

#include "simulator/synthesis/Spectrum.h"

#include <opencv2/core.hpp>

#include <algorithm>

namespace fieldcal::synthesis {

/// Sun and sky over the scene. World axes: x right, y down, z forward; directions are unit vectors.
struct Light {
    cv::Vec3f toSun{0.4F, -0.7F, -0.6F};
    Spectrum sun{1.10F, 1.02F, 0.90F, 1.00F};
    Spectrum sky{0.19F, 0.23F, 0.31F, 0.15F};  ///< shadows are blue, and darker in the near infrared
};

/// The properties of a surface point, without illumination.
struct Surface {
    Spectrum reflectance;
    Spectrum gloss;      ///< light added by reflection, as from glass
    float sunlight = 1;  ///< share of the sun that reaches the point, 0 … 1
    float openness = 1;  ///< visible share of the sky, 0 … 1
    float relief = 0;    ///< added to the cosine between normal and sun
};

inline Spectrum lit(const Surface& surface, const Light& light, float cosine) {
    const float direct = std::max(0.0F, cosine > 0 ? cosine + surface.relief : 0.0F) * surface.sunlight;
    return surface.reflectance * (light.sun * direct + light.sky * surface.openness) + surface.gloss;
}

}  // namespace fieldcal::synthesis
